// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What became of one result, and its line of JSON. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "remap/image/bitmap.h"

namespace varnel {

enum class FileStatus { Converted, Damaged, Skipped, Failed };

struct FileReport {
    QString photo = {};   // as given
    QString result = {};  // where it was written or would have been; empty when that is not known
    FileStatus status = FileStatus::Converted;
    QString reason = {};  // why it failed, what is damaged
    QString projection = {};
    QString gear = {};
    QString gearSource = {};     // where its numbers come from
    QStringList uncertain = {};  // what of them is not certain
    PixelSize size{};            // of the result, pixels; 0 x 0 when there is none
    qint64 bytes = -1;           // of the result; negative when there is none
    QByteArray sha256 = {};      // of the result's file, hexadecimal; empty when it is not known
    QString depth = {};          // of the result: "8", "16" or "float"; empty when there is none
    double seconds = 0.0;        // by the clock
    qint64 frames = -1;          // of a film; negative for a picture
    QStringList notes = {};
};

// One JSON object without line breaks, in UTF-8. It always has all its names; what is not known is
// null.
QByteArray ToJson(const FileReport& report);

}  // namespace varnel
