#include "windows/main/CopyCommands.h"

#include "windows/panels/EntryRows.h"

namespace ordalyn {

void CopyCommands::PutOnClipboard(std::string_view text) {
    // Three times in a row: what watches the clipboard and takes it at the first change has given
    // it back by the last one.
    for (int i = 0; i < 3; ++i)
        clipboard_.Clear();
    clipboard_.SetText(text);
}

void CopyCommands::CopySource() {
    const int row = source_.SelectedRow();
    if (row >= 0)
        PutOnClipboard(source_.Text(row, EntryRows::kOperation));
}

bool CopyCommands::HasTarget() const {
    const int row = source_.SelectedRow();
    return row >= 0 && !entries_.EntryTargets().List(source_.Tag(row)).empty();
}

void CopyCommands::CopyTarget() {
    const int row = source_.SelectedRow();
    if (row >= 0)
        PutOnClipboard(entries_.EntryTargets().List(source_.Tag(row)));
}

}  // namespace ordalyn
