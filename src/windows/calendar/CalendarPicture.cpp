#include "windows/calendar/CalendarPicture.h"

#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "windows/calendar/Shades.h"

namespace ordalyn {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year_month_day;
using toolkit::Color;
using toolkit::Painter;
using toolkit::Rect;
using toolkit::TextPlace;
using toolkit::Twips;

namespace {

constexpr int kMonths = 12;
constexpr Twips kWeeks = 6;  // that a month can touch
constexpr double kReadable = 4.5, kSeen = 3;
constexpr Color kDarkRed = 0x0000B4, kLightRed = 0x7070FF, kPaleRed = 0xD2D2FF;

Rect Shrunk(const Rect& area, Twips by) {
    return {area.left + by, area.top + by, std::max<Twips>(area.width - 2 * by, 0),
            std::max<Twips>(area.height - 2 * by, 0)};
}

void DrawFrame(Painter& on, const Rect& area, Twips thickness, Color color) {
    on.Fill({area.left, area.top, area.width, thickness}, color);
    on.Fill({area.left, area.top + area.height - thickness, area.width, thickness}, color);
    on.Fill({area.left, area.top, thickness, area.height}, color);
    on.Fill({area.left + area.width - thickness, area.top, thickness, area.height}, color);
}

}  // namespace

Twips CalendarPicture::Measures::Whole(Twips length) const {
    return std::floor(std::max<Twips>(length, 0) / pixel + 0.01F) * pixel;
}

// As many months beside each other as make the squares largest.
CalendarPicture::Measures CalendarPicture::Measure() const {
    Measures all;
    all.pixel = canvas_.WholePixels(0);
    all.width = all.Whole(canvas_.Width());
    const toolkit::Size number = canvas_.Measure("30");
    all.line = all.Whole(number.height) + 2 * all.pixel;
    all.between = all.Whole(all.line / 2);
    const Twips around = 2 * (all.line + all.between);  // the year and the legend
    for (const int columns : {2, 3, 4, 6}) {
        const auto across = static_cast<Twips>(columns);
        const int rows = kMonths / columns;
        const auto down = static_cast<Twips>(rows);
        // A month is seven squares wide, one lies between two, and half of one around all.
        const Twips wide = all.Whole(canvas_.Width() / (8 * across - 0.5F));
        const Twips high = all.Whole(
            (canvas_.Height() - around - (2 * all.line + all.between) * down) / (kWeeks * down));
        const Twips pitch = std::min(wide, high);
        if (pitch <= all.pitch)
            continue;
        all.pitch = pitch;
        all.columns = columns;
        all.left = all.Whole((all.width - pitch * (8 * across - 1)) / 2);
        all.monthsTop = all.line + all.between;
        all.legendTop = all.monthsTop + (2 * all.line + all.between + kWeeks * pitch) * down;
    }
    all.gap = std::max(all.Whole(all.pitch / 9), 2 * all.pixel);
    all.numbers = number.width + 2 * all.pixel <= all.Square() &&
                  number.height <= all.Square() + 2 * all.pixel;
    return all;
}

// What is read from right to left stands from right to left.
Rect CalendarPicture::Placed(const Measures& all, Rect area) const {
    if (canvas_.RightToLeft())
        area.left = all.width - area.left - area.width;
    return area;
}

Rect CalendarPicture::MonthArea(const Measures& all, unsigned month) const {
    const int place = static_cast<int>(month) - 1;
    const int row = place / all.columns;
    const Twips height = 2 * all.line + kWeeks * all.pitch;
    return {all.left + static_cast<Twips>(place % all.columns) * 8 * all.pitch,
            all.monthsTop + static_cast<Twips>(row) * (height + all.between), all.MonthWidth(),
            height};
}

Rect CalendarPicture::SquareArea(const Measures& all, Date date) const {
    const year_month_day day(date);
    const Rect month = MonthArea(all, static_cast<unsigned>(day.month()));
    const weekday first(sys_days(day.year() / day.month() / 1));
    // Weekdays subtract to 0 to 6.
    const auto column = (weekday(date) - words_.firstWeekday).count();
    const auto before = (first - words_.firstWeekday).count();
    const auto row = (before + static_cast<long>(static_cast<unsigned>(day.day())) - 1) / 7;
    return {month.left + static_cast<Twips>(column) * all.pitch,
            month.top + 2 * all.line + static_cast<Twips>(row) * all.pitch, all.Square(),
            all.Square()};
}

Rect CalendarPicture::SquareOf(Date date) const {
    const Measures all = Measure();
    return all.pitch > all.gap ? Placed(all, SquareArea(all, date)) : Rect{};
}

std::optional<CalendarPicture::Date> CalendarPicture::DayAt(std::chrono::year year, Twips x,
                                                            Twips y) const {
    const Measures all = Measure();
    if (all.pitch <= all.gap)
        return std::nullopt;
    for (Date date = sys_days(year / 1 / 1); date <= sys_days(year / 12 / 31); date += days(1)) {
        const Rect square = Placed(all, SquareArea(all, date));
        if (x >= square.left && x < square.left + square.width && y >= square.top &&
            y < square.top + square.height)
            return date;
    }
    return std::nullopt;
}

void CalendarPicture::DrawWords(Painter& on, const std::string& words) const {
    on.Text({0, 0, canvas_.Width(), canvas_.Height()}, words, canvas_.ShownColors().text,
            TextPlace::Centre);
}

void CalendarPicture::Draw(Painter& on, const Content& content) const {
    const Measures all = Measure();
    if (all.pitch <= all.gap)
        return;  // no room for anything
    on.Text(Placed(all, {0, 0, all.width, all.line}),
            std::to_string(static_cast<int>(content.year)), canvas_.ShownColors().text,
            TextPlace::Centre);
    const std::array<std::string, 7> weekdays = WeekdaysThatFit(all);
    for (unsigned month = 1; month <= kMonths; ++month)
        DrawMonth(on, all, month, weekdays);
    // Behind all squares: it reaches into the gaps around its own.
    Date date = sys_days(content.year / 1 / 1);
    for (const Square& square : content.days) {
        const auto number = static_cast<unsigned>(year_month_day(date).day());
        DrawSquare(on, all, Placed(all, SquareArea(all, date)), square, std::to_string(number));
        date += days(1);
    }
    const auto isShown = [&](const std::optional<Date>& day) {
        return day && year_month_day(*day).year() == content.year;
    };
    if (isShown(content.chosen))
        DrawChosen(on, all, Placed(all, SquareArea(all, *content.chosen)));
    if (isShown(content.current)) {
        const toolkit::TextColors colors = canvas_.ShownColors();
        const auto place =
            static_cast<std::size_t>((*content.current - sys_days(content.year / 1 / 1)).count());
        on.MarkFocus(Shrunk(Placed(all, SquareArea(all, *content.current)), 2 * all.pixel),
                     ShadeOf(content.days.at(place).busyness, colors.text, colors.background));
    }
    DrawLegend(on, all);
}

// In the order of a week; cut to a letter, or left out, where squares are narrow.
std::array<std::string, 7> CalendarPicture::WeekdaysThatFit(const Measures& all) const {
    std::array<std::string, 7> names;
    for (int column = 0; column < 7; ++column)
        names.at(static_cast<std::size_t>(column)) =
            words_.weekdays.at((words_.firstWeekday + days(column)).c_encoding());
    const auto fit = [&] {
        return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
            return canvas_.Measure(name).width <= all.pitch;
        });
    };
    if (fit())
        return names;
    for (std::string& name : names)
        name = std::string(FirstCharacters(name, 1));
    return fit() ? names : std::array<std::string, 7>();
}

