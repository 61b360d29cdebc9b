// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lens profiles in LCP files (XMP), their fisheye model: r = f (a + k1 a^3 + k2 a^5). The focal
// length is a share of the picture's longer side, the centre a share of width and height from the
// top left. The sensor's size is that of 36 x 24 mm divided by the format factor, measured along
// the diagonal. The colour models are not taken. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>

#include "gear/lens/import/lens_formula.h"

namespace varnel {

// A lens for every focal length; of several focus distances the farthest.
ImportedLenses LcpLenses(const QByteArray& xml, const QString& fileName);

}  // namespace varnel
