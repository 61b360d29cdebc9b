// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/profiles/coded_colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "decoder/formats/profiles/made_profile.h"

namespace varnel {

namespace {

struct Primaries {
    int code;
    const char* name;
    cmsCIExyYTRIPLE colours;
};
constexpr std::array primariesList{
    Primaries{1, "BT.709", {{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}}},
    Primaries{5, "BT.601 625", {{0.64, 0.33, 1.0}, {0.29, 0.60, 1.0}, {0.15, 0.06, 1.0}}},
    Primaries{6, "BT.601 525", {{0.630, 0.340, 1.0}, {0.310, 0.595, 1.0}, {0.155, 0.070, 1.0}}},
    Primaries{9, "BT.2020", {{0.708, 0.292, 1.0}, {0.170, 0.797, 1.0}, {0.131, 0.046, 1.0}}},
    Primaries{12, "Display P3", {{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}}}};

constexpr double referenceWhite = 203.0;  // cd/m2, ITU-R BT.2408

// cd/m2 of a sample (SMPTE ST 2084).
double LightOfPq(double sample) {
    constexpr double m1 = 2610.0 / 16384.0;
    constexpr double m2 = 2523.0 / 4096.0 * 128.0;
    constexpr double c1 = 3424.0 / 4096.0;
    constexpr double c2 = 2413.0 / 4096.0 * 32.0;
    constexpr double c3 = 2392.0 / 4096.0 * 32.0;
    const double root = std::pow(sample, 1.0 / m2);
    return 10000.0 * std::pow(std::max(root - c1, 0.0) / (c2 - c3 * root), 1.0 / m1);
}

// cd/m2 on the screen of 1000 that ITU-R BT.2100 (table 5) has as its nominal one.
double LightOfHlg(double sample) {
    constexpr double a = 0.17883277;
    constexpr double b = 1.0 - 4.0 * a;
    constexpr double c = 0.55991073;
    const double scene =
        sample <= 0.5 ? sample * sample / 3.0 : (std::exp((sample - c) / a) + b) / 12.0;
    return 1000.0 * std::pow(scene, 1.2);
}

// The light of a screen without that range: about linear in the dark, 1 at the sample 1.
ToneCurve CurveOfWideRange(double (*lightOf)(double)) {
    constexpr std::size_t steps = 4096;
    const double most = lightOf(1.0) / referenceWhite;
    std::vector<cmsUInt16Number> table(steps);
    for (std::size_t n = 0; n < steps; ++n) {
        const double light =
            lightOf(static_cast<double>(n) / static_cast<double>(steps - 1)) / referenceWhite;
        const double shown = light * (1.0 + light / (most * most)) / (1.0 + light);
        table[n] = static_cast<cmsUInt16Number>(std::lround(std::min(shown, 1.0) * 65535.0));
    }
    return ToneCurve(cmsBuildTabulatedToneCurve16(nullptr, steps, table.data()));
}

// Null for a number that is not known here.
ToneCurve CurveOf(int transfer) {
    switch (transfer) {
        case 1:  // ITU-R BT.709, as 601 and 2020 have it, too
        case 6:
        case 14:
        case 15: {
            constexpr cmsInt32Number kind = 4;  // a power with a straight foot
            const std::array<double, 5> curve{1.0 / 0.45, 1.0 / 1.099, 0.099 / 1.099, 1.0 / 4.5,
                                              0.081};
            return ToneCurve(cmsBuildParametricToneCurve(nullptr, kind, curve.data()));
        }
        case 4:
            return ToneCurve(cmsBuildGamma(nullptr, 2.2));
        case 5:
            return ToneCurve(cmsBuildGamma(nullptr, 2.8));
        case 8:
            return ToneCurve(cmsBuildGamma(nullptr, 1.0));
        case 2:  // unspecified
        case 13:
            return SrgbProfileCurve();
        case 16:
            return CurveOfWideRange(&LightOfPq);
        case 18:
            return CurveOfWideRange(&LightOfHlg);
        default:
            return nullptr;
    }
}

const char* NameOf(int transfer) {
    return transfer == 16 ? " PQ" : transfer == 18 ? " HLG" : transfer == 8 ? " linear" : "";
}

}  // namespace

QByteArray ProfileOfCodes(int primaries, int transfer) {
    constexpr int unspecified = 2;
    constexpr int srgbCurve = 13;
    const int code = primaries == unspecified ? primariesList[0].code : primaries;
    const auto colours = std::ranges::find(primariesList, code, &Primaries::code);
    const bool isSrgb = code == 1 && (transfer == srgbCurve || transfer == unspecified);
    if (colours == primariesList.end() || isSrgb) {
        return {};
    }
    const ToneCurve curve = CurveOf(transfer);
    const QByteArray name = QByteArray(colours->name) + NameOf(transfer);
    return curve ? MadeProfile(name.constData(), colours->colours, curve) : QByteArray();
}

}  // namespace varnel
