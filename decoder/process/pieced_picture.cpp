// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/pieced_picture.h"

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
      layout_(Turned(first.bitmap, first.orientation)),
      bitmap_(PixelFormat::Bgr8, first.bitmap, memory.Take(RowBytes(first))),
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
    auto* const rows = reinterpret_cast<std::byte*>(bitmap_.Bits());
    if (first_.orientation == 1) {
        std::memcpy(rows + layout_.pitch * static_cast<std::size_t>(lowest), piece,
                    layout_.pitch * static_cast<std::size_t>(count));
        if (lowest > 0) {
            arriving_->rows.Came(lowest);
        }
    } else {
        TurnRows(layout_.stored, {lowest, count}, {const_cast<std::byte*>(piece), layout_.pitch},
                 first_.orientation, {rows, bitmap_.Pitch()});
    }
}

LoadedPicture PiecedPicture::Begun() const {
    LoadedPicture picture{LoadOutcome::Loaded, std::make_unique<Bitmap>(bitmap_), {}, first_.size};
    picture.orientation = first_.orientation;
    picture.arriving = arriving_;
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
