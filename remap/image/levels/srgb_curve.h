// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The curve of sRGB (IEC 61966-2-1) between coded samples and light, both from 0, black, to 1,
// white, in the precision of what it is asked with. Throws nothing.
#pragma once

#include <cmath>
#include <concepts>

namespace varnel {

template <std::floating_point Real>
Real SrgbLight(Real coded) {
    return coded <= Real(0.04045L) ? coded / Real(12.92L)
                                   : std::pow((coded + Real(0.055L)) / Real(1.055L), Real(2.4L));
}

template <std::floating_point Real>
Real SrgbCoded(Real light) {
    return light <= Real(0.0031308L)
               ? Real(12.92L) * light
               : Real(1.055L) * std::pow(light, Real(1) / Real(2.4L)) - Real(0.055L);
}

}  // namespace varnel
