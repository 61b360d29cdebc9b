// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Telling a damaged photo from a sound one: the libraries load cut files without an error.
#pragma once

#include <FreeImage.h>

#include <QString>
#include <QStringList>

namespace varnel {

// What is wrong with a picture that was loaded from this file with these library messages; empty
// when nothing is. Most messages mean nothing: sound TIFF files give dozens.
QString DamageOf(FREE_IMAGE_FORMAT format, const QString& path, const QStringList& messages);

}  // namespace varnel
