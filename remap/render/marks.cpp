// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/marks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "remap/image/levels/pixel_levels.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

// Letters stand on lines of a grid 4 wide and 6 high: two digits a point, points joined by lines, a
// blank where the pen is lifted.
struct Glyph {
    char letter;
    std::string_view pen;
};

constexpr std::array glyphs{
    Glyph{'0', "010516364541301001"},
    Glyph{'1', "052620 1030"},
    Glyph{'2', "051636454433010040"},
    Glyph{'3', "0516364544332313 334241301001"},
    Glyph{'4', "30360242"},
    Glyph{'5', "460603334241301001"},
    Glyph{'6', "453616050110304142331302"},
    Glyph{'7', "064620"},
    Glyph{'8', "13040516364544331302011030414233"},
    Glyph{'9', "011030414536160504133344"},
    Glyph{'N', "00064046"},
    Glyph{'E', "46060040 0333"},
    Glyph{'S', "453616050413334241301001"},
    Glyph{'W', "0610233046"},
};
constexpr double gridWidth = 4.0;
constexpr double gridHeight = 6.0;
constexpr double advance = 5.5;  // from letter to letter

std::string_view PenOf(char letter) {
    const auto* const glyph = std::ranges::find(glyphs, letter, &Glyph::letter);
    return glyph == glyphs.end() ? std::string_view() : glyph->pen;
}

// So many that no more than ten angles are written.
double StepFor(double range) {
    constexpr std::array steps{1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 45.0};
    const auto* const step =
        std::ranges::find_if(steps, [range](double each) { return range / each <= 10.0; });
    return step == steps.end() ? 90.0 : *step;
}

double Share(double distance, double halfWidth) {
    return std::clamp(halfWidth + 0.5 - distance, 0.0, 1.0);
}

std::uint8_t Mixed(std::uint8_t level, double light, double border) {
    const double dark = level * (1.0 - 0.75 * border);
    return static_cast<std::uint8_t>(std::lround(dark * (1.0 - light) + 255.0 * light));
}

// The same for other formats; what is transparent lies under the mark.
PixelLevels Mixed(const PixelLevels& levels, const PixelLevels& white, double light,
                  double border) {
    const double share = (1.0 - 0.75 * border) * (1.0 - light);
    const auto mixed = [&](double PixelLevels::*level) {
        return levels.*level * share + white.*level * light;
    };
    return {mixed(&PixelLevels::blue), mixed(&PixelLevels::green), mixed(&PixelLevels::red),
            1.0 - share * (1.0 - levels.alpha)};
}

void MarkPixel(std::uint8_t* pixel, PixelFormat format, double light, double border) {
    if (format != PixelFormat::Bgr8) {
        const PixelLevels white = LevelsOf({255, 255, 255, 255}, format);
        PutLevels(pixel, Mixed(LevelsAt(pixel, format), white, light, border), format);
        return;
    }
    for (std::size_t n = 0; n < 3; ++n) {
        pixel[n] = Mixed(pixel[n], light, border);
    }
}

}  // namespace

double Stroke::DistanceFrom(double x, double y) const {
    const double alongX = toX - fromX;
    const double alongY = toY - fromY;
    const double square = alongX * alongX + alongY * alongY;
    const double part = square > 0.0 ? ((x - fromX) * alongX + (y - fromY) * alongY) / square : 0.0;
    const double share = std::clamp(part, 0.0, 1.0);
    return std::hypot(x - fromX - share * alongX, y - fromY - share * alongY);
}

Marks::Marks(Projection projection, const ImageRecord& image, const OutputFrame& frame)
    : frame_(frame) {
    const double range = static_cast<double>(image.UnrollTo - image.UnrollFrom);
    if (!image.Marks || !InfoOf(projection).azimuths || !(std::fabs(range) > 0.0) ||
        !(image.OutputAOV > 0.0F)) {
        return;
    }
    const PixelSize whole = frame.Whole();
    letter_ = std::max(std::min(whole.width / 60.0, whole.height / 18.0), 8.0);
    halfWidth_ = std::max(letter_ / 16.0, 0.6);
    AddDirections(image);
    AddAngles(image);
}

