// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the fine sampling is for: nearer to what a camera of the result's view would have taken than
// the classic one, with less that is not there, and steady when things move.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "base/thread_runner.h"
#include "remap/image/pixel_access.h"
#include "remap/render/reference/fine.h"
#include "remap/render/render.h"
#include "samples/light_shot.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize photoSize{480, 320};

// A 15 mm equisolid lens that fills the frame.
ImageRecord WideRecord(float outputAov) {
    ImageRecord record = testing::FisheyeRecord();
    record.LensMapScale = 30.59F;
    record.Ratio = 83.2F;
    record.ImageCircleRadius = 21.63F;
    record.OutputAOV = outputAov;
    return record;
}

const double focal = photoSize.width / 36.0 * 30.59 / 2.0;  // pixels

RayAt PhotoRays(PixelSize size) {
    const double pixels = focal * size.width / photoSize.width;
    return [size, pixels](double x, double y) {
        const double across = x - size.width / 2;
        const double up = y - size.height / 2;
        const double radius = std::hypot(across, up);
        const double angle = 2.0 * std::asin(std::min(radius / (2.0 * pixels), 1.0));
        const double aside = radius > 0.0 ? std::sin(angle) / radius : 0.0;
        return Ray{across * aside, up * aside, std::cos(angle)};
    };
}

BitmapHandle Converted(const Bitmap& photo, ImageRecord record, SamplingKind sampling,
                       const OutputWish& wish = {},
                       Projection projection = Projection::Rectilinear) {
    record.Sampling = sampling;
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(&photo);
    SilentProgress progress;
    RenderContext context{.bitmaps = bitmaps, .output = wish};
    Render(projection, record, SizeKind::Large, progress, context);
    return std::move(bitmaps.ResultBitmap);
}

// Mean squared distances in levels where both axes shrink, one of them, and none, and beside the
// photo.
using Errors = std::array<double, 4>;

// Blends of the classic sampling are rounded down.
Errors ErrorsOf(const Bitmap& result, const LightPicture& truth, double rounding,
                const std::function<std::size_t(double x, double y)>& zoneOf) {
    Errors sums{};
    Errors counts{};
    for (int y = 4; y < truth.size.height - 4; ++y) {
        for (int x = 4; x < truth.size.width - 4; ++x) {
            const std::size_t zone = zoneOf(x - truth.size.width / 2, y - truth.size.height / 2);
            const double level = LevelOf(static_cast<double>(truth.At(x, y)));
            const double error =
                result.ScanLine(y)[static_cast<std::size_t>(3 * x)] + rounding - level;
            sums[zone] += error * error;
            counts[zone] += 1.0;
        }
    }
    for (std::size_t n = 0; n < sums.size(); ++n) {
        sums[n] /= std::max(counts[n], 1.0);
    }
    return sums;
}

// How much nearer fine is, decibels.
Errors Gains(const Bitmap& photo, const ImageRecord& record, const LightPicture& truth,
             const OutputWish& wish, const std::function<std::size_t(double, double)>& zoneOf) {
    const auto errors = [&](SamplingKind sampling, double rounding) {
        return ErrorsOf(*Converted(photo, record, sampling, wish), truth, rounding, zoneOf);
    };
    const Errors classic = errors(SamplingKind::Classic, 0.5);
    const Errors fine = errors(SamplingKind::Fine, 0.0);
    Errors gains{};
    for (std::size_t n = 0; n < gains.size(); ++n) {
        gains[n] = fine[n] > 0.0 ? 10.0 * std::log10(classic[n] / fine[n]) : 0.0;
    }
    return gains;
}

// The straight view that is 1 wide at so many pixels.
RayAt StraightRays(PixelSize size, double pixels) {
    return [size, pixels](double x, double y) {
        return Ray{x - size.width / 2, y - size.height / 2, pixels};
    };
}

double PixelsOfView(double width, double degrees) {
    return width / 2.0 / std::tan(degrees * std::numbers::pi / 360.0);
}

// The smallest patches are as wide as so many pixels of the photo's middle.
PatchScene Patches(double pixels) {
    return {pixels / focal};
}

TEST(FineTruth, AWideViewIsNearerToWhatACameraTakes) {
    ThreadRunner runner;
    const PatchScene scene = Patches(1.5);
    const BitmapHandle photo = Developed(TakeLight(scene, photoSize, PhotoRays(photoSize), runner));
    const double straight = PixelsOfView(photoSize.width, 120.0);
    const LightPicture truth =
        TakeLight(scene, photoSize, StraightRays(photoSize, straight), runner);
    const auto zoneOf = [straight](double x, double y) -> std::size_t {
        const double radius = std::max(std::hypot(x, y), 1e-3);
        const double angle = std::atan(radius / straight);
        const double onPhoto = 2.0 * focal * std::sin(angle / 2.0) / radius;
        if (std::fabs(x * onPhoto) > photoSize.width / 2 - 4 ||
            std::fabs(y * onPhoto) > photoSize.height / 2 - 4) {
            return 3;
        }
        const double outward =
            focal * std::cos(angle / 2.0) * std::cos(angle) * std::cos(angle) / straight;
        return outward > 1.0 && onPhoto > 1.0 ? 0 : outward < 1.0 && onPhoto < 1.0 ? 2 : 1;
    };
    const Errors gains = Gains(*photo, WideRecord(120.0F), truth, {}, zoneOf);
    EXPECT_GT(gains[0], 3.5);  // shrunk
    EXPECT_GT(gains[1], 1.5);
    EXPECT_GT(gains[2], 1.0);  // stretched
}

