#include "windows/calendar/CalendarPicture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "support/toolkit/MemoryToolkit.h"
#include "toolkit/TextColors.h"
#include "windows/calendar/Shades.h"

namespace ordalyn::test {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year;
using std::chrono::year_month_day;
using testing::IsEmpty;
using toolkit::Color;
using toolkit::Contrast;
using toolkit::Rect;
using toolkit::Twips;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = toolkit::Kind::Canvas, .name = "cnv", .bounds = {0, 0, 9600, 8400}}};
constexpr toolkit::FormDesign kDesign = {"frmPicture", "", {10000, 9000}, {}, kControls};

class Picture : public testing::Test {
  protected:
    Picture() {
        canvas.Paint.Subscribe([this](toolkit::Painter& on) { picture.Draw(on, content); });
        Use(2024);
        UseWords(std::chrono::Monday);
        canvas.SetForeColor(0x000000);
        canvas.SetBackColor(0xFFFFFF);
        form.Show();
    }
    void Use(int number) {
        content = {};
        content.year = year(number);
        content.days.resize(year(number).is_leap() ? 366 : 365);
    }
    void UseWords(weekday first) {
        CalendarPicture::Words words;
        words.months.fill("Month");
        words.weekdays = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
        words.firstWeekday = first;
        words.fewer = "Fewer";
        words.more = "More";
        words.failed = "Failed";
        picture.SetWords(words);
    }
    CalendarPicture::Square& On(int month, int day) {
        return content.days.at(static_cast<std::size_t>(
            (sys_days(content.year / month / day) - sys_days(content.year / 1 / 1)).count()));
    }
    Rect SquareOf(int month, int day) const {
        return picture.SquareOf(sys_days(content.year / month / day));
    }
    std::vector<Rect> Squares() const {
        std::vector<Rect> squares;
        for (sys_days day = content.year / 1 / 1; day <= sys_days(content.year / 12 / 31);
             day += days(1))
            squares.push_back(picture.SquareOf(day));
        return squares;
    }
    std::vector<Drawn> Draw() { return MemoryToolkit::Paint(canvas).drawn; }
    std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (const Drawn& drawn : Draw()) {
            if (drawn.what == Drawn::What::Text)
                texts.push_back(drawn.text);
        }
        return texts;
    }
    // The last that was filled with it.
    Color ColorIn(const Rect& area) {
        Color color = -1;
        for (const Drawn& drawn : Draw()) {
            if (drawn.what == Drawn::What::Fill && drawn.area == area)
                color = drawn.color;
        }
        return color;
    }

    MemoryToolkit kit;
    toolkit::Form form{kit, kDesign};
    toolkit::Canvas& canvas = form.Get<toolkit::Canvas>("cnv");
    CalendarPicture picture{canvas};
    CalendarPicture::Content content;
};

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

TEST_F(Picture, EachDayIsASquareOfItsOwnInsideTheCanvasAtEverySize) {
    for (const double pixel : {15.0, 10.0, 1440 / 168.0}) {
        kit.twipsPerPixelX = kit.twipsPerPixelY = pixel;
        for (const toolkit::Size& size :
             {toolkit::Size{8400, 7000}, {3000, 9000}, {12000, 3500}, {5003, 5001}}) {
            canvas.Move({0, 0, size.width, size.height});
            const std::vector<Rect> squares = Squares();
            for (std::size_t i = 0; i < squares.size(); ++i) {
                const Rect& square = squares[i];
                EXPECT_EQ(square.width, square.height);
                EXPECT_EQ(square.width, squares[0].width);
                EXPECT_GT(square.width, 0);
                EXPECT_GE(square.left, 0);
                EXPECT_GE(square.top, 0);
                EXPECT_LE(square.left + square.width, size.width);
                EXPECT_LE(square.top + square.height, size.height);
                EXPECT_NEAR(std::remainder(square.left, pixel), 0, 0.05);
                EXPECT_NEAR(std::remainder(square.top, pixel), 0, 0.05);
                EXPECT_NEAR(std::remainder(square.width, pixel), 0, 0.05);
                for (std::size_t j = 0; j < i; ++j)
                    ASSERT_FALSE(Overlap(square, squares[j])) << i << ' ' << j;
            }
        }
    }
}

