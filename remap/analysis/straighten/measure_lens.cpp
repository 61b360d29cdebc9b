// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/measure_lens.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "remap/analysis/photo_circle.h"
#include "remap/analysis/straighten/edge_finder.h"
#include "remap/analysis/straighten/model_fit.h"
#include "remap/projection/lens_spline.h"

namespace varnel {

namespace {

// The lens may be wrong by this much of an edge's length while edges are looked for, first by the
// guess and then by what was solved so far.
constexpr std::array slacks{0.003, 0.0015, 0.0005};

EdgePoint CentreOf(PixelSize size, const std::optional<ImageCircle>& circle) {
    return circle ? EdgePoint{circle->x, size.height - circle->y}
                  : EdgePoint{size.width / 2.0, size.height / 2.0};
}

double RimOf(PixelSize size, const std::optional<ImageCircle>& circle) {
    return circle ? circle->radius : 0.5 * std::hypot(size.width, size.height);
}

class Measuring {
  public:
    Measuring(const std::vector<MeasuredPhoto>& photos, const MeasureOptions& options)
        : photos_(photos), options_(options), size_(photos.front().bitmap->Size()) {}

    Measurement Run() {
        FindCircle();
        Begin();
        if (measured_.edges.size() < leastEdges) {
            measured_.error = MeasureError::TooFewEdges;
            return std::move(measured_);
        }
        const LensConstraints known = Known(*measured_.start);
        Solve(known);
        for (std::size_t n = 1; n < slacks.size() && options_.edges.empty(); ++n) {
            LookAgain(slacks[n], known);
        }
        Store(known.reach);
        return std::move(measured_);
    }

  private:
    void FindCircle() {
        circle_ = options_.circle;
        options_.stop();
        if (!circle_ && options_.findCircle) {
            measured_.circle = FindPhotoCircle(photos_.front().bitmap);
            circle_ = measured_.circle;
        }
    }

    // The start is what explains the edges better, or what longer edges are found by.
    void Begin() {
        const LensView typical = TypicalFisheye(size_, circle_);
        measured_.start = options_.present ? *options_.present : typical;
        measured_.edges =
            options_.edges.empty() ? Edges(*measured_.start, slacks[0]) : options_.edges;
        if (!options_.present) {
            return;
        }
        bool better = false;
        if (options_.edges.empty()) {
            std::vector<EdgeTrace> others = Edges(typical, slacks[0]);
            better = TotalSpan(others) > 1.1 * TotalSpan(measured_.edges);
            if (better) {
                measured_.edges = std::move(others);
            }
        } else {
            const auto condensed = Condensed(options_.edges);
            better = NoiseOf(condensed, typical) < 0.8 * NoiseOf(condensed, *measured_.start);
        }
        if (better) {
            measured_.start = typical;
        }
    }

    static double TotalSpan(const std::vector<EdgeTrace>& edges) {
        double total = 0.0;
        for (const EdgeTrace& edge : edges) {
            total += Span(edge);
        }
        return total;
    }

    void Solve(const LensConstraints& known) {
        const LensView* const present = options_.present ? &*options_.present : nullptr;
        measured_.solved =
            SolveLens(measured_.edges, *measured_.start, known, {present, options_.stop});
    }

    std::vector<EdgeTrace> Edges(const LensView& lens, double slack) const {
        std::vector<EdgeTrace> all;
        for (std::size_t n = 0; n < photos_.size(); ++n) {
            const EdgeSearch search{
                .reach = ReachOf(circle_), .slack = slack, .stop = options_.stop};
            for (EdgeTrace& edge : FindEdges(*photos_[n].bitmap, lens, search)) {
                edge.photo = static_cast<int>(n);
                all.push_back(std::move(edge));
            }
        }
        std::ranges::stable_sort(all, std::greater(), Span);
        return all;
    }

    void LookAgain(double slack, const LensConstraints& known) {
        if (!measured_.solved->improved) {
            return;
        }
        std::vector<EdgeTrace> again = Edges(measured_.solved->lens, slack);
        if (again.size() >= leastEdges) {
            measured_.edges = std::move(again);
            Solve(known);
        }
    }

