// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Distinguishing a damaged photo from a sound one: the libraries load cut files without an error.
// Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>

#include "base/reason.h"
#include "decoder/formats/input_format.h"
#include "decoder/formats/picture_file.h"

namespace varnel {

// True for a message about missing or wrong pixel data. Most messages mean nothing: sound TIFF
// files give dozens.
bool MeansDamage(const QString& message);

// What is wrong with a picture that was loaded from this file with these library messages; empty
// when nothing is.
Reason DamageOf(InputFormat format, const PictureFile& file, const QStringList& messages);

}  // namespace varnel
