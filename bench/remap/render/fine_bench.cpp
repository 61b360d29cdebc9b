// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fine sampling beside the classic one: how near both come to what a camera of the result's
// view would have taken (decibels, by how the view changes the photo), and their time at 24
// megapixels on one core. Read times as ratios within one run.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <numbers>

#include "base/thread_runner.h"
#include "remap/render/render.h"
#include "samples/light_shot.h"

namespace varnel {
namespace {

constexpr double pi = std::numbers::pi;
constexpr PixelSize photoSize{1500, 1000};

// A 15 mm equisolid lens on 36 x 24 mm.
ImageRecord WideRecord(float outputAov, SamplingKind sampling) {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 36.0F;
    record.SensorHeight = 24.0F;
    record.LensMapScale = 30.59F;
    record.LensMapFactor = 0.5F;
    record.ImageCircleRadius = 21.63F;
    record.Ratio = 83.2F;
    record.InputAOV = 147.0F;
    record.OutputAOV = outputAov;
    record.EffectVarnel = 100.0F;
    record.EffectRectilinear = 100.0F;
    record.Sampling = sampling;
    return record;
}

// A circle of 180 degrees that fills a square.
ImageRecord CircularRecord(SamplingKind sampling) {
    ImageRecord record = WideRecord(180.0F, sampling);
    record.SensorWidth = record.SensorHeight = 24.0F;
    record.LensMapScale = static_cast<float>(12.0 / std::sin(pi / 4.0));
    record.ImageCircleRadius = 12.0F;
    record.Ratio = 100.0F;
    record.InputAOV = 180.0F;
    return record;
}

// Directions by the angle from the axis, for a distance from the middle; nothing beyond most.
RayAt AroundAxis(PixelSize size, const std::function<double(double)>& angleAt, double most) {
    return [=](double x, double y) -> std::optional<Ray> {
        const double across = x - size.width / 2;
        const double up = y - size.height / 2;
        const double radius = std::hypot(across, up);
        if (radius > most) {
            return std::nullopt;
        }
        const double angle = angleAt(radius);
        const double aside = radius > 0.0 ? std::sin(angle) / radius : 0.0;
        return Ray{across * aside, up * aside, std::cos(angle)};
    };
}

RayAt Equisolid(PixelSize size, double focal, double most) {
    return AroundAxis(
        size, [focal](double r) { return 2.0 * std::asin(std::min(r / (2.0 * focal), 1.0)); },
        most);
}

RayAt Straight(PixelSize size, double focal) {
    return AroundAxis(
        size, [focal](double r) { return std::atan(r / focal); }, 1e9);
}

BitmapHandle Converted(Projection projection, const ImageRecord& record, const Bitmap& photo,
                       const OutputWish& wish = {}) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(&photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .output = wish};
    Render(projection, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

using ZoneOf = std::function<int(double x, double y)>;  // from the middle; below 0: not counted

// Blends of the classic sampling are rounded down.
std::array<double, 3> Decibels(const Bitmap& result, const LightPicture& truth, double rounding,
                               const ZoneOf& zoneOf) {
    std::array<double, 3> squares{};
    std::array<double, 3> counts{};
    for (int y = 3; y < truth.size.height - 3; ++y) {
        for (int x = 3; x < truth.size.width - 3; ++x) {
            const int zone = zoneOf(x - truth.size.width / 2, y - truth.size.height / 2);
            if (zone >= 0) {
                const double error = result.ScanLine(y)[static_cast<std::size_t>(3 * x)] +
                                     rounding - LevelOf(static_cast<double>(truth.At(x, y)));
                squares[static_cast<std::size_t>(zone)] += error * error;
                counts[static_cast<std::size_t>(zone)] += 1.0;
            }
        }
    }
    for (std::size_t n = 0; n < squares.size(); ++n) {
        squares[n] =
            counts[n] > 0.0 ? 10.0 * std::log10(255.0 * 255.0 * counts[n] / squares[n]) : 0.0;
    }
    return squares;
}

struct Comparison {
    const char* name;
    Projection projection;
    std::function<ImageRecord(SamplingKind)> record;
    OutputWish wish;
    ZoneOf zoneOf;
};

void Compare(const Comparison& c, const Bitmap& photo, const LightPicture& truth) {
    for (const SamplingKind sampling : {SamplingKind::Classic, SamplingKind::Fine}) {
        const bool fine = sampling == SamplingKind::Fine;
        const auto found = Decibels(*Converted(c.projection, c.record(sampling), photo, c.wish),
                                    truth, fine ? 0.0 : 0.5, c.zoneOf);
        std::printf("%-22s %-8s %6.2f %6.2f %6.2f dB\n", c.name, fine ? "fine" : "classic",
                    found[0], found[1], found[2]);
    }
}

// Whether both axes shrink (0), one (1) or none (2), on the photo.
ZoneOf ZonesOf(double focal, double straight) {
    return [=](double x, double y) {
        const double radius = std::max(std::hypot(x, y), 1e-3);
        const double angle = std::atan(radius / straight);
        const double around = 2.0 * focal * std::sin(angle / 2.0) / radius;
        const double outward =
            focal * std::cos(angle / 2.0) * std::cos(angle) * std::cos(angle) / straight;
        if (std::fabs(x * around) > photoSize.width / 2 - 4 ||
            std::fabs(y * around) > photoSize.height / 2 - 4) {
            return -1;
        }
        return outward > 1.0 && around > 1.0 ? 0 : outward < 1.0 && around < 1.0 ? 2 : 1;
    };
}

// Patches from so many pixels on in the photo's middle.
void CompareAll(double patch) {
    ThreadRunner runner;
    const double focal = photoSize.width / 36.0 * 30.59 / 2.0;
    const PatchScene scene{patch / focal};
    const BitmapHandle photo =
        Developed(TakeLight(scene, photoSize, Equisolid(photoSize, focal, 1e9), runner));
    std::printf("patches from %.1f pixels on: shrunk, mixed, stretched\n", patch);
    for (const float aov : {120.0F, 90.0F}) {
        const double straight =
            photoSize.width / 2 / std::tan(static_cast<double>(aov) * pi / 360.0);
        Compare({aov == 120.0F ? "rectilinear 120" : "rectilinear 90",
                 Projection::Rectilinear,
                 [aov](SamplingKind sampling) { return WideRecord(aov, sampling); },
                 {},
                 ZonesOf(focal, straight)},
                *photo, TakeLight(scene, photoSize, Straight(photoSize, straight), runner));
    }
    constexpr PixelSize quarter{photoSize.width / 4 / 2 * 2, photoSize.height / 4};
    const auto all = [](double, double) { return 0; };
    Compare({"reduced 4 times", Projection::Rectilinear,
             [](SamplingKind sampling) { return WideRecord(90.0F, sampling); },
             [](const SourceFrame& frame) {
                 return OutputFrameOf(WideRecord(90.0F, {}), frame, quarter);
             },
             all},
            *photo, TakeLight(scene, quarter, Straight(quarter, quarter.width / 2), runner));
    constexpr PixelSize square{1000, 1000};
    const double circular = 500.0 / (2.0 * std::sin(pi / 4.0));
    const auto equidistant = [](double r) { return r / 500.0 * pi / 2.0; };
    const PatchScene patches{patch / circular};
    Compare({"circular",
             Projection::Equidistance,
             &CircularRecord,
             {},
             [](double x, double y) { return std::hypot(x, y) < 496.0 ? 0 : -1; }},
            *Developed(TakeLight(patches, square, Equisolid(square, circular, 500.0), runner)),
            TakeLight(patches, square, AroundAxis(square, equidistant, 500.0), runner));
}

// Processor seconds of the fastest of some runs.
double SecondsOf(const ImageRecord& record, Bitmaps& bitmaps) {
    double least = 1e9;
    for (int run = 0; run < 5; ++run) {
        SilentProgress silent;
        RenderContext context{bitmaps};
        const std::clock_t start = std::clock();
        Render(Projection::Rectilinear, record, SizeKind::Large, silent, context);
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

BitmapHandle Grain(PixelFormat format) {
    BitmapHandle bitmap = NewBitmap({6000, 4000}, format);
    unsigned grain = 1;
    for (int y = 0; y < 4000; ++y) {
        for (std::uint8_t& byte : bitmap->ScanLine(y)) {
            grain = grain * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(120 + (grain >> 27) + ((y / 40) % 2) * 60);
        }
    }
    return bitmap;
}

void CompareTimes() {
    for (const float aov : {120.0F, 90.0F}) {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = Grain(PixelFormat::Bgr8);
        const double classic = SecondsOf(WideRecord(aov, SamplingKind::Classic), bitmaps);
        const double fine = SecondsOf(WideRecord(aov, SamplingKind::Fine), bitmaps);
        bitmaps.FullSourceBitmap = Grain(PixelFormat::Bgr16);
        const double deep = SecondsOf(WideRecord(aov, SamplingKind::Fine), bitmaps);
        std::printf(
            "rectilinear %.0f, 24 megapixels: classic %.3f s, fine %.3f s (%.2f), fine of 16 bits "
            "%.3f s (%.2f of 8)\n",
            static_cast<double>(aov), classic, fine, fine / classic, deep, deep / fine);
    }
}

}  // namespace
}  // namespace varnel

int main() {
    for (const double patch : {1.2, 2.5}) {
        varnel::CompareAll(patch);
    }
    varnel::CompareTimes();
}
