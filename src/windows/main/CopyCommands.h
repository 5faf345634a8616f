// CopyCommands puts the source or the target of the selected row on the clipboard.
#pragma once

#include <string_view>

#include "log/EntryLists.h"
#include "platform/Platform.h"
#include "toolkit/ListView.h"

namespace ordalyn {

// Nothing happens without a selected row. A clipboard that another program holds is no error.
class CopyCommands {
  public:
    CopyCommands(platform::Clipboard& clipboard, const toolkit::ListView& source,
                 const EntryLists& entries)
        : clipboard_(clipboard), source_(source), entries_(entries) {}

    // The operation with its source path, as the panel shows it.
    void CopySource();
    // The target of the row's entry.
    void CopyTarget();
    bool HasTarget() const;

  private:
    void PutOnClipboard(std::string_view text);

    platform::Clipboard& clipboard_;
    const toolkit::ListView& source_;
    const EntryLists& entries_;
};

}  // namespace ordalyn
