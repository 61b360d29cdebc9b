// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fisheyes of lensfun's data files. How its numbers are meant here:
//
// The ideal radius is that of the lens's design times the nominal focal length; radii are counted
// in halves of the shorter side of the sensor that the lens was calibrated on (12 mm for a crop
// factor of 1 and 3:2), and the polynomial leads from the ideal radius to the one in the picture:
// poly3 r (1 - k1 + k1 r^2), poly5 r (1 + k1 r^2 + k2 r^4), ptlens r (1 - a - b - c + c r + b r^2 +
// a r^3). A real focal length, where one is given, is that of the middle of the picture, the
// polynomial included: with it the circle of the 4.5 mm lens of the database comes to 6.1 mm, as it
// is, and otherwise to 8.3. Colour: red and blue from green in the picture, r (v + c r + b r^2) or
// k r.
//
// Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <atomic>

#include "gear/lens/import/lens_formula.h"

namespace varnel {

// A lens for every focal length with a distortion; one with the ideal curve where there is none.
// Lenses of the same name are told apart by the crop factor. The file's name stands in the origin.
ImportedLenses LensfunLenses(const QByteArray& xml, const QString& fileName);

// The brand under which they are listed.
inline constexpr QLatin1StringView lensfunBrand("lensfun");

// Where lensfun keeps its data: the user's folder, updates, the package's. Those that exist.
QStringList LensfunFolders();

// The fisheyes of all files in the folders, by name; what cannot be read is left out. Of the same
// lens in several folders the first one counts. Nothing once the flag is set.
QList<SampledLens> LensfunFisheyes(const QStringList& folders,
                                   const std::atomic<bool>* stopped = nullptr);

}  // namespace varnel