TEST_F(Picture, TheDayAtAPlaceIsThatOfTheSquare) {
    for (const int number : {2023, 2024}) {
        Use(number);
        for (sys_days day = content.year / 1 / 1; day <= sys_days(content.year / 12 / 31);
             day += days(1)) {
            const Rect square = picture.SquareOf(day);
            EXPECT_EQ(picture.DayAt(content.year, square.left, square.top), day);
            EXPECT_EQ(picture.DayAt(content.year, square.left + square.width - 1,
                                    square.top + square.height - 1),
                      day);
            EXPECT_NE(picture.DayAt(content.year, square.left + square.width, square.top), day);
        }
        EXPECT_EQ(picture.DayAt(content.year, 0, 0), std::nullopt);
    }
}

TEST_F(Picture, WeeksAreRowsThatBeginWithTheFirstDayOfTheWeek) {
    for (const weekday first : {std::chrono::Monday, std::chrono::Sunday, std::chrono::Saturday}) {
        UseWords(first);
        for (int day = 1; day < 31; ++day) {
            const sys_days date = year(2024) / 3 / day;
            const Rect here = picture.SquareOf(date);
            const Rect next = picture.SquareOf(date + days(1));
            if (weekday(date + days(1)) == first) {
                EXPECT_GT(next.top, here.top);
                EXPECT_LT(next.left, here.left);
            } else {
                EXPECT_EQ(next.top, here.top);
                EXPECT_GT(next.left, here.left);
            }
        }
        // The row above the squares names them in this order.
        const std::vector<std::string> texts = Texts();
        const auto month = std::find(texts.begin(), texts.end(), "Month");
        ASSERT_NE(month, texts.end());
        EXPECT_EQ(*(month + 1), first == std::chrono::Monday   ? "Mo"
                                : first == std::chrono::Sunday ? "Su"
                                                               : "Sa");
    }
}

TEST_F(Picture, WhatIsReadFromTheRightStandsFromTheRight) {
    const std::vector<Rect> before = Squares();
    canvas.SetRightToLeft(true);
    const std::vector<Rect> after = Squares();
    const Twips width = canvas.Width();
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_NEAR(after[i].left, width - before[i].left - before[i].width, 0.1);
        EXPECT_EQ(after[i].top, before[i].top);
        EXPECT_EQ(picture.DayAt(content.year, after[i].left, after[i].top),
                  sys_days(content.year / 1 / 1) + days(i));
    }
    for (const Drawn& drawn : Draw()) {
        if (drawn.text == "Month") {
            EXPECT_EQ(drawn.place, toolkit::TextPlace::Right);
        }
    }
}

TEST_F(Picture, ADayIsAsDarkAsItWasBusy) {
    for (int busyness = 0; busyness <= kBusiest; ++busyness)
        On(5, 10 + busyness).busyness = busyness;
    for (int busyness = 0; busyness <= kBusiest; ++busyness)
        EXPECT_EQ(ColorIn(SquareOf(5, 10 + busyness)), ShadeOf(busyness, 0x000000, 0xFFFFFF));
}

TEST_F(Picture, WhereSomethingFailedIsAMarkThatIsSeenOnEveryShade) {
    for (const auto& [text, background] : {std::pair<Color, Color>{0x000000, 0xFFFFFF},
                                           {0xFFFFFF, 0x000000},
                                           {0xD0D0D0, 0x2B2B2B},
                                           {0x800000, 0xE0FFFF}}) {
        canvas.SetForeColor(text);
        canvas.SetBackColor(background);
        for (int busyness = 1; busyness <= kBusiest; ++busyness) {
            On(6, 20) = {busyness, true};
            On(6, 21) = {busyness, false};
            const auto marks = [&](int day) {
                std::vector<Drawn> found;
                const Rect square = SquareOf(6, day);
                for (const Drawn& drawn : Draw()) {
                    if (drawn.what == Drawn::What::Fill && Overlap(drawn.area, square) &&
                        !(drawn.area == square))
                        found.push_back(drawn);
                }
                return found;
            };
            const std::vector<Drawn> failed = marks(20);
            ASSERT_EQ(failed.size(), 2U);
            // A bar between lines of background.
            EXPECT_EQ(failed[0].color, background);
            EXPECT_EQ(failed[0].area.top + kit.twipsPerPixelX, failed[1].area.top);
            EXPECT_EQ(failed[1].area.height + 2 * kit.twipsPerPixelX, failed[0].area.height);
            EXPECT_GE(Contrast(failed[1].color, background), 3) << busyness;
            EXPECT_GE(failed[1].area.height, 2 * kit.twipsPerPixelX);
            EXPECT_THAT(marks(21), IsEmpty());
        }
    }
}

