// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a camera writes into its photos about itself and its lens.
#pragma once

#include <QByteArray>

namespace varnel {

// An EXIF block, which begins with its TIFF header. Texts are ASCII.
QByteArray ExifTakenWith(const QByteArray& make, const QByteArray& model, const QByteArray& lens);

}  // namespace varnel
