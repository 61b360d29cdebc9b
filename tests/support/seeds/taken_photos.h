// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that say in EXIF what took them.
#pragma once

#include "tests/support/files.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel::testing {

// Writes into the JPEG that a Nikon with a lens of that name took it; returns its path.
inline QString SignedByNikon(const QString& photo, const char* model, const char* lens) {
    using enum TiffType;
    const auto text = [](const char* of) { return QByteArray(of) + '\0'; };
    TiffBytes tiff(Order::Little);
    const std::uint32_t exif = tiff.Directory({{0xa434, Text, {}, text(lens)}});
    const std::uint32_t first = tiff.Directory({{271, Text, {}, text("NIKON CORPORATION")},
                                                {272, Text, {}, text(model)},
                                                {0x8769, Long, {exif}}});
    const QByteArray block = QByteArray("Exif\0\0", 6) + tiff.Finish(first);
    WriteFile(photo, Contents(photo).insert(2, JpegSegment(0xE1, block)));
    return photo;
}

// A JPEG position picture by a Nikon with a lens of that name; returns its path.
inline QString TakenByNikon(const PictureFolder& folder, const QString& name, const char* model,
                            const char* lens) {
    return SignedByNikon(folder.Picture(name, OutputType::Jpeg), model, lens);
}

}  // namespace varnel::testing
