// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that a camera wrote twice: as raw file and as JPEG of the same name in the same folder.
// Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

namespace varnel {

// Which of the two are converted.
enum class RawJpeg : std::uint8_t { Raw, Jpeg, Both };

// "raw", "jpeg" or "both", without regard to case; nothing for any other text.
std::optional<RawJpeg> RawJpegFromText(QStringView text);
QStringList RawJpegTexts();

// By the ending of the name, without regard to case.
bool IsRawName(const QString& name);

struct RawPair {
    QString raw;
    QString jpeg;
};

// In the order of the raw files, by the names alone. Every path is in one pair at most.
std::vector<RawPair> RawPairsIn(const QStringList& paths);

}  // namespace varnel