TEST_F(Picture, NumbersCanBeReadOnEveryShade) {
    for (const auto& [text, background] : {std::pair<Color, Color>{0x000000, 0xFFFFFF},
                                           {0xD0D0D0, 0x2B2B2B},
                                           {0x909090, 0x808080}}) {
        canvas.SetForeColor(text);
        canvas.SetBackColor(background);
        for (int busyness = 0; busyness <= kBusiest; ++busyness)
            On(1, 10 + busyness) = {busyness, busyness > 2};
        int numbers = 0;
        for (const Drawn& drawn : Draw()) {
            for (int busyness = 0; busyness <= kBusiest; ++busyness) {
                const Rect square = SquareOf(1, 10 + busyness);
                if (drawn.what == Drawn::What::Text && Overlap(drawn.area, square)) {
                    ++numbers;
                    EXPECT_EQ(drawn.text, std::to_string(10 + busyness));
                    EXPECT_GE(Contrast(drawn.color, ShadeOf(busyness, text, background)), 4.5);
                }
            }
        }
        EXPECT_EQ(numbers, kBusiest + 1);
    }
}

TEST_F(Picture, NumbersAreLeftOutWhereTheyHaveNoRoom) {
    canvas.Move({0, 0, 3200, 2800});
    for (const std::string& text : Texts())
        EXPECT_TRUE(text.empty() || !std::isdigit(static_cast<unsigned char>(text[0])) ||
                    text == "2024")
            << text;
    toolkit::Font large;
    large.size = 30;
    canvas.Move({0, 0, 9600, 8400});
    canvas.SetFont(large);
    for (const std::string& text : Texts())
        EXPECT_NE(text, "1");
}

TEST_F(Picture, WithoutAnyRoomNothingIsDrawn) {
    for (const toolkit::Size& size : {toolkit::Size{0, 0}, {300, 7000}, {8400, 300}}) {
        canvas.Move({0, 0, size.width, size.height});
        EXPECT_THAT(Draw(), IsEmpty());
        EXPECT_EQ(picture.DayAt(content.year, 10, 10), std::nullopt);
        EXPECT_EQ(picture.SquareOf(content.year / 1 / 1), Rect{});
    }
}

TEST_F(Picture, TheChosenDayHasAFrameThatIsSeenOnDarkSquaresToo) {
    const auto framed = [this](int day) {
        const Rect square = SquareOf(7, day);
        std::set<Color> colors;
        for (const Drawn& drawn : Draw()) {
            const bool left =
                drawn.what == Drawn::What::Fill && drawn.area.width < square.width / 2 &&
                drawn.area.height >= square.height && drawn.area.left <= square.left &&
                drawn.area.left + drawn.area.width >= square.left;
            if (left && drawn.area.top <= square.top &&
                drawn.area.top + drawn.area.height >= square.top + square.height)
                colors.insert(drawn.color);
        }
        return colors;
    };
    On(7, 15).busyness = kBusiest;
    EXPECT_THAT(framed(15), IsEmpty());
    content.chosen = sys_days(year(2024) / 7 / 15);
    EXPECT_EQ(framed(15), (std::set<Color>{0x000000, 0xFFFFFF}));
    EXPECT_THAT(framed(22), IsEmpty());
    content.chosen = sys_days(year(2023) / 7 / 15);
    EXPECT_THAT(framed(15), IsEmpty()) << "of another year";
}

TEST_F(Picture, TheDayThatKeysAreForIsMarkedWhileTheCanvasHasTheFocus) {
    const auto marks = [this] {
        std::vector<Rect> found;
        for (const Drawn& drawn : Draw()) {
            if (drawn.what == Drawn::What::FocusMark)
                found.push_back(drawn.area);
        }
        return found;
    };
    content.current = sys_days(year(2024) / 12 / 31);
    canvas.SetFocus();
    ASSERT_EQ(marks().size(), 1U);
    EXPECT_TRUE(Overlap(marks()[0], SquareOf(12, 31)));
    kit.focus = nullptr;
    EXPECT_THAT(marks(), IsEmpty());
}

TEST_F(Picture, SaysWhatTheShadesAndTheMarkMean) {
    const std::vector<std::string> texts = Texts();
    EXPECT_EQ(texts.front(), "2024");
    ASSERT_GE(texts.size(), 3U);
    EXPECT_EQ(std::vector<std::string>(texts.end() - 3, texts.end()),
              (std::vector<std::string>{"Fewer", "More", "Failed"}));
}

TEST_F(Picture, LongNamesOfWeekdaysAreCutToALetter) {
    CalendarPicture::Words words;
    words.weekdays = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Ätna"};
    picture.SetWords(words);
    const std::vector<std::string> texts = Texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Ä"), 12);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Monday"), 0);
}

}  // namespace
}  // namespace ordalyn::test
