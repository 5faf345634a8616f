#include "support/history/HistoryModel.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "log/LogLine.h"
#include "support/log/PaddedLine.h"

namespace ordalyn::test {

namespace {

constexpr std::array<std::string_view, 2> kDrives{"d:", "\\\\nas\\public"};
constexpr std::array<std::string_view, 3> kFolders{"a", "books", "\xC3\xA4pfel"};
constexpr std::array<std::string_view, 5> kFiles{
    "f", "tasks.txt", "x.zip", "\xD1\x84\xD0\xB0\xD0\xB9\xD0\xBB", "a long name of a file.txt"};

bool IsIn(std::string_view path, std::string_view folder) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '\\';
}

std::string GetNameOf(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

// The first such letter, written with the character beyond ASCII that folds to it.
std::string ReplaceOne(std::string text, char letter) {
    const std::size_t at = text.find(letter);
    if (at != std::string::npos)
        text.replace(at, 1, letter == 'K' ? "\xE2\x84\xAA" : "\xC5\xBF");
    return text;
}

}  // namespace

HistoryModel::HistoryModel(std::function<int(int)> choose) : choose_(std::move(choose)) {
    // What was there before the log began.
    for (int i = choose_(8); i > 0; --i) {
        const std::string place = NewPlace();
        const bool folder = choose_(2) == 0;
        if (Exists(place))
            continue;
        auto thing = std::make_shared<Thing>();
        thing->folder = folder;
        thing->names.insert(place);
        thing->life.path = place;
        things_[place] = thing;
        all_.push_back(thing);
        mentioned_.insert(place);
    }
}

OperationReader HistoryModel::Reader() {
    using enum OperationKind;
    return OperationReader({{Copy, "Copy"},
                            {Move, "Move"},
                            {Shortcut, "Shortcut"},
                            {NewFolder, "NewFolder"},
                            {Delete, "Delete"},
                            {OperationKind::DeleteFolder, "DeleteFolder"},
                            {Pack, "Pack"},
                            {Unpack, "Unpack"},
                            {Test, "Test"},
                            {OperationKind::CreateFile, "CreateFile"},
                            {ProgramStart, "Program start"},
                            {ProgramShutdown, "Program shutdown"}});
}

void HistoryModel::DoOperations(int count) {
    for (int i = 0; i < count; ++i)
        DoOne();
}

bool HistoryModel::IsFolder(const std::string& path) const {
    const auto found = things_.find(path);
    return found != things_.end() && found->second->folder;
}

std::string HistoryModel::AnyFolder() {
    std::string path(kDrives[static_cast<std::size_t>(choose_(2))]);
    for (int depth = choose_(3); depth > 0; --depth) {
        const std::string deeper =
            path + '\\' + std::string(kFolders[static_cast<std::size_t>(choose_(3))]);
        if (IsFolder(deeper))
            path = deeper;
    }
    return path;
}

// In a folder that exists.
std::string HistoryModel::NewPlace() {
    const int name = choose_(8);
    return AnyFolder() + '\\' +
           std::string(name < 3 ? kFolders[static_cast<std::size_t>(name)]
                                : kFiles[static_cast<std::size_t>(name - 3)]);
}

// Perhaps in one that does not.
std::string HistoryModel::AnyPath() {
    std::string path(kDrives[static_cast<std::size_t>(choose_(2))]);
    for (int depth = choose_(3); depth > 0; --depth)
        path += '\\' + std::string(kFolders[static_cast<std::size_t>(choose_(3))]);
    return path + '\\' + std::string(kFiles[static_cast<std::size_t>(choose_(5))]);
}

std::string HistoryModel::Existing(bool folder) {
    std::vector<std::string> paths;
    for (const auto& [path, thing] : things_)
        if (thing->folder == folder)
            paths.push_back(path);
    return paths.empty() ? std::string()
                         : paths[static_cast<std::size_t>(choose_(static_cast<int>(paths.size())))];
}

std::vector<std::string> HistoryModel::Below(const std::string& folder) const {
    std::vector<std::string> below;
    for (const auto& [path, thing] : things_)
        if (IsIn(path, folder))
            below.push_back(path);
    return below;
}

void HistoryModel::DoOne() {
    switch (choose_(16)) {
        case 0:
        case 1:
            return CreateFile();
        case 2:
            return CreateFolder();
        case 3:
            return TransferFile(false);
        case 4:
        case 5:
        case 6:
            return TransferFile(true);
        case 7:
            return TransferFolder(false);
        case 8:
        case 9:
            return TransferFolder(true);
        case 10:
            return DeleteFile();
        case 11:
            return DeleteFolder();
        case 12:
            return UseArchive();
        case 13:
            return ChangeCase();
        case 14:
            return Fail();
        default:
            return WriteOtherLine();
    }
}

void HistoryModel::CreateFile() {
    const std::string path = NewPlace();
    if (IsFolder(path))
        return;
    End(path, StepKind::Replaced);
    Begin(path, false, true, StepKind::Created);
    Write("CreateFile", path);
}

void HistoryModel::CreateFolder() {
    const std::string path = NewPlace();
    if (Exists(path))
        return;
    Begin(path, true, true, StepKind::Created);
    Write("NewFolder", path);
}

void HistoryModel::TransferFile(bool move) {
    const std::string target = NewPlace();
    if (IsFolder(target))
        return;
    const std::string word = move ? "Move" : "Copy";
    // Out of an archive, or from where the log does not say.
    if (choose_(8) == 0) {
        End(target, StepKind::Replaced);
        Begin(target, false, true, move ? StepKind::Moved : StepKind::CopiedHere);
        WriteLine(word + ": " + GetNameOf(target) + " -> " + Spelled(target));
        return;
    }
    const std::string source = Existing(false);
    if (source.empty() || source == target)
        return;
    if (move) {
        things_[source]->seen = true;
        End(target, StepKind::Replaced);
        Rename(source, target, StepKind::Moved);
    } else {
        Touch(source, StepKind::CopiedAway);
        End(target, StepKind::Replaced);
        Begin(target, false, true, StepKind::CopiedHere);
    }
    Write(word, source, target);
}

void HistoryModel::TransferFolder(bool move) {
    const std::string source = Existing(true);
    const std::string target = NewPlace();
    if (source.empty() || Exists(target) || target == source || IsIn(target, source))
        return;
    const std::vector<std::string> below = Below(source);
    // The log does not say what comes with it.
    std::erase_if(emptied_, [&](const std::string& path) { return IsIn(path, target); });
    if (move)
        things_[source]->seen = true;
    else
        Touch(source, StepKind::CopiedAway);
    if (move)
        Rename(source, target, StepKind::Moved);
    else
        Begin(target, true, true, StepKind::CopiedHere);
    for (const std::string& path : below) {
        const std::string there = target + path.substr(source.size());
        if (move) {
            Rename(path, there, StepKind::MovedWithFolder);
        } else {
            things_[path]->life.steps.push_back({Next(), StepKind::CopiedAway});
            Begin(there, things_[path]->folder, false, StepKind::CopiedHere);
        }
    }
    Write(move ? "Move" : "Copy", source, target);
}

void HistoryModel::ChangeCase() {
    const bool folder = choose_(2) == 0;
    const std::string path = Existing(folder);
    if (path.empty())
        return;
    Touch(path, StepKind::Moved);
    for (const std::string& below : Below(path))
        things_[below]->life.steps.push_back({Next(), StepKind::MovedWithFolder});
    Write("Move", path, path);
}

void HistoryModel::DeleteFile() {
    const std::string path = Existing(false);
    if (path.empty())
        return;
    things_[path]->seen = true;
    End(path, StepKind::Deleted);
    Write("Delete", path);
}

void HistoryModel::DeleteFolder() {
    const std::string path = Existing(true);
    if (path.empty())
        return;
    for (const std::string& below : Below(path)) {
        things_[below]->life.steps.push_back({Next(), StepKind::DeletedWithFolder});
        things_.erase(below);
        emptied_.insert(below);
    }
    things_[path]->seen = true;
    End(path, StepKind::Deleted);
    Write(choose_(2) == 0 ? "Delete" : "DeleteFolder", path);
}

void HistoryModel::UseArchive() {
    const std::string source = Existing(false);
    const std::string target = NewPlace();
    if (source.empty() || source == target || IsFolder(target))
        return;
    const int what = choose_(5);
    if (what == 0) {
        Touch(source, StepKind::Touched);
        return Write("Test", source);
    }
    if (what == 1) {
        Touch(source, StepKind::Touched);
        return Write("Frobnicate", source);
    }
    if (what == 2) {
        // Nobody can tell whether an archive that the log has not named yet was there before.
        if (!Exists(target) && !emptied_.contains(target))
            return;
        Touch(source, StepKind::Touched);
        if (Exists(target))
            Touch(target, StepKind::Touched);
        else
            Begin(target, false, true, StepKind::Created);
        return Write("Pack", source, target);
    }
    Touch(source, StepKind::Touched);
    End(target, StepKind::Replaced);
    Begin(target, false, true, StepKind::Created);
    Write(what == 3 ? "Unpack" : "Shortcut", source, target);
}

void HistoryModel::Fail() {
    constexpr std::array<std::string_view, 5> kWords{"Copy", "Move", "Delete", "DeleteFolder",
                                                     "Pack"};
    const std::string word(kWords[static_cast<std::size_t>(choose_(5))]);
    const auto some = [this] {
        const std::string path = choose_(2) == 0 ? Existing(choose_(2) == 0) : AnyPath();
        return path.empty() ? AnyPath() : path;
    };
    const std::string source = some();
    const bool transfers = word == "Copy" || word == "Move" || word == "Pack";
    const std::string target = transfers ? some() : std::string();
    const bool emptiesSource = word != "Copy" && word != "Pack";
    std::set<ThingPointer> concerned;
    for (const std::string& path : {source, target}) {
        if (path.empty())
            continue;
        const auto thing = things_.find(path);
        mentioned_.insert(path);
        failures_.push_back({Next(), path, thing == things_.end() ? nullptr : thing->second});
        if (thing != things_.end())
            concerned.insert(thing->second);
    }
    if (emptiesSource)
        for (const std::string& path : Below(source))
            concerned.insert(things_[path]);
    for (const ThingPointer& thing : concerned)
        thing->life.steps.push_back({Next(), StepKind::Failed});
    const std::string arrow = transfers ? " -> " + Spelled(target) : std::string();
    if (choose_(2) == 0)
        WriteLine(word + "(Error: Aborted): " + Spelled(source) + arrow);
    else
        WriteLine(word + ": Skipped: " + Spelled(source) + arrow);
}

// Nothing happens by any of these.
void HistoryModel::WriteOtherLine() {
    std::string path = Existing(false);
    if (path.empty())
        path = AnyPath();
    switch (choose_(5)) {
        case 0:
            return WriteLine("Program start (anna/DESK7) UTF-8");
        case 1:
            return WriteLine("Delete: " + GetNameOf(path));
        case 2:
            return WriteLine("Move: " + path + "->y.txt -> " + AnyPath());
        case 3:
            return WriteLine("Delete(Error: " + path);
        default:
            entries_.Add({{}, "; Delete: " + path, {}});
    }
}

void HistoryModel::Touch(const std::string& path, StepKind kind) {
    Thing& thing = *things_[path];
    thing.seen = true;
    thing.life.steps.push_back({Next(), kind});
}

void HistoryModel::Begin(const std::string& path, bool folder, bool seen, StepKind kind) {
    auto thing = std::make_shared<Thing>();
    thing->folder = folder;
    thing->seen = seen;
    thing->names.insert(path);
    thing->life.path = path;
    thing->life.steps.push_back({Next(), kind});
    things_[path] = thing;
    all_.push_back(thing);
    mentioned_.insert(path);
}

// Nothing happens where there is nothing.
void HistoryModel::End(const std::string& path, StepKind kind) {
    const auto found = things_.find(path);
    if (found == things_.end())
        return;
    found->second->life.steps.push_back({Next(), kind});
    things_.erase(found);
    emptied_.insert(path);
}

void HistoryModel::Rename(const std::string& from, const std::string& to, StepKind kind) {
    const ThingPointer thing = things_[from];
    things_.erase(from);
    emptied_.insert(from);
    thing->life.steps.push_back({Next(), kind});
    thing->life.path = to;
    thing->names.insert(to);
    things_[to] = thing;
    mentioned_.insert(to);
}

void HistoryModel::Write(std::string_view word, const std::string& source,
                         const std::string& target) {
    std::string line(word);
    line += choose_(4) == 0 ? " " : ": ";
    line += Spelled(source);
    if (!target.empty())
        line += " -> " + Spelled(target);
    WriteLine(line);
}

void HistoryModel::WriteLine(const std::string& behindTime) {
    entries_.Add(SplitOperationLine(PaddedLine("15.03.2024 12:02:45: " + behindTime)));
}

// In whatever case, and a folder with a backslash or without.
std::string HistoryModel::Spelled(const std::string& path) {
    std::string spelled = path;
    if (choose_(3) == 0) {
        spelled.clear();
        for (std::size_t at = 0; at < path.size();
             at += FirstCharacters(path.substr(at), 1).size()) {
            const std::string character(FirstCharacters(path.substr(at), 1));
            if (character.size() == 1 && character[0] >= 'a' && character[0] <= 'z')
                spelled += static_cast<char>(character[0] - ' ');
            else if (character == "\xC3\xA4")
                spelled += "\xC3\x84";
            else if (character == "\xD1\x84")
                spelled += "\xD0\xA4";
            else
                spelled += character;
        }
        // The signs for Kelvin and for the long s are a k and an s in another case.
        if (choose_(2) == 0)
            spelled = ReplaceOne(spelled, choose_(2) == 0 ? 'K' : 'S');
    }
    if (IsFolder(path) && choose_(2) == 0)
        spelled += '\\';
    return spelled;
}

std::vector<FileLife> HistoryModel::TrueLives(const std::string& path) const {
    std::vector<FileLife> lives;
    for (const ThingPointer& thing : all_)
        if (thing->seen && thing->names.contains(path))
            lives.push_back(thing->life);
    std::sort(lives.begin(), lives.end(),
              [](const FileLife& a, const FileLife& b) { return a.steps < b.steps; });
    if (lives.empty())
        return lives;
    const std::vector<FileLife> before = lives;
    for (const Failure& failure : failures_) {
        if (failure.path != path || (failure.thing != nullptr && failure.thing->seen))
            continue;
        std::size_t life = 0;
        while (life + 1 < before.size() && before[life + 1].steps.front().entry < failure.entry)
            ++life;
        lives[life].steps.push_back({failure.entry, StepKind::Failed});
    }
    for (FileLife& life : lives) {
        std::sort(life.steps.begin(), life.steps.end());
        life.steps.erase(std::unique(life.steps.begin(), life.steps.end()), life.steps.end());
    }
    return lives;
}

}  // namespace ordalyn::test
