// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/camera_preview.h"

#include "decoder/formats/decode_picture.h"
#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/readers/hidden_tags.h"
#include "decoder/formats/true_colour.h"
#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

BitmapHandle FromJpeg(QByteArray bytes, int longerSide, std::uint64_t memory) {
    const FileHandle opened(fmemopen(bytes.data(), static_cast<std::size_t>(bytes.size()), "rb"));
    if (!opened) {
        return nullptr;
    }
    PictureFile file(opened.get());
    const std::optional<PixelSize> size = JpegSize(file);
    if (!size || !SizeError(size->width, size->height, memory).isEmpty()) {
        return nullptr;
    }
    HideMetadata(InputFormat::Jpeg, {}, file);
    LibraryPicture picture = LibraryReader(file).Preview(longerSide);
    return picture.HasPixels() ? To24Bits(std::move(picture), {}) : nullptr;
}

}  // namespace

BitmapHandle PreviewPicture(CameraPreview preview, int longerSide, std::uint64_t memory) {
    return preview.jpeg.isEmpty() ? std::move(preview.bitmap)
                                  : FromJpeg(std::move(preview.jpeg), longerSide, memory);
}

}  // namespace varnel
