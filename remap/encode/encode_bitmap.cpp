// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/encode_bitmap.h"

#include <new>

#include "remap/encode/metadata_writer.h"
#include "remap/encode/output_format.h"

namespace varnel {

namespace {

// The same pixels, where they lie.
Bitmap WithoutMetadata(const Bitmap& bitmap) {
    return {bitmap.Format(), bitmap.Size(), bitmap.SharedPixels()};
}

// With all that the bitmap has.
EncodedBitmap Encoded(const OutputEncoding& encoding, const Bitmap& bitmap,
                      const EncodeOptions& options) {
    try {
        EncodedBitmap file = FormatOf(encoding.type).encode(&bitmap, encoding, options);
        if (file.bytes.size() > options.largest) {
            return {{}, {ReasonCode::FileTooLarge, options.largest}};
        }
        if (file.reason.isEmpty()) {
            file.note = Joined({file.note, LostIn(encoding.type, bitmap)});
        }
        return file;
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

}  // namespace

EncodedBitmap EncodeBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                           const EncodeOptions& options) {
    if (bitmap == nullptr) {
        return {{}, ReasonCode::NoPicture};
    }
    if (bitmap->Format() != PixelFormat::Bgr8) {
        return {{}, ReasonCode::CannotBeEncoded};
    }
    EncodedBitmap whole = Encoded(encoding, *bitmap, options);
    if (whole.reason.isEmpty() || whole.reason.Is(ReasonCode::NotEnoughMemory)) {
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
        EncodedBitmap encoded = Encoded(encoding, less, options);
        if (encoded.reason.isEmpty()) {
            encoded.note = Joined({{attempt.note, whole.reason}, encoded.note});
            return encoded;
        }
    }
    return whole;
}

}  // namespace varnel
