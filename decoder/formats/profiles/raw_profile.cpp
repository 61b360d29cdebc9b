// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/profiles/raw_profile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "decoder/formats/profiles/made_profile.h"
#include "remap/image/levels/srgb_curve.h"

namespace varnel {

namespace {

// Adobe RGB (1998) 4.3.1.
constexpr cmsCIExyYTRIPLE adobeRgb{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
constexpr double adobeRgbPower = 563.0 / 256.0;
// ITU-R BT.2020-2, table 3.
constexpr cmsCIExyYTRIPLE rec2020{{0.708, 0.292, 1.0}, {0.170, 0.797, 1.0}, {0.131, 0.046, 1.0}};

// Linear light of 16 bits to coded values.
std::vector<std::uint16_t> SrgbCurve() {
    std::vector<std::uint16_t> table(65536);
    for (std::size_t n = 0; n < table.size(); ++n) {
        const double light = static_cast<double>(n) / 65535.0;
        table[n] = static_cast<std::uint16_t>(std::lround(SrgbCoded(light) * 65535.0));
    }
    return table;
}

}  // namespace

QByteArray ProfileOf(RawProfile profile) {
    switch (profile) {
        case RawProfile::AdobeRgb:
            return MadeProfile("Compatible with Adobe RGB (1998)", adobeRgb,
                               ToneCurve(cmsBuildGamma(nullptr, adobeRgbPower)));
        case RawProfile::Rec2020:
            return MadeProfile("Rec. 2020 with the sRGB curve", rec2020, SrgbProfileCurve());
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
