// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// ICC profiles of red, green and blue that are made here. Throws std::bad_alloc.
#pragma once

#include <lcms2.h>

#include <QByteArray>
#include <memory>
#include <type_traits>

namespace varnel {

struct CurveFreer {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using ProfileCurve = std::unique_ptr<cmsToneCurve, CurveFreer>;

// That of sRGB (IEC 61966-2-1).
ProfileCurve SrgbProfileCurve();

// With the white of D65 and one curve for all three, null where there was no memory; always the
// same bytes.
QByteArray MadeProfile(const char* name, const cmsCIExyYTRIPLE& primaries,
                       const ProfileCurve& curve);

}  // namespace varnel
