// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A sampled lens as JSON: one file a lens, or a part of something larger. The keys name their
// units. Throws std::bad_alloc only; errors are returned.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <optional>

#include "base/reason.h"
#include "files/atomic_file.h"
#include "state/records/sampled_lens.h"

namespace varnel {

inline constexpr int largestLensFile = 1;      // MB, 2^20 bytes each
inline constexpr int largestForeignFile = 16;  // MB, of files that lenses are imported from
inline constexpr qsizetype longestLensName = 200;

struct LensReading {
    std::optional<SampledLens> lens;  // one that LensSpline takes
    Reason reason;                    // why there is none
};

struct FileReading {
    QByteArray bytes;
    Reason reason;  // where it is not empty, the bytes are
};

// A regular file of at most so many MB that is not empty.
FileReading ReadSmallFile(const QString& path, int megabytes);

// One line of printable characters, at most longestLensName of them; for names from files.
QString TidyLensName(const QString& name);

QJsonObject LensToJson(const SampledLens& lens);
// Numbers come back to the bit. A reason names the key. Keys that are not known are passed over.
LensReading LensFromJson(const QJsonObject& json);

QByteArray LensBytes(const SampledLens& lens);
// A reason names the line where the text is no JSON.
LensReading LensFromBytes(const QByteArray& bytes);

// The object that a JSON text is; a reason names the line. For imports too.
struct JsonReading {
    QJsonObject object;
    Reason reason;
};
JsonReading ReadJson(const QByteArray& bytes);

// Refuses files over largestLensFile. The reason names the file.
LensReading ReadLensFile(const QString& path);
// Replaces an older file as a whole.
WriteResult WriteLensFile(const QString& path, const SampledLens& lens);

}  // namespace varnel
