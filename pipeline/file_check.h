// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether a path and a picture's size are fit to be read at all; texts are empty when they are.
#pragma once

#include <FreeImage.h>

#include <QString>

namespace varnel {

// The most that a side may have: records keep sides in 16 bits.
inline constexpr unsigned largestSide = 32767;

// A pipe would make the library wait for ever, and it has one and the same answer for everything
// else that is no regular, readable file.
QString PathTrouble(const QString& path);

QString SizeTrouble(FIBITMAP* bitmap);

}  // namespace varnel