TEST(FineTruth, AReducedViewIsFarNearer) {
    ThreadRunner runner;
    const PatchScene scene = Patches(1.5);
    const BitmapHandle photo = Developed(TakeLight(scene, photoSize, PhotoRays(photoSize), runner));
    constexpr PixelSize size{120, 80};
    const LightPicture truth =
        TakeLight(scene, size, StraightRays(size, PixelsOfView(size.width, 90.0)), runner);
    const OutputWish wish = [&](const SourceFrame& frame) {
        return OutputFrameOf(WideRecord(90.0F), frame, size);
    };
    const Errors gains = Gains(*photo, WideRecord(90.0F), truth, wish,
                               [](double, double) -> std::size_t { return 0; });
    EXPECT_GT(gains[0], 12.0);
}

// The share of a wave's strength, as what its levels are away from their mean.
double StrengthOf(const Bitmap& result) {
    double sum = 0.0;
    double squares = 0.0;
    double count = 0.0;
    for (int y = 5; y < result.Size().height - 5; ++y) {
        for (int x = 5; x < result.Size().width - 5; ++x) {
            const double level = result.ScanLine(y)[static_cast<std::size_t>(3 * x)];
            sum += level;
            squares += level * level;
            count += 1.0;
        }
    }
    return squares / count - sum * sum / (count * count);
}

// Lines that are too fine for a result 4 times as small, from just so on evenly to those that the
// photo holds: whatever it shows of them is not there.
TEST(FineTruth, WhatIsTooFineDoesNotBecomeSomethingElse) {
    ThreadRunner runner;
    const OutputWish wish = [](const SourceFrame& frame) {
        return OutputFrameOf(WideRecord(100.0F), frame,
                             {photoSize.width / 4, photoSize.height / 4});
    };
    double classic = 0.0;
    double fine = 0.0;
    double whole = 0.0;
    for (int n = 0; n < 8; ++n) {
        const double waves = (0.55 + 0.15 * n) / 4.0;  // for each pixel of the photo
        const LightScene lines = [waves](const Ray& ray) {
            const double across = std::atan2(ray.x, ray.z) * focal;
            return 0.5 + 0.4 * std::sin(across * waves * 2.0 * std::numbers::pi);
        };
        const BitmapHandle photo =
            Developed(TakeLight(lines, photoSize, PhotoRays(photoSize), runner));
        whole += StrengthOf(*photo);
        classic += StrengthOf(*Converted(*photo, WideRecord(100.0F), SamplingKind::Classic, wish));
        fine += StrengthOf(*Converted(*photo, WideRecord(100.0F), SamplingKind::Fine, wish));
    }
    EXPECT_GT(classic / whole, 0.4);
    EXPECT_LT(fine / whole, 0.12);
}

// An edge of levels 64 and 192 across the view, at so many pixels beside its middle.
BitmapHandle EdgePhoto(double shift) {
    BitmapHandle photo = NewBitmap(photoSize);
    for (int y = 0; y < photoSize.height; ++y) {
        for (int x = 0; x < photoSize.width; ++x) {
            const double share = std::clamp(
                x - photoSize.width / 2 + 0.2 * (y - photoSize.height / 2) - shift, 0.0, 1.0);
            const auto level = static_cast<std::uint8_t>(std::lround(64.0 + share * 128.0));
            SetPixelColor(photo.get(), x, y, {level, level, level, 0});
        }
    }
    return photo;
}

TEST(FineTruth, EdgesDoNotRingWhereTheViewStretches) {
    const BitmapHandle photo = EdgePhoto(0.0);
    for (const float aov : {40.0F, 120.0F}) {
        const BitmapHandle result = Converted(*photo, WideRecord(aov), SamplingKind::Fine);
        int least = 255;
        int most = 0;
        for (int y = 20; y < photoSize.height - 20; ++y) {
            for (int x = 120; x < photoSize.width - 120; ++x) {
                const int level = result->ScanLine(y)[static_cast<std::size_t>(3 * x)];
                least = std::min(least, level);
                most = std::max(most, level);
            }
        }
        // In the wide view the middle shrinks: there 3 and 7 % of the edge are allowed.
        EXPECT_GE(least, aov == 40.0F ? 64 : 64 - 9);
        EXPECT_LE(most, aov == 40.0F ? 192 : 192 + 4);
    }
}

