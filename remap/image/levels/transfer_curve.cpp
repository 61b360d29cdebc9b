// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/levels/transfer_curve.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "remap/image/levels/lcms_handles.h"
#include "remap/image/levels/srgb_curve.h"

namespace varnel {

namespace {

constexpr std::size_t most = 65535;  // of 16 bits

// The curve of a profile's green; none in profiles that are made of tables of colours. The profile
// keeps it.
const cmsToneCurve* GreenOf(cmsHPROFILE profile) {
    if (profile == nullptr || cmsGetColorSpace(profile) != cmsSigRgbData) {
        return nullptr;
    }
    return static_cast<const cmsToneCurve*>(cmsReadTag(profile, cmsSigGreenTRCTag));
}

// From 0 to 1 as a curve has to be, and rising everywhere: a thousandth of a straight line keeps
// apart what the curve itself makes equal.
std::vector<double> Rising(const std::function<double(double)>& lightOf) {
    constexpr double straight = 0.001;
    const double black = lightOf(0.0);
    const double range = lightOf(1.0) - black;
    if (!(range > 0.0)) {
        return {};
    }
    std::vector<double> light;
    light.reserve(most + 1);
    double highest = 0.0;
    for (std::size_t n = 0; n <= most; ++n) {
        const double sample = static_cast<double>(n) / most;
        highest = std::clamp((lightOf(sample) - black) / range, highest, 1.0);
        light.push_back((highest + straight * sample) / (1.0 + straight));
    }
    return light;
}

// Where a rising table has a value, as a share of the way through it.
double PlaceOf(const std::vector<double>& table, double value) {
    const auto above = std::ranges::upper_bound(table, value);
    if (above == table.begin() || above == table.end()) {
        return above == table.begin() ? 0.0 : 1.0;
    }
    const auto below = above - 1;
    return (static_cast<double>(below - table.begin()) + (value - *below) / (*above - *below)) /
           most;
}

}  // namespace

TransferCurve::TransferCurve(const Curve& lightOf) {
    std::vector<double> light = Rising(lightOf);
    if (light.empty()) {
        light = Rising(SrgbLight<double>);
    }
    linear_.assign(light.begin(), light.end());
    for (int n = 0; n <= rootSteps; ++n) {
        const double root = static_cast<double>(n) / rootSteps;
        byRoot_.push_back(static_cast<float>(PlaceOf(light, root * root)));
    }
    byRoot_.push_back(1.0F);
    constexpr std::size_t before = 64;  // wide enough for single precision
    slopeBeyond_ = static_cast<float>(before / ((1.0 - light[most - before]) * most));
}

TransferCurve::Handle TransferCurve::Srgb() {
    static const Handle curve = std::make_shared<const TransferCurve>(SrgbLight<double>);
    return curve;
}

TransferCurve::Handle TransferCurve::Straight() {
    return Handle(new TransferCurve());
}

bool AreLight(SampleKind samples, const QByteArray& colourProfile) {
    return samples == SampleKind::Float && colourProfile.isEmpty();
}

TransferCurve::Handle TransferCurve::Of(const Bitmap& bitmap) {
    const QByteArray& icc = bitmap.metadata.colourProfile;
    if (icc.isEmpty()) {
        return AreLight(SampleKindOf(bitmap.Format()), icc) ? Straight() : Srgb();
    }
    const ProfileHandle profile = OpenProfile(icc);
    const cmsToneCurve* const green = GreenOf(profile.get());
    if (green == nullptr) {
        return Srgb();
    }
    return std::make_shared<const TransferCurve>([green](double sample) {
        return static_cast<double>(cmsEvalToneCurveFloat(green, static_cast<float>(sample)));
    });
}

float TransferCurve::LightOf(float sample) const {
    if (IsStraight()) {
        return sample;
    }
    if (sample >= 1.0F) {
        return 1.0F + (sample - 1.0F) / slopeBeyond_;
    }
    const float place = std::max(sample, 0.0F) * static_cast<float>(most);
    const auto below = std::min(static_cast<std::size_t>(place), most - 1);
    const float part = place - static_cast<float>(below);
    return linear_[below] + (linear_[below + 1] - linear_[below]) * part;
}

float TransferCurve::SampleOf(float light) const {
    if (IsStraight()) {
        return light;
    }
    if (light >= 1.0F) {
        return 1.0F + (light - 1.0F) * slopeBeyond_;
    }
    const float place = std::sqrt(std::max(light, 0.0F)) * static_cast<float>(rootSteps);
    const auto below = static_cast<std::size_t>(place);
    const float part = place - static_cast<float>(below);
    return byRoot_[below] + (byRoot_[below + 1] - byRoot_[below]) * part;
}

}  // namespace varnel
