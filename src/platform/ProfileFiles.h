// The bytes of INI files, each opened once: again only when it is another one by its stamp, which
// is asked for without opening it.
//  - A look is a piece of work during which the files stay as they are for it, such as loading all
//    settings or giving a window its texts: each file's stamp is asked for once. Outside of a look
//    it is asked for at every use.
//  - A file that is there but cannot be read (held by another program) is tried again at the next
//    look.
//  - Clocks of file systems are coarse, on a stick two seconds: a file that had just been written
//    when it was read is read once more when a second change could no longer hide behind the first.
//    Whoever wants to change it reads it again in any case.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/IniFile.h"
#include "platform/Platform.h"

namespace ordalyn::platform {

// A change to an INI file, as text.
struct IniChange {
    std::string section;
    std::optional<std::string> key;    // nothing: the section is deleted
    std::optional<std::string> value;  // nothing: the entry is deleted
};

// A file as it was at the last look.
struct ProfileFile {
    // Whether it could be read. When not, it may be there or not.
    bool readable = false;
    std::string onDisk;
    // Since the owner of the fields below has seen it.
    bool readAgain = false;

    // For ProfileText: the bytes with the changes that the file does not hold yet, and what has
    // been made of them.
    std::string bytes;
    std::vector<IniChange> waiting;
    std::optional<bool> isUtf8BeyondAscii, hasUtf16Only;
    std::optional<IniFile> inCodePage, inUnicode;

  private:
    friend class ProfileFiles;
    bool known_ = false;
    std::optional<FileStamp> stamp_;
    unsigned look_ = 0;
};

class ProfileFiles {
  public:
    explicit ProfileFiles(Files& files) : files_(files) {}

    // The answers stay valid as long as the object.
    ProfileFile& At(std::string_view path);
    // As it was at the last look, without another one.
    ProfileFile& Known(std::string_view path) { return known_[std::string(path)]; }
    // Surely as it is now, whatever a look says: for changing it.
    ProfileFile& Newest(std::string_view path);
    // Writes the whole file and remembers it. False, and the file untouched, when that fails or
    // when the file is there but could not be read: it must not be taken for an empty one.
    bool Replace(std::string_view path, ProfileFile& file, const std::string& bytes);

    void BeginLook();
    void EndLook() { --looks_; }

  private:
    void Read(std::string_view path, ProfileFile& file, const std::optional<FileStamp>& stamp);

    Files& files_;
    std::map<std::string, ProfileFile, std::less<>> known_;
    int looks_ = 0;      // one within another
    unsigned look_ = 0;  // the number of the outermost
};

}  // namespace ordalyn::platform
