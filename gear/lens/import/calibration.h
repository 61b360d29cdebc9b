// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Calibrations in pixels with four odd powers, r = f (a + k1 a^3 + k2 a^5 + k3 a^7 + k4 a^9): those
// of OpenCV's fisheye module and of ROS, of Kalibr ("equidistant") and Gyroflow's lens profiles.
//
// Two focal lengths that differ by more than 2 % are refused, else their mean is taken: a lens is
// round. Pixel centres count from 0 at the top left there and so lie half a pixel further here.
// Throws std::bad_alloc only.
#pragma once

#include <QJsonObject>

#include "gear/lens/import/lens_formula.h"

namespace varnel {

// From what JSON or YAML has given; the file's name names the lens where nothing else does. A
// reason names the key.
ImportedLenses CalibrationLenses(const QJsonObject& root, const QString& fileName);

}  // namespace varnel
