// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/damage_tally.h"

#include <QElapsedTimer>
#include <algorithm>
#include <array>
#include <cstdio>

#include "base/error_text.h"
#include "tests/support/files.h"

namespace varnel::testing {

namespace {

Verdict VerdictOf(const LoadedPicture& picture) {
    if (picture.outcome != LoadOutcome::NotLoaded) {
        return picture.outcome == LoadOutcome::Loaded ? Verdict::Loaded : Verdict::Damaged;
    }
    if (picture.reason.Is(ReasonCode::TookTooLong)) {
        return Verdict::TooLong;
    }
    constexpr std::array deaths{ReasonCode::DecoderDied, ReasonCode::DecoderGaveUp,
                                ReasonCode::DecoderEndedBySystem, ReasonCode::DecoderNotStarted,
                                ReasonCode::DecoderMakesNoSense};
    const bool died = std::ranges::find(deaths, picture.reason.Code()) != deaths.end();
    return died ? Verdict::Died : Verdict::Refused;
}

// Profile and metadata are written as they came; the pixels matter little here.
QString WritingError(const Bitmap* picture) {
    const BitmapHandle sample = NewBitmap({8, 8});
    sample->metadata = picture->metadata;
    const LibraryBitmap small = LibraryView(*sample);
    for (const FREE_IMAGE_FORMAT format : {FIF_JPEG, FIF_TIFF, FIF_PNG}) {
        FIMEMORY* const memory = FreeImage_OpenMemory();
        const bool saved = FreeImage_SaveToMemory(format, small.get(), memory, 0) == TRUE;
        FreeImage_CloseMemory(memory);
        if (!saved) {
            return QStringLiteral("cannot be written as %1")
                .arg(QString::fromLatin1(FreeImage_GetFormatFromFIF(format)));
        }
    }
    return {};
}

QString Error(const LoadedPicture& picture, ReadDepth depth) {
    if ((picture.outcome == LoadOutcome::Loaded) != picture.reason.isEmpty()) {
        return QStringLiteral("a reason exactly when not all is well: \"%1\"")
            .arg(ErrorText(picture.reason));
    }
    if ((picture.outcome != LoadOutcome::NotLoaded) != static_cast<bool>(picture.bitmap)) {
        return QStringLiteral("a picture exactly when one was loaded");
    }
    if (!picture.bitmap) {
        return {};
    }
    const auto [width, height] = SizeOf(picture.bitmap.get());
    const bool isDeep = picture.bitmap->Format() != PixelFormat::Bgr8;
    if ((isDeep && depth == ReadDepth::Eight) || width < 1 || height < 1 || width > 32767 ||
        height > 32767 || width != picture.size.width || height != picture.size.height) {
        return QStringLiteral("%1 x %2 pixels where %3 x %4 were said")
            .arg(width)
            .arg(height)
            .arg(picture.size.width)
            .arg(picture.size.height);
    }
    return isDeep ? QString() : WritingError(picture.bitmap.get());
}

}  // namespace

void DamageTally::Add(const std::string& type, Verdict verdict, qint64 milliseconds) {
    for (Row* const row : {&rows_[type], &rows_["all"]}) {
        ++row->counts[static_cast<std::size_t>(verdict)];
        row->slowest = std::max(row->slowest, milliseconds);
    }
}

void DamageTally::Add(const DamageTally& other) {
    for (const auto& [type, more] : other.rows_) {
        Row& row = rows_[type];
        for (std::size_t i = 0; i < row.counts.size(); ++i) {
            row.counts[i] += more.counts[i];
        }
        row.slowest = std::max(row.slowest, more.slowest);
    }
}

std::string DamageTally::Table() const {
    std::string table =
        "type      files   loaded  damaged  refused     died  too long  slowest, ms\n";
    for (const auto& [type, row] : rows_) {
        const auto& [loaded, damaged, refused, died, tooLong] = row.counts;
        std::array<char, 120> line{};
        std::snprintf(line.data(), line.size(), "%-6s %8d %8d %8d %8d %8d %9d %12lld\n",
                      type.c_str(), loaded + damaged + refused + died + tooLong, loaded, damaged,
                      refused, died, tooLong, row.slowest);
        table += line.data();
    }
    return table;
}

DamageTrial::DamageTrial(int secondsPerPhoto)
    : secondsPerPhoto_(secondsPerPhoto),
      reader_(NewPictureReader({.program = {}, .secondsPerPhoto = secondsPerPhoto})) {}

LoadedPicture DamageTrial::Read(const QByteArray& file, ReadDepth depth) {
    const QString path = folder_.filePath(QStringLiteral("photo"));
    WriteFile(path, file);
    return ReadPicture(*reader_, {.path = path, .depth = depth});
}

QString DamageTrial::Try(const DamagedFile& file) {
    QElapsedTimer timer;
    timer.start();
    isDeep_ = !isDeep_;
    const ReadDepth depth = isDeep_ ? ReadDepth::Own : ReadDepth::Eight;
    const LoadedPicture picture = Read(file.bytes, depth);
    const qint64 milliseconds = timer.elapsed();
    tally_.Add(file.seed.Type(), VerdictOf(picture), milliseconds);
    return milliseconds > (secondsPerPhoto_ + 1) * 1000
               ? QStringLiteral("an answer only after %1 ms").arg(milliseconds)
               : Error(picture, depth);
}

}  // namespace varnel::testing
