// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/encode_bitmap.h"

#include <new>
#include <optional>
#include <utility>

#include "remap/encode/jpeg_coder.h"
#include "remap/encode/output_format.h"
#include "remap/encode/png_coder.h"
#include "remap/encode/tiff_coder.h"
#include "remap/image/freeimage_bitmap.h"

namespace varnel {

namespace {

// Nothing where there is none for such a file, or where it leaves the file to the library.
std::optional<QByteArray> FileByOurCoder(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                                         BlockRunner& runner, const WrittenMetadata& metadata) {
    switch (format) {
        case FIF_JPEG:
            return EncodeJpeg(bitmap, flags, runner, metadata);
        case FIF_TIFF:
            return flags == TIFF_LZW ? EncodeTiffLzw(bitmap, runner, metadata) : std::nullopt;
        case FIF_PNG:
            return flags == PNG_DEFAULT ? EncodePng(bitmap, runner, metadata) : std::nullopt;
        default:
            return std::nullopt;
    }
}

bool IsPhoto(const Bitmap* bitmap) {
    return bitmap->Format() == PixelFormat::Bgr8;
}

// The same pixels, where they lie.
Bitmap WithoutMetadata(const Bitmap& bitmap) {
    return {bitmap.Format(), bitmap.Size(), bitmap.SharedPixels()};
}

// The library's TIFF files take XMP along, but not what lies at places of its own.
void PassToTiff(FIBITMAP* bitmap, WrittenMetadata& metadata) {
    if (!metadata.xmp.isEmpty()) {
        FreeImage_SetMetadataKeyValue(FIMD_XMP, bitmap, "XMLPacket", metadata.xmp.constData());
    }
    const std::pair<const QByteArray&, QString> others[] = {
        {metadata.exif, QStringLiteral("EXIF")}, {metadata.iptc, QStringLiteral("IPTC")}};
    for (const auto& [bytes, name] : others) {
        if (!bytes.isEmpty()) {
            metadata.notes += Reason(ReasonCode::NotInSuchTiff, name);
        }
    }
}

// The library's file with our metadata in place of its own.
EncodedBitmap LibraryFileWith(WrittenMetadata& metadata, FREE_IMAGE_FORMAT format,
                              const Bitmap* bitmap, int flags, qint64 largest) {
    const LibraryBitmap view = LibraryView(*bitmap);
    if (format == FIF_TIFF) {
        PassToTiff(view.get(), metadata);
    }
    EncodedBitmap file = LibraryFile(format, view.get(), flags, largest - metadata.parts.size());
    if (file.reason.isEmpty() && !InsertParts(format, metadata, file.bytes)) {
        return {{}, ReasonCode::NoPlaceForMetadata};
    }
    return file;
}

}  // namespace

EncodedBitmap EncodeAs(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                       const EncodeOptions& options) {
    SerialRunner serial;
    try {
        WrittenMetadata metadata;
        if (IsPhoto(bitmap)) {
            metadata = MetadataFor(format, bitmap);
        }
        std::optional<QByteArray> bytes = FileByOurCoder(
            format, bitmap, flags, options.runner != nullptr ? *options.runner : serial, metadata);
        EncodedBitmap file;
        if (bytes && bytes->size() <= options.largest) {
            file.bytes = std::move(*bytes);
        } else {
            bytes.reset();
            file = metadata.IsEmpty()
                       ? LibraryFile(format, bitmap, flags, options.largest)
                       : LibraryFileWith(metadata, format, bitmap, flags, options.largest);
        }
        if (file.reason.isEmpty()) {
            file.note = Joined(metadata.notes);
        }
        return file;
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

EncodedBitmap EncodeBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                           const EncodeOptions& options) {
    if (bitmap == nullptr) {
        return {{}, ReasonCode::NoPicture};
    }
    const auto encode = FormatOf(encoding.type).encode;
    EncodedBitmap whole = encode(bitmap, encoding, options);
    if (whole.reason.isEmpty() || whole.reason.Is(ReasonCode::NotEnoughMemory) ||
        !IsPhoto(bitmap)) {
        return whole;
    }
    const struct {
        bool metadata;
        ReasonCode note;
    } attempts[] = {{true, ReasonCode::WithoutProfile}, {false, ReasonCode::WithoutMetadata}};
    for (const auto& attempt : attempts) {
        Bitmap less = WithoutMetadata(*bitmap);
        if (attempt.metadata) {
            less.metadata = bitmap->metadata;
            less.metadata.colourProfile.clear();
        }
        EncodedBitmap encoded = encode(&less, encoding, options);
        if (encoded.reason.isEmpty()) {
            encoded.note = Joined({{attempt.note, whole.reason}, encoded.note});
            return encoded;
        }
    }
    return whole;
}

}  // namespace varnel