// North is where the azimuth is 0: up on the photo. East is clockwise from it on a photo that looks
// down or ahead, and the other way on one of the sky.
void Marks::AddDirections(const ImageRecord& image) {
    const PixelSize whole = frame_.Whole();
    const std::string_view names = image.Pose == CameraPose::Up ? "NWSE" : "NESW";
    const double across = std::min(static_cast<double>(image.OutputAOV), 360.0);
    const double direction = image.UnrollDirection < 0 ? -1.0 : 1.0;
    for (std::size_t n = 0; n < names.size(); ++n) {
        const double away =
            direction * (90.0 * static_cast<double>(n) - static_cast<double>(image.UnrollStart));
        const double right = away - 360.0 * std::floor(away / 360.0);
        if (right > across) {
            continue;
        }
        const double x = right / across * whole.width;
        Add({x, 0.0, x, letter_ * 0.5});
        Add({x, static_cast<double>(whole.height), x, whole.height - letter_ * 0.5});
        const double left = std::clamp(x - letter_ / 3.0, letter_ * 0.3, whole.width - letter_);
        AddText(names.substr(n, 1), left, letter_ * 0.9);
    }
}

void Marks::AddAngles(const ImageRecord& image) {
    const PixelSize whole = frame_.Whole();
    const auto from = static_cast<double>(image.UnrollFrom);
    const auto to = static_cast<double>(image.UnrollTo);
    const double step = StepFor(std::fabs(to - from));
    const double low = std::min(from, to);
    const double high = std::max(from, to);
    for (auto n = static_cast<int>(std::ceil(low / step)); n * step <= high; ++n) {
        const double angle = n * step;
        const double y = (angle - from) / (to - from) * whole.height;
        if (y < letter_ * 2.5 || y > whole.height - letter_) {
            continue;  // the directions stand there
        }
        const std::string text = std::to_string(std::lround(angle));
        Add({0.0, y, letter_ * 0.5, y});
        Add({static_cast<double>(whole.width), y, whole.width - letter_ * 0.5, y});
        AddText(text, letter_ * 0.9, y - letter_ / 2.0);
        AddText(text, whole.width - letter_ * 0.9 - WidthOf(text), y - letter_ / 2.0);
    }
}

double Marks::WidthOf(std::string_view text) const {
    return (advance * static_cast<double>(text.size()) - (advance - gridWidth)) * letter_ /
           gridHeight;
}

void Marks::AddText(std::string_view text, double x, double y) {
    const double unit = letter_ / gridHeight;
    for (const char letter : text) {
        const std::string_view pen = PenOf(letter);
        for (std::size_t n = 0; n + 3 < pen.size(); ++n) {
            if (pen[n] == ' ' || pen[n + 1] == ' ' || pen[n + 2] == ' ' || pen[n + 3] == ' ') {
                continue;
            }
            Add({x + unit * (pen[n] - '0'), y + unit * (pen[n + 1] - '0'),
                 x + unit * (pen[n + 2] - '0'), y + unit * (pen[n + 3] - '0')});
            ++n;
        }
        x += advance * unit;
    }
}

// From the frame's borders to pixels of the result, whose middles are at whole numbers.
void Marks::Add(const Stroke& stroke) {
    const double left = frame_.corner.x + 0.5;
    const double low = frame_.corner.y + 0.5;
    strokes_.push_back(
        {stroke.fromX - left, stroke.fromY - low, stroke.toX - left, stroke.toY - low});
}

void Marks::DrawRow(Bitmap& result, std::int32_t row) const {
    const double reach = halfWidth_ * 2.2 + 0.5;
    const std::int32_t width = result.Size().width;
    std::vector<double> nearest(static_cast<std::size_t>(width), reach + 1.0);
    for (const Stroke& stroke : strokes_) {
        const auto [low, high] = std::minmax(stroke.fromY, stroke.toY);
        if (row < low - reach || row > high + reach) {
            continue;
        }
        const auto [left, right] = std::minmax(stroke.fromX, stroke.toX);
        const double first = std::floor(std::clamp(left - reach, 0.0, width - 1.0));
        const double last = std::ceil(std::clamp(right + reach, 0.0, width - 1.0));
        for (auto x = static_cast<std::int32_t>(first); x <= static_cast<std::int32_t>(last); ++x) {
            double& distance = nearest[static_cast<std::size_t>(x)];
            distance = std::min(distance, stroke.DistanceFrom(x, row));
        }
    }
    std::uint8_t* const pixels = result.ScanLine(row).data();
    for (std::int32_t x = 0; x < width; ++x) {
        const double distance = nearest[static_cast<std::size_t>(x)];
        if (distance <= reach) {
            MarkPixel(pixels + x * PixelStep(result.Format()), result.Format(),
                      Share(distance, halfWidth_), Share(distance, halfWidth_ * 2.2));
        }
    }
}

}  // namespace varnel
