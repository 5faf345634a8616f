// PanelColumns: the columns of the two panels: their captions, and the widths and order that the
// settings file keeps.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/ListView.h"
#include "windows/common/SharedObjects.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn {

class PanelColumns {
  public:
    PanelColumns(SharedObjects& shared, toolkit::ListView& source, toolkit::ListView& target)
        : shared_(shared), source_(source), target_(target) {}

    // Makes the columns as wide as the settings file says; a single panel has one more, for the
    // targets. A missing, negative or too large width becomes the default one.
    void Load();
    // Unless the settings file says how wide the columns are: the times fit, and the paths share
    // what the panels have beside them. To be called when the panels have their size.
    void FitToPanels();
    // Puts the columns of the source panel where the settings file says. A place that is none
    // leaves its column where it is.
    void LoadOrder();
    // Writes the widths in whole twips, the fraction cut off.
    void SaveWidths();
    // Writes the places, numbered from 1. With two panels the third is always 3.
    void SaveOrder();
    // Gives the columns their captions in the interface language.
    void ShowCaptions();

    std::string TargetCaption() const;

  private:
    void Add(toolkit::ListView& list, EntryRows::Field field,
             const std::vector<std::string>& widths);
    std::string Caption(EntryRows::Field field) const;
    bool TwoPanels() const { return shared_.settings->TwoPanels != 0; }

    SharedObjects& shared_;
    toolkit::ListView& source_;
    toolkit::ListView& target_;
};

}  // namespace ordalyn
