// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fisheye lenses of any file that holds some: our own lens files, lensfun's and LCP's XML,
// calibrations of OpenCV, ROS and Kalibr as YAML or JSON, Gyroflow's lens profiles, Hugin's
// projects. What a file is shows in what it contains, whatever its name. Throws std::bad_alloc
// only.
#pragma once

#include "gear/lens/import/lens_formula.h"
#include "gear/lens/lens_folder.h"

namespace varnel {

// Each lens comes back to its formula within 2e-5 of the radius at the limit of its field (0.05 px
// at 24 megapixels). Files of up to 16 MB; the reason names the file, and the line or the key.
ImportedLenses ImportLenses(const QString& path);

// The same of what is read already; the name is for the lens and its origin.
ImportedLenses ImportLensesFrom(const QByteArray& bytes, const QString& fileName);

struct TakenLenses {
    QStringList names;  // under which they are in the folder now
    // Why there are none, or which of the file's lenses were left out and why.
    Reason reason;
};
// Adds all lenses of a file to the folder, or none where one cannot be written.
TakenLenses TakeLenses(const QString& path, const LensFolder& folder);

}  // namespace varnel
