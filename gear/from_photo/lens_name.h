// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Parses a lens's name, in EXIF and in the catalogue alike: "EF8-15mm f/4L FISHEYE USM",
// "10.5 mm f/2.8", "LUMIX G FISHEYE 8/F3.5", "EX 8 mm f:3.5". Throws nothing.
#pragma once

#include <QString>
#include <QStringList>

namespace varnel {

struct LensName {
    QStringList words;      // runs of letters, in capitals
    float shortest = 0.0F;  // focal lengths in millimetres; 0 when missing
    float longest = 0.0F;
    float aperture = 0.0F;  // the largest, as a number; 0 when missing

    bool IsZoom() const { return longest > shortest; }
};

LensName ParseLensName(const QString& text);

}  // namespace varnel
