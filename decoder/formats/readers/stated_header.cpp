// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/stated_header.h"

#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/readers/bmp_header.h"

namespace varnel {

StatedHeader HeaderOf(const LibraryReader& reader, const PictureFile& file) {
    if (reader.Format() == InputFormat::Jpeg) {
        const std::optional<PixelSize> size = JpegSize(file);
        return size ? StatedHeader{StatedSize{size->width, size->height}} : StatedHeader{};
    }
    if (reader.Format() == InputFormat::Bmp) {
        if (const std::optional<BmpHeader> bmp = ReadBmpHeader(file)) {
            return {StatedSize{bmp->width, bmp->height}};
        }
    }
    const LibraryPicture header = reader.Header();
    return header.Exists() ? StatedHeader{header.Size(), header.OwnFormat()} : StatedHeader{};
}

}  // namespace varnel
