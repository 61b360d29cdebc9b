// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/modern_formats.h"

#include <algorithm>
#include <array>

namespace varnel {

#ifdef VARNEL_HEIF
std::unique_ptr<DirectReader> NewHeifReader(const PictureFile& file);
void PrepareHeif();
#endif
#ifdef VARNEL_JXL
std::unique_ptr<DirectReader> NewJxlReader(const PictureFile& file);
#endif

namespace {

#ifdef VARNEL_HEIF
bool IsHeif(const QByteArray& start) {
    constexpr std::array<QByteArrayView, 10> brands{"heic", "heix", "hevc", "hevx", "heim",
                                                    "heis", "mif1", "msf1", "avif", "avis"};
    const QByteArrayView all(start);
    return all.size() >= 12 && all.sliced(4, 4) == "ftyp" &&
           std::ranges::find(brands, all.sliced(8, 4)) != brands.end();
}
#endif

#ifdef VARNEL_JXL
bool IsJxl(const QByteArray& start) {
    constexpr QByteArrayView box("\0\0\0\x0CJXL \r\n\x87\n", 12);
    return start.startsWith(box) || start.startsWith("\xFF\x0A");
}
#endif

}  // namespace

#ifndef VARNEL_HEIF
MetadataBlocks HeifBlocks(const PictureFile& /*file*/) {
    return {};
}
#endif

InputFormat ModernFormatOf([[maybe_unused]] const PictureFile& file) {
    [[maybe_unused]] const QByteArray start = file.Read(0, 12);
#ifdef VARNEL_HEIF
    if (IsHeif(start)) {
        return InputFormat::Heif;
    }
#endif
#ifdef VARNEL_JXL
    if (IsJxl(start)) {
        return InputFormat::Jxl;
    }
#endif
    return InputFormat::Unknown;
}

std::unique_ptr<DirectReader> NewModernReader([[maybe_unused]] InputFormat format,
                                              [[maybe_unused]] const PictureFile& file) {
#ifdef VARNEL_HEIF
    if (format == InputFormat::Heif) {
        return NewHeifReader(file);
    }
#endif
#ifdef VARNEL_JXL
    if (format == InputFormat::Jxl) {
        return NewJxlReader(file);
    }
#endif
    return nullptr;
}

void PrepareModernReaders() {
#ifdef VARNEL_HEIF
    PrepareHeif();
#endif
}

}  // namespace varnel
