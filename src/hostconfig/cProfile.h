// cProfile: the only way in which the program reads and writes INI files, its own and the file
// manager's. It follows the file manager's redirections, so that a caller who asks for an entry of
// wincmd.ini gets it from the file in which the file manager itself keeps it:
//  - a section's "RedirectSection" names another file for it ("1": the alternate file, "0": stay);
//  - "AlternateUserIni" of [Configuration] moves all other sections but the exempt ones.
// One level only: a target's own redirections do not count, and it need not exist.
//
// All names compare ignoring case. Each operation looks for the redirections afresh. A file is
// opened once and then only when it is another one by its size and times, which every operation
// asks for once, or once for many operations during a look (platform/ProfileFiles.h).
//
// Nothing here reports an error: what cannot be read is absent; what cannot be written is read as
// if it had been, and Keep tries again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProfileText.h"

namespace ordalyn {

class mAppCommon;

// The section of the file manager's settings that most entries are in.
inline constexpr std::string_view kConfigurationSection = "Configuration";
// The sections of the program's own settings: one for the window and what it shows, one for paths
// and limits.
inline constexpr std::string_view kOrdalynSection = "Ordalyn";
inline constexpr std::string_view kCommonSection = "Common";

namespace test {
struct ProfileInternals;
}

class cProfile {
  public:
    // In characters, one of which is for the terminating NUL: longer values are cut.
    static constexpr std::size_t kBufferSize = 4096;
    // The entry of the program's settings file that lists the sections which AlternateUserIni does
    // not move, and its default.
    static constexpr std::string_view kExemptSectionsKey = "TCSectionsNotRedirectedByDefault";
    static constexpr std::string_view kDefaultExemptSections =
        "Configuration;Layout;Packer;Confirmation;Extensions;Shortcuts;PackerPlugins;"
        "FileSystemPlugins;ListerPlugins;ContentPlugins";

    // Reads the list of exempt sections from the program's settings file, once, and writes the
    // default list there when the entry is absent; when that fails nothing is lost that would have
    // to be kept. An empty entry exempts nothing.
    cProfile(const platform::Services& services, const mAppCommon& common);

    // No value when the text read is empty: for an empty entry as for an absent one with an empty
    // default. An absent entry gives a default that is not empty. The code page is that of the
    // language whose texts the file has, as ProfileText says.
    std::optional<std::string> ReadValue(std::string_view strSectionName,
                                         std::string_view strKeyName,
                                         std::string_view strDefaultValue,
                                         std::string_view strFileName,
                                         std::size_t lngMaxBufferSize = kBufferSize,
                                         std::optional<unsigned> languageCodePage = std::nullopt);
    // Without quotation the value is written without blanks at its ends; with it, between double
    // quotes as it is. The marker of absent values is not written at all, so that a caller can pass
    // on what it read.
    void WriteValue(std::string_view strSectionName, std::string_view strKeyName,
                    std::string_view strValue, std::string_view strFileName,
                    bool blnAddQuotation = false);
    void DeleteValue(std::string_view strSectionName, std::string_view strKeyName,
                     std::string_view strFileName);
    void DeleteSection(std::string_view strSectionName, std::string_view strFileName);

    // While it lives, files that have been looked at are not looked at again: for many values that
    // belong together. A modal window has no place in it.
    class Look {
      public:
        explicit Look(cProfile& profile) : text_(profile.text_) { text_.BeginLook(); }
        ~Look() { text_.EndLook(); }
        Look(const Look&) = delete;
        Look& operator=(const Look&) = delete;

      private:
        platform::ProfileText& text_;
    };
    // Does work whose changes go into each file together, at the end: all of them or none.
    template <typename Work>
    void Together(Work&& work) {
        text_.BeginChanges();
        try {
            work();
        } catch (...) {
            text_.EndChanges();
            throw;
        }
        text_.EndChanges();
    }
    // Whether the file holds all that was written to it. What it lacks is written now if it can be.
    // Without redirection.
    bool Keep(std::string_view strFileName) { return text_.WriteWaiting(strFileName); }

    // Each fills one list, which stays until the next call of the same operation. Section names are
    // those of the file itself: no redirection.
    void ReadFileSectionsName(std::string_view strFileName,
                              std::size_t lngMaxBufferSize = kBufferSize);
    void ReadSectionKeysNameAndValue(std::string_view strSectionName, std::string_view strFileName,
                                     std::size_t lngMaxBufferSize = kBufferSize);
    void ReadSectionKeysNameOnly(std::string_view strSectionName, std::string_view strFileName,
                                 std::size_t lngMaxBufferSize = kBufferSize);

    // Elements from 0 on; SubscriptOutOfRange outside the list. The lists end in empty elements
    // that the last index, -1 for an empty list, does not count: walk up to it.
    const std::string& FileSectionsNameList(std::int32_t lngIndex) const;
    const std::string& SectionKeysNameAndValueList(std::int32_t lngIndex) const;
    const std::string& SectionKeysNameOnlyList(std::int32_t lngIndex) const;
    std::int32_t FileSectionsNameLastIndex() const { return sectionNames_.lastIndex; }
    std::int32_t SectionKeysNameAndValueLastIndex() const { return keysAndValues_.lastIndex; }
    std::int32_t SectionKeysNameOnlyLastIndex() const { return keyNames_.lastIndex; }
    // Ignoring case, the last name first.
    void SortKeysNameOnlyList();

  private:
    friend struct test::ProfileInternals;

    struct List {
        std::vector<std::string> elements;
        std::int32_t lastIndex = -1;
    };
    static List SplitList(std::string_view text);
    static const std::string& ElementOf(const List& list, std::int32_t index);

    std::string ResolveRedirectedFile(std::string_view section, std::string_view key,
                                      std::string_view file);
    std::string RedirectionEntry(std::string_view section, std::string_view key,
                                 std::string_view file);
    bool IsExempt(std::string_view section) const;
    // Without redirection.
    std::optional<std::string> ReadRawValue(
        std::string_view section, std::string_view key, std::string_view otherwise,
        std::string_view file, std::size_t size,
        std::optional<unsigned> languageCodePage = std::nullopt);
    // Unlike WriteValue it removes the blanks first: it does not write a marker with blanks around
    // it, and quotes protect no blanks.
    void WriteRawValue(std::string_view section, std::string_view key, std::string_view value,
                       std::string_view file, bool addQuotation);

    platform::ProfileText text_;
    const mAppCommon& common_;
    std::vector<std::string> exemptSections_;
    List sectionNames_;
    List keysAndValues_;
    List keyNames_;
};

}  // namespace ordalyn