    LensConstraints Known(const LensView& guess) const {
        LensConstraints known;
        known.reach = circle_ ? circle_->radius
                              : RimOf(size_, {}) + Distance(guess.centre, CentreOf(size_, {}));
        known.centreDeviation =
            circle_ ? 0.005 * circle_->radius : 0.005 * std::max(size_.width, size_.height);
        if (circle_ && options_.circleAtNinety) {
            known.ninetyRadius = circle_->radius;
        }
        if (options_.focalMillimetres && options_.pixelsPerMillimetre) {
            known.focalPixels = *options_.focalMillimetres * *options_.pixelsPerMillimetre;
        }
        return known;
    }

    void Store(double reach) {
        const LensView& view = measured_.solved->lens;
        const bool inMillimetres = options_.pixelsPerMillimetre.has_value();
        measured_.pixelsPerUnit =
            inMillimetres ? *options_.pixelsPerMillimetre : RimOf(size_, circle_);
        SampledLens lens = ToSampledLens(view, reach, measured_.pixelsPerUnit, size_);
        lens.name = options_.lensName;
        lens.unit = inMillimetres ? SampledLens::Unit::Millimetres : SampledLens::Unit::CircleRadii;
        lens.origin.kind = LensOrigin::Kind::Measured;
        lens.origin.date = options_.date;
        lens.origin.residual = measured_.solved->heldOutAfter;
        for (const MeasuredPhoto& photo : photos_) {
            lens.origin.photos.append(photo.name);
        }
        measured_.lens = std::move(lens);
        StoreColour();
    }

    // From the first photo whose edges tell.
    void StoreColour() {
        for (std::size_t n = 0; n < photos_.size() && options_.colour && !measured_.colour; ++n) {
            std::vector<EdgeTrace> own = measured_.edges;
            std::erase_if(own,
                          [n](const EdgeTrace& edge) { return edge.photo != static_cast<int>(n); });
            measured_.colour = EstimateColour(*photos_[n].bitmap, own, measured_.solved->lens);
        }
        if (measured_.colour) {
            const auto inUnits = [this](const ColourShift& shift) {
                const double unit = measured_.pixelsPerUnit;
                return ColourShift{shift.first / unit, shift.third / unit, shift.fifth / unit};
            };
            measured_.lens.red = inUnits(measured_.colour->red.shift);
            measured_.lens.blue = inUnits(measured_.colour->blue.shift);
        }
    }

    const std::vector<MeasuredPhoto>& photos_;
    const MeasureOptions& options_;
    const PixelSize size_;
    std::optional<ImageCircle> circle_;
    Measurement measured_;
};

}  // namespace

double ReachOf(const std::optional<ImageCircle>& circle) {
    return circle ? 0.97 * circle->radius : 0.0;
}

LensView TypicalFisheye(PixelSize size, const std::optional<ImageCircle>& circle) {
    const auto scale = static_cast<float>(std::numbers::sqrt2 * RimOf(size, circle));
    return ViewOfFormula(LensKind::Sin, {scale, 0.5F}, 1.0, CentreOf(size, circle));
}

SampledLens ToSampledLens(const LensView& view, double reach, double pixelsPerUnit,
                          PixelSize size) {
    const double limit = std::clamp(view.curve.At(reach).angle, 0.1, 3.1);
    SampledLens lens;
    lens.knots =
        SampledFrom([&](double angle) { return view.curve.Radius(angle) / pixelsPerUnit; }, limit)
            .knots;
    lens.centre = LensCentre{view.centre.x, view.centre.y, size};
    lens.pixelsPerUnit = pixelsPerUnit;
    return lens;
}

Measurement MeasureLens(const std::vector<MeasuredPhoto>& photos, const MeasureOptions& options) {
    Measurement refused;
    refused.error = MeasureError::NoPhoto;
    if (photos.empty()) {
        return refused;
    }
    const PixelSize size = photos.front().bitmap->Size();
    refused.error = MeasureError::SizesDiffer;
    for (const MeasuredPhoto& photo : photos) {
        if (photo.bitmap->Size().width != size.width ||
            photo.bitmap->Size().height != size.height) {
            return refused;
        }
    }
    try {
        return Measuring(photos, options).Run();
    } catch (const MeasuringStopped&) {
        refused.error = MeasureError::Stopped;
        return refused;
    }
}

}  // namespace varnel
