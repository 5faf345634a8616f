// FileManagerCommands shows what the selected row tells of in the file manager: the cursor then
// stands on the file. Without the file manager's program the shell shows it, in the window of its
// folder.
#pragma once

#include <string>
#include <string_view>

#include "hostconfig/LogOperations.h"
#include "log/EntryLists.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"

namespace ordalyn {

class FileManagerCommands {
  public:
    struct Controls {
        toolkit::Form& form;
        toolkit::ListView& SourceListView;
        toolkit::ListView& TargetListView;
        toolkit::MenuItem& mnuContextShowSource;
        toolkit::MenuItem& mnuContextShowTarget;
    };

    // Enter or a double click on a row of a panel shows what that panel is for.
    FileManagerCommands(SharedObjects& shared, const Controls& controls, const EntryLists& entries,
                        LogOperations& operations);

    // Before the context menu opens: what the selected row has no path for cannot be chosen.
    void PrepareMenu();
    void ShowSource();
    void ShowTarget();

  private:
    // Of the selected row's operation; empty for a line that cannot be read, and for a bare name.
    struct Paths {
        std::string source, target;
    };
    Paths SelectedPaths() const;
    void Show(const std::string& path);
    void HandOver(std::string_view path);
    std::string NearestThatExists(std::string_view path);
    void Say(std::int32_t text, std::string_view path);

    SharedObjects& shared_;
    Controls controls_;
    const EntryLists& entries_;
    LogOperations& operations_;
};

}  // namespace ordalyn
