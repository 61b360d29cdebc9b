// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// ICC profiles of red, green and blue that are made here. Throws std::bad_alloc.
#pragma once

#include <QByteArray>

#include "remap/image/levels/lcms_handles.h"

namespace varnel {

// That of sRGB (IEC 61966-2-1).
ToneCurve SrgbProfileCurve();

// With the white of D65 and one curve for all three, null where there was no memory; always the
// same bytes.
QByteArray MadeProfile(const char* name, const cmsCIExyYTRIPLE& primaries, const ToneCurve& curve);

}  // namespace varnel
