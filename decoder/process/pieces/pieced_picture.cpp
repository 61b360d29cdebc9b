// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/pieces/pieced_picture.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "base/huge_pages.h"
#include "remap/image/exif_orientation.h"

namespace varnel {

std::shared_ptr<std::byte> PixelMemory::Take(std::size_t length) {
    Piece piece;
    {
        const std::scoped_lock lock(mutex_);
        // One far longer than the picture is not worth its memory.
        if (spare_.length >= length && spare_.length / 2 <= length) {
            piece = std::exchange(spare_, {});
        }
        spare_ = {};
    }
    if (!piece.bytes) {
        piece = {LargePages(length), length};
    }
    if (!piece.bytes) {
        throw std::bad_alloc();
    }
    std::byte* const bytes = piece.bytes.get();
    return {bytes, [piece = std::move(piece), owner = weak_from_this()](std::byte*) {
                if (const std::shared_ptr<PixelMemory> memory = owner.lock()) {
                    memory->GiveBack(piece);
                }
            }};
}

void PixelMemory::GiveBack(Piece piece) {
    const std::scoped_lock lock(mutex_);
    spare_ = std::move(piece);
}

void PixelMemory::DropSpare() {
    GiveBack({});
}

PiecedPicture::PiecedPicture(const DecoderAnswer& first, PixelMemory& memory)
    : first_(first),
      layout_(LayoutOf(first)),
      bitmap_(PixelFormat::Bgr8, first.bitmap,
              layout_.planar ? nullptr : memory.Take(RowBytes(first))),
      planar_(layout_.planar ? std::make_shared<PlanarPicture>(first.bitmap) : nullptr),
      arriving_(std::make_shared<ArrivingPicture>(first.bitmap.height)) {}

void PiecedPicture::TakeMetadata(const QByteArray& attributes, const FileMetadata& metadata) {
    bitmap_.metadata = UnpackAttributes(attributes);
    GiveMetadata(metadata, bitmap_);
    hasMetadata_ = true;
}

void PiecedPicture::TakePiece(const std::byte* memoryFile) {
    const int before = taken_ * layout_.rows;
    const int count = std::min(layout_.rows, layout_.stored.height - before);
    const int lowest = layout_.stored.height - before - count;
    const std::byte* const piece = memoryFile + layout_.Place(taken_++);
    if (planar_) {
        TakePlanes(piece, before, count);
    } else {
        TakePixels(piece, lowest, count);
    }
    if (first_.orientation == 1 && lowest > 0) {
        // The colours of the lowest row take those below it, too.
        arriving_->rows.Came(lowest + (planar_ ? 1 : 0));
    }
}

void PiecedPicture::TakePixels(const std::byte* piece, int lowest, int count) {
    auto* const rows = reinterpret_cast<std::byte*>(bitmap_.Bits());
    if (first_.orientation == 1) {
        std::memcpy(rows + layout_.pitch * static_cast<std::size_t>(lowest), piece,
                    layout_.pitch * static_cast<std::size_t>(count));
    } else {
        TurnRows(layout_.stored, {lowest, count}, {const_cast<std::byte*>(piece), layout_.pitch},
                 first_.orientation, {rows, RowPitch(bitmap_.Size().width, bitmap_.Format())});
    }
}

void PiecedPicture::TakePlanes(const std::byte* piece, int before, int count) {
    const PiecePlanes planes = layout_.Planes();
    const auto* const samples = reinterpret_cast<const std::uint8_t*>(piece);
    for (int n = 0; n < count; ++n) {
        const auto row = static_cast<std::size_t>(n);
        std::memcpy(planar_->Brightness(before + n), samples + planes.Brightness(row),
                    static_cast<std::size_t>(layout_.stored.width));
        if (n % 2 == 0) {
            planar_->TakeColours((before + n) / 2, samples + planes.Blue(row / 2),
                                 samples + planes.Red(row / 2));
        }
    }
}

LoadedPicture PiecedPicture::Begun() const {
    LoadedPicture picture{LoadOutcome::Loaded, std::make_unique<Bitmap>(bitmap_), {}, first_.size};
    picture.orientation = first_.orientation;
    picture.arriving = arriving_;
    picture.planar = planar_;
    return picture;
}

void PiecedPicture::End(bool isSound) {
    if (arriving_) {
        arriving_->isSound = isSound;
        arriving_->rows.End();
        arriving_.reset();
    }
}

}  // namespace varnel
