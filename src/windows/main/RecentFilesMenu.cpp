#include "windows/main/RecentFilesMenu.h"

#include <utility>

#include "base/Errors.h"
#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

RecentFilesMenu::RecentFilesMenu(cRecentFiles& list, TextSource text)
    : list_(list), text_(std::move(text)) {
    list_.OnChange([this] { RefreshMenu(); });
}

void RecentFilesMenu::Setup(std::int32_t lngMaxFiles, toolkit::Form& form,
                            toolkit::MenuItem& objMenu, std::string_view strNoFilesText,
                            std::string_view strClearText, std::string_view strWarningMsg) {
    if (objMenu.Items().empty())
        throw SubscriptOutOfRange();
    list_.Setup(lngMaxFiles);
    form_ = &form;
    menu_ = &objMenu;
    noFilesText_ = strNoFilesText;
    clearText_ = strClearText;
    warningText_ = strWarningMsg;

    toolkit::MenuItem& first = *objMenu.Items().front();
    // The design's item outlives RestartClass: listening once more would open a file twice.
    if (watchedItem_ != &first) {
        watchedItem_ = &first;
        first.Click.Subscribe([this] { FileChosen.Raise(1); });
    }
    for (std::int32_t number = 2; number <= list_.Max(); ++number)
        objMenu.AddItem(first.Name(), "").Click.Subscribe([this, number] {
            FileChosen.Raise(number);
        });
    objMenu.AddItem(first.Name(), "-");
    objMenu.AddItem(first.Name(), clearText_).Click.Subscribe([this] { ClearChosen.Raise(); });
}

void RecentFilesMenu::RestartClass() {
    if (menu_ == nullptr)
        return;
    while (menu_->Items().size() > 1)
        menu_->RemoveLastItem();
    menu_->Items().front()->SetEnabled(true);
    menu_ = nullptr;
}

bool RecentFilesMenu::Clear() {
    if (form_ == nullptr)
        return false;
    const toolkit::Answer answer = form_->toolkit().ShowMessage(
        form_, warningText_, mAppCommon::kProgramTitle, toolkit::MessageIcon::Question,
        toolkit::MessageButtons::YesNo, toolkit::Answer::No);
    if (answer == toolkit::Answer::No)
        return false;
    list_.RemoveAllFiles();
    return true;
}

void RecentFilesMenu::ChangeLanguage() {
    noFilesText_ = text_(text_id::kNoRecentFiles);
    clearText_ = text_(text_id::kClearList);
    warningText_ = text_(text_id::kAreYouSure);
    RefreshMenu();
}

toolkit::MenuItem& RecentFilesMenu::Item(std::int32_t number) const {
    return *menu_->Items().at(static_cast<std::size_t>(number - 1));
}

void RecentFilesMenu::RefreshMenu() {
    if (menu_ == nullptr)
        return;
    for (std::int32_t i = 1; i <= list_.Max(); ++i) {
        toolkit::MenuItem& item = Item(i);
        const bool occupied = list_.Occupied(i);
        if (occupied)
            item.SetCaption("&" + std::to_string(i) + " " +
                            toolkit::CaptionShowing(cRecentFiles::CompactPath(list_.ListItems(i))));
        item.SetVisible(occupied);
        item.SetEnabled(occupied);
    }
    SeparatorItem().SetCaption("-");
    ClearItem().SetCaption(clearText_);
    if (list_.Occupied(1))
        ClearItem().SetEnabled(true);
    else
        ShowEmptyList();
}

void RecentFilesMenu::ShowEmptyList() {
    toolkit::MenuItem& first = Item(1);
    first.SetCaption(noFilesText_);
    first.SetVisible(true);
    first.SetEnabled(false);
    ClearItem().SetEnabled(false);
}

}  // namespace ordalyn