// How a view changes while its scene moves by twentieths of a pixel.
class Motion {
  public:
    explicit Motion(PixelSize size)
        : size_(size), sums_(static_cast<std::size_t>(size.width * size.height)), squares_(sums_) {}

    // The next picture, and what a camera takes.
    template <class LevelAt>
    void Add(const LevelAt& levelAt, const LightPicture& truth) {
        std::vector<double> now;
        for (int y = 0; y < size_.height; ++y) {
            for (int x = 0; x < size_.width; ++x) {
                now.push_back(levelAt(x, y));
                const double error = now.back() - LevelOf(static_cast<double>(truth.At(x, y)));
                sums_[now.size() - 1] += error;
                squares_[now.size() - 1] += error * error;
            }
        }
        for (std::size_t n = 0; n < before_.size(); ++n) {
            changes += std::fabs(now[n] - before_[n]);
        }
        before_ = std::move(now);
        ++count_;
    }
    // The mean variance over time of what is not the scene's own.
    double Shimmer() const {
        double sum = 0.0;
        for (std::size_t n = 0; n < sums_.size(); ++n) {
            sum += squares_[n] / count_ - sums_[n] * sums_[n] / (count_ * count_);
        }
        return sum / static_cast<double>(sums_.size());
    }
    double changes = 0.0;  // all ups and downs

  private:
    PixelSize size_;
    std::vector<double> before_, sums_, squares_;
    double count_ = 0.0;
};

// Over the whole view, shrunk middle and stretched rim: what comes and goes without being in the
// scene is less than with a linear blend, and the picture changes less than a camera's.
TEST(FineTruth, WhatMovesByPartsOfAPixelDoesNotShimmer) {
    ThreadRunner runner;
    constexpr PixelSize size{150, 100};
    const PatchScene scene = Patches(1.5 * photoSize.width / size.width);
    const double straight = PixelsOfView(size.width, 120.0);
    Motion camera(size);
    std::array<Motion, 2> motions{Motion(size), Motion(size)};
    for (int step = 0; step <= 20; ++step) {
        // The scene turns about the upright axis.
        const double turn = step / 20.0 * photoSize.width / (size.width * focal);
        const LightScene moved = [&scene, turn](const Ray& ray) {
            return scene({ray.x * std::cos(turn) + ray.z * std::sin(turn), ray.y,
                          ray.z * std::cos(turn) - ray.x * std::sin(turn)});
        };
        const BitmapHandle photo = Developed(TakeLight(moved, size, PhotoRays(size), runner));
        const LightPicture truth = TakeLight(moved, size, StraightRays(size, straight), runner);
        camera.Add([&](int x, int y) { return LevelOf(static_cast<double>(truth.At(x, y))); },
                   truth);
        for (const SamplingKind sampling : {SamplingKind::Classic, SamplingKind::Fine}) {
            const BitmapHandle now = Converted(*photo, WideRecord(120.0F), sampling);
            motions[static_cast<std::size_t>(sampling)].Add(
                [&](int x, int y) {
                    return static_cast<double>(now->ScanLine(y)[static_cast<std::size_t>(3 * x)]);
                },
                truth);
        }
    }
    EXPECT_LT(motions[1].Shimmer(), 0.9 * motions[0].Shimmer());
    EXPECT_LT(motions[1].changes, 0.9 * camera.changes);
}

// The same photo read at 16 times 16 places of each pixel: nothing comes nearer without knowing the
// scene.
TEST(FineTruth, IsNearerToThePhotosOwnBest) {
    ThreadRunner runner;
    constexpr PixelSize size{96, 64};
    const BitmapHandle photo = Developed(
        TakeLight(Patches(1.5 * photoSize.width / size.width), size, PhotoRays(size), runner));
    for (const auto& [projection, aov] :
         {std::pair{Projection::Rectilinear, 120.0F}, std::pair{Projection::Rectilinear, 90.0F},
          std::pair{Projection::Panini, 120.0F}}) {
        SCOPED_TRACE(ToText(projection).toStdString());
        const ImageRecord record = WideRecord(aov);
        const BitmapHandle best = reference::RenderSupersampled(projection, record, *photo);
        const auto decibels = [&, kind = projection](SamplingKind sampling, double rounding) {
            const BitmapHandle result = Converted(*photo, record, sampling, {}, kind);
            double squares = 0.0;
            for (int y = 4; y < size.height - 4; ++y) {
                for (std::size_t x = 12; x < std::size_t{3} * size.width - 12; x += 3) {
                    const double error = result->ScanLine(y)[x] + rounding - best->ScanLine(y)[x];
                    squares += error * error;
                }
            }
            return 10.0 *
                   std::log10(255.0 * 255.0 * (size.width - 8) * (size.height - 8) / squares);
        };
        const double fine = decibels(SamplingKind::Fine, 0.0);
        EXPECT_GT(fine, 40.0);
        EXPECT_GT(fine, decibels(SamplingKind::Classic, 0.5) + 1.0);
    }
}

}  // namespace
}  // namespace varnel
