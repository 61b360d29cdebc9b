// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fisheye photos of a Hugin project (.pto): lines that begin with i. The angle of view v spans
// the picture's whole width w, also where a circle is cut out of it (S); r = R (a R^3 + b R^2 + c R
// + 1 - a
// - b - c), R being the ideal radius of the design f, in halves of the shorter side. The axis lies
// d pixels right and e pixels below the picture's middle. Shear (g, t) is not taken. Throws
// std::bad_alloc only.
#pragma once

#include <QByteArray>

#include "gear/lens/import/lens_formula.h"

namespace varnel {

// One lens for all photos that have the same numbers. A reason names the line.
ImportedLenses HuginLenses(const QByteArray& text, const QString& fileName);

// Whether there is a line that such projects have.
bool IsHuginProject(const QByteArray& text);

}  // namespace varnel
