#include "settings/cRecentFiles.h"

#include "base/Errors.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "settings/InterfaceStrings.h"

namespace ordalyn {

namespace {

constexpr std::size_t kWholePathLength = 48;
constexpr std::size_t kEndLength = 16;

constexpr std::int32_t kNoFilesId = 108;
constexpr std::int32_t kClearId = 109;
constexpr std::int32_t kWarningId = 3009;

std::string Key(std::string_view prefix, std::int32_t index) {
    return std::string(prefix) + std::to_string(index);
}

std::string Start(std::string_view part) {
    return std::string(FirstCharacters(part, kEndLength));
}

std::string End(std::string_view part) {
    return std::string(LastCharacters(part, kEndLength));
}

}  // namespace

cRecentFiles::cRecentFiles(cProfile& profile, const mAppCommon& common,
                           const InterfaceStrings& strings)
    : profile_(profile), common_(common), strings_(strings), files_(1) {}

void cRecentFiles::Setup(std::int32_t lngMaxFiles, toolkit::Form& form, toolkit::MenuItem& objMenu,
                         std::string_view strNoFilesText, std::string_view strClearText,
                         std::string_view strWarningMsg) {
    if (lngMaxFiles < 1)
        throw InvalidPropertyValue("number of recent files");
    if (objMenu.Items().empty())
        throw SubscriptOutOfRange();
    form_ = &form;
    menu_ = &objMenu;
    maximum_ = lngMaxFiles;
    noFilesText_ = strNoFilesText;
    clearText_ = strClearText;
    warningText_ = strWarningMsg;
    files_.assign(static_cast<std::size_t>(maximum_) + 1, {});
    EmptyAllEntries();

    toolkit::MenuItem& first = *objMenu.Items().front();
    // The design's item outlives RestartClass: listening once more would open a file twice.
    if (watchedItem_ != &first) {
        watchedItem_ = &first;
        first.Click.Subscribe([this] { FileChosen.Raise(1); });
    }
    for (std::int32_t number = 2; number <= maximum_; ++number)
        objMenu.AddItem(first.Name(), "").Click.Subscribe([this, number] {
            FileChosen.Raise(number);
        });
    objMenu.AddItem(first.Name(), "-");
    objMenu.AddItem(first.Name(), clearText_).Click.Subscribe([this] { ClearChosen.Raise(); });
}

void cRecentFiles::RestartClass() {
    if (menu_ == nullptr)
        return;
    while (menu_->Items().size() > 1)
        menu_->RemoveLastItem();
    menu_->Items().front()->SetEnabled(true);
    menu_ = nullptr;
}

void cRecentFiles::ReadList(std::string_view strFileName, std::string_view strSection,
                            std::string_view KeyPrefix) {
    for (std::int32_t i = 1; i <= maximum_; ++i)
        Entry(i) = common_.ExpandPath(profile_
                                          .ReadValue(strSection, Key(KeyPrefix, i),
                                                     common_.NoValueMarker(), strFileName,
                                                     cProfile::kBufferSize)
                                          .value_or(std::string()));
    RefreshMenu();
}

void cRecentFiles::SaveList(std::string_view strFileName, std::string_view strSection,
                            std::string_view strKeyPrefix) {
    for (std::int32_t i = 1; i <= maximum_; ++i) {
        const std::string key = Key(strKeyPrefix, i);
        profile_.DeleteValue(strSection, key, strFileName);
        profile_.WriteValue(strSection, key, common_.UnExpandPath(Entry(i)), strFileName);
    }
}

void cRecentFiles::AddFile(std::string_view strFileName) {
    // The argument may be a view of one of the entries that are about to move.
    const std::string path(strFileName);
    if (const std::int32_t listed = IndexOf(path); listed != 0)
        RemoveFile(listed, true);
    for (std::int32_t i = maximum_; i >= 1; --i)
        Entry(i) = Entry(i - 1);
    if (maximum_ >= 1)
        Entry(1) = path;
    RefreshMenu();
    if (menu_ != nullptr)
        ClearItem().SetEnabled(true);
}

void cRecentFiles::RemoveFile(std::int32_t lngIndex, bool blnAutoRefresh) {
    RequireEntry(lngIndex);
    for (std::int32_t i = lngIndex; i < maximum_; ++i)
        Entry(i) = Entry(i + 1);
    Entry(maximum_) = common_.NoValueMarker();
    if (blnAutoRefresh)
        RefreshMenu();
}

void cRecentFiles::PutAsFirstItem(std::int32_t lngIndex) {
    RequireEntry(lngIndex);
    const std::string path = Entry(lngIndex);
    RemoveFile(lngIndex, true);
    AddFile(path);
}

bool cRecentFiles::Clear() {
    if (form_ == nullptr)
        return false;
    const toolkit::Answer answer = form_->toolkit().ShowMessage(
        form_, warningText_, mAppCommon::kProgramTitle, toolkit::MessageIcon::Question,
        toolkit::MessageButtons::YesNo, toolkit::Answer::No);
    if (answer == toolkit::Answer::No)
        return false;
    EmptyAllEntries();
    RefreshMenu();
    return true;
}

const std::string& cRecentFiles::ListItems(std::int32_t lngIndex) const {
    if (lngIndex != 0)
        RequireEntry(lngIndex);
    return files_[static_cast<std::size_t>(lngIndex)];
}

void cRecentFiles::ChangeLanguage() {
    noFilesText_ = strings_.GetInterfaceString(kNoFilesId);
    clearText_ = strings_.GetInterfaceString(kClearId);
    warningText_ = strings_.GetInterfaceString(kWarningId);
    RefreshMenu();
}

void cRecentFiles::RequireEntry(std::int32_t index) const {
    if (index < 1 || index > maximum_)
        throw SubscriptOutOfRange();
}

bool cRecentFiles::Occupied(std::int32_t index) const {
    return !EqualsIgnoreCase(files_[static_cast<std::size_t>(index)], common_.NoValueMarker());
}

std::int32_t cRecentFiles::IndexOf(std::string_view path) const {
    for (std::int32_t i = 1; i <= maximum_; ++i) {
        if (EqualsIgnoreCase(files_[static_cast<std::size_t>(i)], path))
            return i;
    }
    return 0;
}

void cRecentFiles::EmptyAllEntries() {
    for (std::int32_t i = 1; i <= maximum_; ++i)
        Entry(i) = common_.NoValueMarker();
}

toolkit::MenuItem& cRecentFiles::Item(std::int32_t number) const {
    return *menu_->Items().at(static_cast<std::size_t>(number - 1));
}

void cRecentFiles::RefreshMenu() {
    if (menu_ == nullptr)
        return;
    for (std::int32_t i = 1; i <= maximum_; ++i) {
        toolkit::MenuItem& item = Item(i);
        const bool occupied = Occupied(i);
        if (occupied)
            item.SetCaption("&" + std::to_string(i) + " " +
                            toolkit::CaptionShowing(CompactPath(Entry(i))));
        item.SetVisible(occupied);
        item.SetEnabled(occupied);
    }
    SeparatorItem().SetCaption("-");
    ClearItem().SetCaption(clearText_);
    if (!Occupied(1))
        ShowEmptyList();
}

void cRecentFiles::ShowEmptyList() {
    toolkit::MenuItem& first = Item(1);
    first.SetCaption(noFilesText_);
    first.SetVisible(true);
    first.SetEnabled(false);
    ClearItem().SetEnabled(false);
}

std::string cRecentFiles::CompactPath(std::string_view path) {
    if (CharacterCount(path) <= kWholePathLength)
        return std::string(path);
    const std::vector<std::string> parts = Split(path, '\\');
    const std::size_t backslashes = parts.size() - 1;
    switch (backslashes) {
        case 0:
            return {};
        case 1:
            return parts[0] + "\\" + Start(parts[1]) + "......" + End(parts[1]);
        case 2:
            return parts[0] + "\\" + Start(parts[1]) + "\\...\\" + End(parts[2]);
        case 3:
        case 4:
            return parts[0] + "\\" + parts[1] + "\\...\\" + parts.back();
        default:
            return parts[0] + "\\" + parts[1] + "\\...\\" + parts[backslashes - 1] + "\\" +
                   parts.back();
    }
}

}  // namespace ordalyn