void CalendarPicture::DrawMonth(Painter& on, const Measures& all, unsigned month,
                                const std::array<std::string, 7>& weekdays) const {
    const Color text = canvas_.ShownColors().text;
    const TextPlace begin = canvas_.RightToLeft() ? TextPlace::Right : TextPlace::Left;
    const Rect area = MonthArea(all, month);
    on.Text(Placed(all, {area.left, area.top, area.width, all.line}), words_.months.at(month - 1),
            text, begin);
    Rect place = {area.left - all.Whole(all.gap / 2), area.top + all.line, all.pitch, all.line};
    for (const std::string& name : weekdays) {
        if (!name.empty())
            on.Text(Placed(all, place), name, text, TextPlace::Centre);
        place.left += all.pitch;
    }
}

// The mark is a bar along the lower edge: a shape, for those who see no difference of colours.
// Lines of background above and below it let it have one colour on all shades, and inside the frame
// of the chosen day.
void CalendarPicture::DrawSquare(Painter& on, const Measures& all, const Rect& area,
                                 const Square& square, const std::string& number) const {
    const toolkit::TextColors colors = canvas_.ShownColors();
    const Color shade = ShadeOf(square.busyness, colors.text, colors.background);
    on.Fill(area, shade);
    Rect inside = area;
    if (square.failed) {
        const Twips thickness = std::max(all.Whole(area.height / 6), 2 * all.pixel);
        inside.height -= thickness + 2 * all.pixel;
        const Rect strip = {area.left, area.top + inside.height, area.width,
                            thickness + 2 * all.pixel};
        on.Fill(strip, colors.background);
        on.Fill({strip.left, strip.top + all.pixel, strip.width, thickness},
                SeenOn(colors.background, {kDarkRed, kLightRed, kPaleRed, colors.text}, kSeen));
    }
    if (all.numbers && !number.empty())
        on.Text(inside, number,
                SeenOn(shade, {colors.text, colors.background, 0x000000, 0xFFFFFF}, kReadable),
                TextPlace::Centre);
}

// A frame in the gap around the square, and a line of background that sets it off a dark one.
void CalendarPicture::DrawChosen(Painter& on, const Measures& all, const Rect& square) const {
    const toolkit::TextColors colors = canvas_.ShownColors();
    DrawFrame(on, Shrunk(square, -all.gap), all.gap, colors.text);
    DrawFrame(on, square, all.pixel, colors.background);
}

void CalendarPicture::DrawLegend(Painter& on, const Measures& all) const {
    const Color text = canvas_.ShownColors().text;
    const Twips side = std::min(all.Square(), all.line);
    const Twips top = all.legendTop + all.Whole((all.line - side) / 2);
    Twips at = all.left;
    const auto word = [&](const std::string& what) {
        const Twips width = canvas_.Measure(what).width + 2 * all.pixel;
        on.Text(Placed(all, {at, all.legendTop, std::min(width, all.width - at), all.line}), what,
                text, TextPlace::Centre);
        at = all.Whole(at + width + all.between);
    };
    const auto square = [&](const Square& what) {
        DrawSquare(on, all, Placed(all, {at, top, side, side}), what, "");
        at += side + all.gap;
    };
    word(words_.fewer);
    for (int busyness = 0; busyness <= kBusiest; ++busyness)
        square({busyness, false});
    at += all.between;
    word(words_.more);
    at += all.line;
    square({1, true});
    at += all.between;
    word(words_.failed);
}

}  // namespace ordalyn
