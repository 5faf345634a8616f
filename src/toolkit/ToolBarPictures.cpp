#include "toolkit/ToolBarPictures.h"

#include <array>
#include <cmath>
#include <span>

namespace ordalyn::toolkit {

namespace {

// Pictures are polygons on a field of 16 by 16 units, painted one over the other.
struct Point {
    double x, y;
};

enum class Ink { Lines, Accent, None };  // None takes away what lies below

struct Shape {
    Ink ink;
    std::span<const Point> corners;
};

constexpr Point kFunnel[] = {{1, 2},      {15, 2},     {15, 3.8}, {9.9, 9},
                             {9.9, 14.6}, {6.1, 12.4}, {6.1, 9},  {1, 3.8}};
constexpr Point kFunnelInside[] = {{3.1, 3.3},  {12.9, 3.3}, {8.6, 7.8},
                                   {8.6, 12.3}, {7.4, 11.6}, {7.4, 7.8}};
constexpr Point kCrossGapDown[] = {{8.2, 8.2}, {16, 8.2}, {16, 16}, {8.2, 16}};
constexpr Point kCrossDown[] = {{9.2, 10.4}, {10.4, 9.2}, {15.4, 14.2}, {14.2, 15.4}};
constexpr Point kCrossUp[] = {{14.2, 9.2}, {15.4, 10.4}, {10.4, 15.4}, {9.2, 14.2}};
constexpr Point kMark[] = {{4, 4}, {12, 4}, {12, 12}, {4, 12}};

constexpr Shape kApplyFilter[] = {{Ink::Lines, kFunnel}, {Ink::Accent, kFunnelInside}};
constexpr Shape kRemoveFilter[] = {{Ink::Lines, kFunnel},
                                   {Ink::None, kFunnelInside},
                                   {Ink::None, kCrossGapDown},
                                   {Ink::Lines, kCrossDown},
                                   {Ink::Lines, kCrossUp}};
constexpr Shape kPlain[] = {{Ink::Lines, kMark}};

struct Drawing {
    std::string_view name;
    std::span<const Shape> shapes;
};

constexpr Drawing kDrawings[] = {{kApplyFilterImage, kApplyFilter},
                                 {kRemoveFilterImage, kRemoveFilter}};

std::span<const Shape> ShapesOf(std::string_view name) {
    for (const Drawing& drawing : kDrawings) {
        if (drawing.name == name)
            return drawing.shapes;
    }
    return kPlain;
}

// Even-odd rule.
bool Inside(std::span<const Point> corners, const Point& p) {
    bool inside = false;
    for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
        const Point& a = corners[i];
        const Point& b = corners[before];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

Ink InkAt(std::span<const Shape> shapes, const Point& p) {
    Ink ink = Ink::None;
    for (const Shape& shape : shapes) {
        if (Inside(shape.corners, p))
            ink = shape.ink;
    }
    return ink;
}

constexpr int kSamples = 6;  // in each direction, of each pixel

std::uint32_t PixelAt(std::span<const Shape> shapes, int x, int y, double unit,
                      const PictureColors& colors) {
    std::array<int, 2> hits = {0, 0};
    for (int i = 0; i < kSamples * kSamples; ++i) {
        const int row = i / kSamples;
        const Point p = {(x + (i % kSamples + 0.5) / kSamples) * unit,
                         (y + (row + 0.5) / kSamples) * unit};
        const Ink ink = InkAt(shapes, p);
        if (ink != Ink::None)
            ++hits[ink == Ink::Lines ? 0 : 1];
    }
    const auto part = [&](unsigned shift) {
        const double sum = hits[0] * double((colors.lines >> shift) & 0xFFU) +
                           hits[1] * double((colors.accent >> shift) & 0xFFU);
        return static_cast<std::uint32_t>(std::lround(sum / (kSamples * kSamples))) << shift;
    };
    const double alpha = 255.0 * (hits[0] + hits[1]) / (kSamples * kSamples);
    return static_cast<std::uint32_t>(std::lround(alpha)) << 24U | part(16) | part(8) | part(0);
}

}  // namespace

Picture DrawToolBarPicture(std::string_view name, int size, const PictureColors& colors) {
    const std::span<const Shape> shapes = ShapesOf(name);
    const double unit = 16.0 / size;
    Picture picture;
    picture.size = size;
    picture.pixels.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            picture.pixels.push_back(PixelAt(shapes, x, y, unit, colors));
    }
    return picture;
}

}  // namespace ordalyn::toolkit
