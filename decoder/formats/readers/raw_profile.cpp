// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/raw_profile.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <new>
#include <type_traits>
#include <vector>

namespace varnel {

namespace {

template <auto close>
struct Closer {
    template <class Thing>
    void operator()(Thing* thing) const {
        close(thing);
    }
};
using Profile = std::unique_ptr<void, Closer<cmsCloseProfile>>;
using Curve = std::unique_ptr<cmsToneCurve, Closer<cmsFreeToneCurve>>;
using Text = std::unique_ptr<cmsMLU, Closer<cmsMLUfree>>;

struct Space {
    const char* name;
    cmsCIExyYTRIPLE primaries;
    bool srgbCurve;  // else a power
    double power;
};

// Adobe RGB (1998) 4.3.1, and ITU-R BT.2020-2 table 3 with the curve of IEC 61966-2-1.
constexpr Space adobeRgb{"Compatible with Adobe RGB (1998)",
                         {{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}},
                         false,
                         563.0 / 256.0};
constexpr Space rec2020{"Rec. 2020 with the sRGB curve",
                        {{0.708, 0.292, 1.0}, {0.170, 0.797, 1.0}, {0.131, 0.046, 1.0}},
                        true,
                        2.4};

Curve CurveOf(const Space& space) {
    constexpr cmsInt32Number kind = 4;  // a power with a straight foot
    const std::array<double, 5> srgb{2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045};
    return Curve(space.srgbCurve ? cmsBuildParametricToneCurve(nullptr, kind, srgb.data())
                                 : cmsBuildGamma(nullptr, space.power));
}

void Name(cmsHPROFILE profile, const char* name) {
    const Text text(cmsMLUalloc(nullptr, 1));
    cmsMLUsetASCII(text.get(), "en", "US", name);
    cmsWriteTag(profile, cmsSigProfileDescriptionTag, text.get());
}

QByteArray Bytes(cmsHPROFILE profile) {
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(length, '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    constexpr qsizetype date = 24;  // of its making, six numbers of two bytes
    if (bytes.size() > date + 12) {
        bytes.replace(date, 12, QByteArray::fromHex("07ea00010001000000000000"));
    }
    return bytes;
}

QByteArray Made(const Space& space) {
    constexpr cmsCIExyY d65{0.3127, 0.3290, 1.0};
    const Curve curve = CurveOf(space);
    const std::array<cmsToneCurve*, 3> curves{curve.get(), curve.get(), curve.get()};
    const Profile profile(cmsCreateRGBProfile(&d65, &space.primaries, curves.data()));
    if (!curve || !profile) {
        throw std::bad_alloc();
    }
    Name(profile.get(), space.name);
    return Bytes(profile.get());
}

// Linear light of 16 bits to coded values.
std::vector<std::uint16_t> SrgbCurve() {
    std::vector<std::uint16_t> table(65536);
    for (std::size_t n = 0; n < table.size(); ++n) {
        const double light = static_cast<double>(n) / 65535.0;
        const double coded =
            light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
        table[n] = static_cast<std::uint16_t>(std::lround(coded * 65535.0));
    }
    return table;
}

}  // namespace

QByteArray ProfileOf(RawProfile profile) {
    switch (profile) {
        case RawProfile::AdobeRgb:
            return Made(adobeRgb);
        case RawProfile::Rec2020:
            return Made(rec2020);
        case RawProfile::Srgb:
            break;
    }
    return {};
}

void CodeAsRec2020(std::span<std::uint16_t> samples) {
    // Rows give red, green and blue. By way of sRGB's linear light: its matrix to Rec. 2020 times
    // the inverse of that to ROMM RGB.
    constexpr std::array<std::array<float, 3>, 3> matrix{{{1.200546F, -0.057437F, -0.143105F},
                                                          {-0.069941F, 1.080620F, -0.010682F},
                                                          {0.005533F, -0.040785F, 1.035252F}}};
    static const std::vector<std::uint16_t> curve = SrgbCurve();
    for (std::size_t n = 0; n + 2 < samples.size(); n += 3) {
        const auto blue = static_cast<float>(samples[n]);
        const auto green = static_cast<float>(samples[n + 1]);
        const auto red = static_cast<float>(samples[n + 2]);
        for (std::size_t colour = 0; colour < 3; ++colour) {
            const auto& row = matrix[colour];
            const float light = row[0] * red + row[1] * green + row[2] * blue;
            samples[n + 2 - colour] =
                curve[static_cast<std::size_t>(std::lround(std::clamp(light, 0.0F, 65535.0F)))];
        }
    }
}

}  // namespace varnel
