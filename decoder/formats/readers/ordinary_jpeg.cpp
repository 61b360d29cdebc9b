// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/ordinary_jpeg.h"

#include <utility>

#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/jpeg_pixels.h"
#include "decoder/formats/orientation.h"
#include "decoder/formats/profiles/rgb_profile.h"
#include "decoder/formats/readers/picture_forms.h"
#include "decoder/formats/truncation.h"
#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

LoadedPicture Judged(LoadedPicture loaded, const PictureFile& file,
                     const LibraryMessages& messages) {
    loaded.reason = DamageOf(InputFormat::Jpeg, file, messages.Lines());
    loaded.outcome = loaded.reason.isEmpty() ? LoadOutcome::Loaded : LoadOutcome::Damaged;
    return loaded;
}

}  // namespace

bool IsJpeg(const PictureFile& file) {
    return file.Read(0, 2) == "\xFF\xD8";
}

std::optional<LoadedPicture> DecodeOrdinaryJpeg(std::FILE* file, const ReadRequest& request,
                                                std::uint64_t memory, const PixelPlace& place,
                                                const LibraryMessages& messages) {
    const PictureFile picture(file);
    const bool isAsked = request.kind == ReadKind::Whole || request.kind == ReadKind::Size;
    if (!isAsked || !IsJpeg(picture)) {
        return std::nullopt;
    }
    const std::optional<PixelSize> stored = JpegSize(picture);
    if (!stored) {
        return std::nullopt;
    }
    if (const Reason error = SizeError(stored->width, stored->height, memory); !error.isEmpty()) {
        return LoadedPicture::Refused(error);
    }
    const int orientation =
        request.upright ? OrientationOf(InputFormat::Jpeg, picture, std::nullopt) : 1;
    LoadedPicture loaded{LoadOutcome::Loaded, nullptr, {}, Turned(*stored, orientation)};
    loaded.orientation = orientation;
    if (request.kind == ReadKind::Size) {
        return loaded;
    }
    if (place.pieces != nullptr && place.pieces->Wants(*stored)) {
        const PiecesEnd end = ReadJpegPieces(file, *stored, orientation, *place.pieces);
        if (end != PiecesEnd::Whole) {
            return end == PiecesEnd::NotBegun
                       ? std::nullopt
                       : std::optional(LoadedPicture::Refused(ReasonCode::CannotBeDecoded));
        }
        loaded.bitmap = std::make_unique<Bitmap>(PixelFormat::Bgr8, loaded.size, nullptr);
        return Judged(std::move(loaded), picture, messages);
    }
    loaded.bitmap = place.rows ? BitmapOver(place.rows(loaded.size, PixelFormat::Bgr8), loaded.size)
                               : NewBitmap(loaded.size);
    std::optional<BitmapMetadata> metadata;
    if (loaded.bitmap) {
        metadata = ReadJpegPixels(file, *stored, RowsOf(*loaded.bitmap), orientation);
    }
    if (!metadata) {
        return std::nullopt;
    }
    loaded.bitmap->metadata = TurnedMetadata(std::move(*metadata), orientation);
    if (!IsProfileForRgb(loaded.bitmap->metadata.colourProfile)) {
        loaded.bitmap->metadata.colourProfile.clear();
    }
    return Judged(std::move(loaded), picture, messages);
}

}  // namespace varnel
