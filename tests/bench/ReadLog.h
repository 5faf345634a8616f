// ReadLog: a whole log into lists, as the program reads it.
#pragma once

#include <string>

#include "bench/Measuring.h"
#include "log/EntryLists.h"
#include "log/LogReader.h"

namespace ordalyn::bench {

inline void ReadLog(platform::Files& files, EntryLists& entries, const std::string& path) {
    NoCodePages codePages;
    LogReader reader(files, codePages, entries);
    reader.BeginFile(path);
    reader.ReadEntries();
    entries.FreeExtraItems();
}

}  // namespace ordalyn::bench
