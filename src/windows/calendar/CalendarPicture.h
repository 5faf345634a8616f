// CalendarPicture: the months of a year, one square a day: where everything lies on the canvas, and
// how it is drawn.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/Canvas.h"

namespace ordalyn {

class CalendarPicture {
  public:
    using Date = std::chrono::sys_days;

    // What is written on it.
    struct Words {
        std::array<std::string, 12> months;
        std::array<std::string, 7> weekdays;  // from Sunday
        std::chrono::weekday firstWeekday = std::chrono::Monday;
        std::string fewer, more, failed;  // what the shades and the mark mean
    };
    struct Square {
        int busyness = 0;
        bool failed = false;
    };
    struct Content {
        std::chrono::year year{};
        std::vector<Square> days;  // of the year, from January 1 on
        std::optional<Date> chosen;
        std::optional<Date> current;  // that keys are for
    };

    explicit CalendarPicture(const toolkit::Canvas& canvas) : canvas_(canvas) {}
    void SetWords(Words words) { words_ = std::move(words); }

    void Draw(toolkit::Painter& on, const Content& content) const;
    // Words in the middle, where there is no year to show.
    void DrawWords(toolkit::Painter& on, const std::string& words) const;
    // The day whose square this is; nothing beside the squares.
    std::optional<Date> DayAt(std::chrono::year year, toolkit::Twips x, toolkit::Twips y) const;
    toolkit::Rect SquareOf(Date date) const;

  private:
    // All lengths are whole pixels, so that all squares look alike.
    struct Measures {
        toolkit::Twips pixel = 0, width = 0, line = 0, between = 0;
        int columns = 0;  // of months
        toolkit::Twips left = 0;
        toolkit::Twips monthsTop = 0, legendTop = 0;
        toolkit::Twips pitch = 0;  // from one square to the next
        toolkit::Twips gap = 0;    // between them
        bool numbers = false;      // there is room for them in all squares
        // As many whole pixels as the length has.
        toolkit::Twips Whole(toolkit::Twips length) const;
        toolkit::Twips Square() const { return pitch - gap; }
        toolkit::Twips MonthWidth() const { return 7 * pitch - gap; }
    };
    Measures Measure() const;
    toolkit::Rect Placed(const Measures& all, toolkit::Rect area) const;
    toolkit::Rect MonthArea(const Measures& all, unsigned month) const;
    toolkit::Rect SquareArea(const Measures& all, Date date) const;
    void DrawMonth(toolkit::Painter& on, const Measures& all, unsigned month,
                   const std::array<std::string, 7>& weekdays) const;
    void DrawSquare(toolkit::Painter& on, const Measures& all, const toolkit::Rect& area,
                    const Square& square, const std::string& number) const;
    void DrawChosen(toolkit::Painter& on, const Measures& all, const toolkit::Rect& square) const;
    void DrawLegend(toolkit::Painter& on, const Measures& all) const;
    std::array<std::string, 7> WeekdaysThatFit(const Measures& all) const;

    const toolkit::Canvas& canvas_;
    Words words_;
};

}  // namespace ordalyn
