#include "platform/ProfileFiles.h"

#include <utility>

#include "base/Attempt.h"

namespace ordalyn::platform {

namespace {

// A relative path means another file when the current folder changes.
bool MeansOneFile(std::string_view path) {
    const bool ofDrive = path.size() > 2 && path[1] == ':' && path[2] == '\\';
    return ofDrive || path.starts_with("\\\\");
}

}  // namespace

ProfileFile& ProfileFiles::At(std::string_view path) {
    ProfileFile& file = Known(path);
    if (looks_ > 0 && file.look_ == look_)
        return file;
    file.look_ = looks_ > 0 ? look_ : 0;
    const std::optional<FileStamp> stamp = files_.Stamp(path);
    const bool same = file.known_ && stamp == file.stamp_ && MeansOneFile(path);
    const auto hasSettled = [&] { return stamp->settled && !file.stamp_->settled; };
    if (!same || (stamp && (!file.readable || hasSettled())))
        Read(path, file, stamp);
    return file;
}

ProfileFile& ProfileFiles::Newest(std::string_view path) {
    ProfileFile& file = Known(path);
    const std::optional<FileStamp> stamp = files_.Stamp(path);
    const bool same = file.known_ && stamp == file.stamp_ && MeansOneFile(path);
    if (!same || !file.readable || !stamp || !file.stamp_->settled)
        Read(path, file, stamp);
    return file;
}

void ProfileFiles::Read(std::string_view path, ProfileFile& file,
                        const std::optional<FileStamp>& stamp) {
    // The stamp is from before the reading: what changes meanwhile is seen the next time.
    std::optional<std::string> bytes = ReadAllBytes(files_, path);
    file.known_ = true;
    file.stamp_ = stamp;
    file.readable = bytes.has_value();
    file.onDisk = std::move(bytes).value_or("");
    file.readAgain = true;
}

bool ProfileFiles::Replace(std::string_view path, ProfileFile& file, const std::string& bytes) {
    if (!file.readable && (file.stamp_ || files_.Exists(path)))
        return false;
    if (!Attempt([&] { files_.Replace(path, bytes); }))
        return false;
    file.stamp_ = files_.Stamp(path);
    // Nobody can have changed it and left its stamp the same, but in the moment before the stamp.
    if (file.stamp_)
        file.stamp_->settled = false;
    file.readable = true;
    file.onDisk = bytes;
    return true;
}

void ProfileFiles::BeginLook() {
    if (looks_++ == 0)
        ++look_;
}

}  // namespace ordalyn::platform
