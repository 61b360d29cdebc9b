// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The settings that made a picture as names and values: how they stand in the pictures that Varnel
// writes, and how a record gets them back. Numbers have a decimal point whatever the locale and
// come back bit by bit. Throws nothing.
#pragma once

#include <QStringList>

#include "remap/image/bitmap.h"
#include "state/records/image_record.h"

namespace varnel {

// The photo, how it was turned, its gear and every adjustment; what a record knows of its photo's
// size is left out, and so are the numbers of single projections where nobody changed them.
// What cannot be written (a number that is none, a name with control characters) is missing.
PictureSettings SettingsFrom(const ImageRecord& image);

// Whether a field is what a new record has.
bool IsOfNewRecord(const ImageRecord& image, const QString& field);

// Takes what can be used into the record and marks it as applied; missing and unusable settings
// leave what the record has. Names of later versions are kept in FurtherSettings. Each line of the
// answer says what was refused and why. The picture may come from anywhere: only numbers that the
// controls or a sensible command line could have given are taken. A folder may be a relative one.
QStringList TakeSettings(const PictureSettings& settings, ImageRecord& image);

// Attaches the settings to a result that is about to be written, or removes older ones. The photo's
// folder is written relative to the result's file, and not at all when no file is given: folder
// names are private.
void NoteSettings(Bitmap* result, const ImageRecord& image, bool wanted, const QString& file = {});

// The folder of the record's photo; a relative one starts at this picture's folder.
QString SourceFolderOf(const ImageRecord& image, const QString& picture);

// A setting to be shown in a message: shortened, without control characters.
QString Shown(const QString& setting, qsizetype longest = 40);

}  // namespace varnel
