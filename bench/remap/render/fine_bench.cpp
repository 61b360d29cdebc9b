// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fine sampling beside the classic one: how near both come to what a camera of the result's
// view would have taken (decibels, by how the view changes the photo) and to the best that the
// photo itself allows, what is left of lines too fine for the result, and their time. Read times as
// ratios within one run.

#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "base/thread_runner.h"
#include "bench/remap/render/fine_views.h"
#include "remap/image/levels/transfer_curve.h"
#include "remap/render/reference/fine.h"

namespace varnel::bench {
namespace {

constexpr PixelSize photoSize{1500, 1000};
constexpr std::array samplings{SamplingKind::Classic, SamplingKind::Fine};

const char* NameOf(SamplingKind sampling) {
    return sampling == SamplingKind::Fine ? "fine" : "classic";
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
    for (const SamplingKind sampling : samplings) {
        const bool fine = sampling == SamplingKind::Fine;
        const auto found = Decibels(*Converted(c.projection, c.record(sampling), photo, c.wish),
                                    truth, fine ? 0.0 : 0.5, c.zoneOf);
        std::printf("%-22s %-8s %6.2f %6.2f %6.2f dB\n", c.name, NameOf(sampling), found[0],
                    found[1], found[2]);
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
    static constexpr PixelSize quarter{photoSize.width / 4 / 2 * 2, photoSize.height / 4};
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

// ---- beside the inner truth ----

// The same photo read at 16 times 16 places of each pixel.
void CompareInnerTruth(double patch) {
    constexpr PixelSize size{240, 160};
    const double focal = size.width / 36.0 * 30.59 / 2.0;
    ThreadRunner runner;
    const BitmapHandle photo =
        Developed(TakeLight(PatchScene{patch / focal}, size, Equisolid(size, focal, 1e9), runner));
    for (const float aov : {120.0F, 90.0F}) {
        const BitmapHandle truth = reference::RenderSupersampled(
            Projection::Rectilinear, WideRecord(aov, SamplingKind::Fine), *photo);
        for (const SamplingKind sampling : samplings) {
            const BitmapHandle result =
                Converted(Projection::Rectilinear, WideRecord(aov, sampling), *photo);
            double squares = 0.0;
            for (int y = 3; y < size.height - 3; ++y) {
                for (int x = 3; x < size.width - 3; ++x) {
                    const auto at = static_cast<std::size_t>(3 * x);
                    const double rounding = sampling == SamplingKind::Fine ? 0.0 : 0.5;
                    const double error =
                        result->ScanLine(y)[at] + rounding - truth->ScanLine(y)[at];
                    squares += error * error;
                }
            }
            std::printf(
                "rectilinear %3.0f beside 16 x 16 places of the photo, %-8s %6.2f dB\n",
                static_cast<double>(aov), NameOf(sampling),
                10.0 * std::log10(255.0 * 255.0 * (size.width - 6) * (size.height - 6) / squares));
        }
    }
}

// ---- lines too fine for the result ----

// How far light goes up and down, as a share of what the scene's lines do.
class Strength {
  public:
    void Add(double light) {
        sum_ += light;
        squares_ += light * light;
        count_ += 1.0;
    }
    double Share() const {
        const double mean = sum_ / count_;
        return std::sqrt(std::max(squares_ / count_ - mean * mean, 0.0)) /
               (contrast / std::sqrt(2.0));
    }
    static constexpr double contrast = 0.4;

  private:
    double sum_ = 0.0;
    double squares_ = 0.0;
    double count_ = 0.0;
};

// Lines in the middle of a photo: so many for each of its pixels, turned by an angle.
LightScene Lines(double focal, double perPixel, double turn) {
    return [=](const Ray& ray) {
        const double length = std::sqrt(ray.x * ray.x + ray.y * ray.y + ray.z * ray.z);
        const double stretch = focal * std::sqrt(2.0 / (length * (length + ray.z)));
        const double way = (ray.x * std::cos(turn) + ray.y * std::sin(turn)) * stretch;
        return 0.5 + Strength::contrast * std::sin(2.0 * pi * perPixel * way + 0.3);
    };
}

// From just too fine for the result's middle to the finest that a photo holds. As in a zone plate
// finer lines count more, as their number.
void CompareLines(const char* name, PixelSize result, float aov) {
    ThreadRunner runner;
    constexpr PixelSize small{480, 320};
    const double focal = small.width / 36.0 * 30.59 / 2.0;
    const double straight = result.width / 2 / std::tan(static_cast<double>(aov) * pi / 360.0);
    const double coarsest = 0.5 * straight / focal;
    const int across = static_cast<int>(0.15 * straight);  // the shrink varies little
    const OutputWish wish = [&](const SourceFrame& frame) {
        return OutputFrameOf(WideRecord(aov, {}), frame, result);
    };
    std::array<double, 3> shares{};  // of the truth, classic, fine
    double weights = 0.0;
    constexpr int steps = 10;
    for (int n = 0; n < 3 * steps; ++n) {
        const double perPixel = coarsest + (0.5 - coarsest) * (n / 3 + 0.5) / steps;
        const LightScene lines = Lines(focal, perPixel, 0.3927 * (n % 3));
        const BitmapHandle photo =
            Developed(TakeLight(lines, small, Equisolid(small, focal, 1e9), runner));
        const LightPicture truth = TakeLight(lines, result, Straight(result, straight), runner);
        const auto add = [&](std::size_t which, const std::function<double(int, int)>& lightAt) {
            Strength strength;
            for (int y = -across; y <= across; ++y) {
                for (int x = -across; x <= across; ++x) {
                    strength.Add(lightAt(result.width / 2 + x, result.height / 2 + y));
                }
            }
            shares[which] += perPixel * strength.Share();
        };
        add(0, [&](int x, int y) { return static_cast<double>(truth.At(x, y)); });
        for (const SamplingKind sampling : samplings) {
            const BitmapHandle view =
                Converted(Projection::Rectilinear, WideRecord(aov, sampling), *photo, wish);
            add(sampling == SamplingKind::Fine ? 2 : 1, [&](int x, int y) {
                const std::uint8_t level = view->ScanLine(y)[static_cast<std::size_t>(3 * x)];
                return static_cast<double>(TransferCurve::Srgb()->LightOf(level));
            });
        }
        weights += perPixel;
    }
    std::printf("%s, too fine lines left: a camera %.1f, classic %.1f, fine %.1f %%\n", name,
                100.0 * shares[0] / weights, 100.0 * shares[1] / weights,
                100.0 * shares[2] / weights);
}

}  // namespace
}  // namespace varnel::bench

// With a word: only how near the samplings come, only the lines or only the times, or those of
// views whose name begins with a second one.
int main(int argc, char** argv) {
    using namespace varnel::bench;
    const std::string_view only = argc > 1 ? argv[1] : "";
    if (only.empty() || only == "near") {
        for (const double patch : {1.2, 1.5, 2.5}) {
            CompareAll(patch);
        }
        CompareInnerTruth(1.5);
    }
    if (only.empty() || only == "lines") {
        CompareLines("rectilinear 120", {480, 320}, 120.0F);
        CompareLines("reduced 4 times", {120, 80}, 90.0F);
    }
    if (only.empty() || only == "times") {
        CompareTimes(argc > 2 ? argv[2] : "");
    }
}
