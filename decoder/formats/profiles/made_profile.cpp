// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/profiles/made_profile.h"

#include <array>
#include <new>

namespace varnel {

namespace {

using Text = std::unique_ptr<cmsMLU, ReleasedBy<cmsMLUfree>>;

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

}  // namespace

ToneCurve SrgbProfileCurve() {
    constexpr cmsInt32Number kind = 4;  // a power with a straight foot
    const std::array<double, 5> srgb{2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045};
    return ToneCurve(cmsBuildParametricToneCurve(nullptr, kind, srgb.data()));
}

QByteArray MadeProfile(const char* name, const cmsCIExyYTRIPLE& primaries, const ToneCurve& curve) {
    constexpr cmsCIExyY d65{0.3127, 0.3290, 1.0};
    const std::array<cmsToneCurve*, 3> curves{curve.get(), curve.get(), curve.get()};
    const ProfileHandle profile(curve ? cmsCreateRGBProfile(&d65, &primaries, curves.data())
                                      : nullptr);
    if (!profile) {
        throw std::bad_alloc();
    }
    Name(profile.get(), name);
    return Bytes(profile.get());
}

}  // namespace varnel
