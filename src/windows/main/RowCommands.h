// RowCommands takes rows of the panels along for other programs: the selected ones by the
// clipboard, all that are shown into a file.
#pragma once

#include <string>

#include "hostconfig/LogOperations.h"
#include "log/EntryLists.h"
#include "log/EntryTable.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/LogFileSet.h"
#include "windows/progress/ReadingProgress.h"

namespace ordalyn {

class RowCommands {
  public:
    struct Surroundings {
        SharedObjects& shared;
        toolkit::Form& mainWindow;
        const toolkit::ListView& source;
        const EntryLists& entries;
        LogOperations& operations;
        LogFileReading& reading;
        const LogFileSet& files;
        ReadingProgress& progress;
    };

    explicit RowCommands(const Surroundings& around) : around_(around) {}

    // The selected rows as a table on the clipboard, without a line of names.
    void CopyRows();
    // Asks for a file and writes the rows of the panels into it, as they are by then; below the
    // names of the columns. What the file manager has logged is never overwritten. A failure ends
    // in a message and leaves what was there.
    void SaveRows();

  private:
    bool IsLog(const std::string& path) const;
    void Write(const std::string& path, TableForm form);
    void ShowFailure(const std::string& path, unsigned long code);
    void ShowMessage(const std::string& text);

    Surroundings around_;
    bool saving_ = false;
};

}  // namespace ordalyn
