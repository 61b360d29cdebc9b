// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A picture that comes from the decoder in pieces, put together. Throws std::bad_alloc only.
#pragma once

#include <cstddef>
#include <memory>
#include <mutex>

#include "decoder/process/protocol.h"
#include "decoder/request/arriving_picture.h"
#include "decoder/request/loaded_picture.h"

namespace varnel {

// Memory for large pictures in large pages. That of the last picture is kept for the next one:
// fresh pages cost as much time as copying a picture into them. Pictures may be gone on another
// thread than they are read.
class PixelMemory : public std::enable_shared_from_this<PixelMemory> {
  public:
    std::shared_ptr<std::byte> Take(std::size_t length);
    void DropSpare();

  private:
    struct Piece {
        std::shared_ptr<std::byte> bytes;
        std::size_t length = 0;
    };
    void GiveBack(Piece piece);

    std::mutex mutex_;
    Piece spare_;
};

class PiecedPicture {
  public:
    // The first answer about it, which is consistent.
    PiecedPicture(const DecoderAnswer& first, PixelMemory& memory);
    // Whoever waits for rows is not left waiting.
    ~PiecedPicture() { End(false); }
    PiecedPicture(const PiecedPicture&) = delete;
    PiecedPicture& operator=(const PiecedPicture&) = delete;

    const DecoderAnswer& First() const { return first_; }
    bool HasMetadata() const { return hasMetadata_; }
    // From now on rows can be told of. The attributes are those that came with the first answer.
    void TakeMetadata(const QByteArray& attributes, const FileMetadata& metadata);
    // The next piece lies in the memory file where it should; to be called no more often than there
    // are pieces.
    void TakePiece(const std::byte* memoryFile);
    bool IsWhole() const { return taken_ == layout_.count; }
    const PieceLayout& Layout() const { return layout_; }
    // All that is known of it; the rows may still be on their way.
    LoadedPicture Begun() const;
    // To whoever works with the rows already.
    void End(bool isSound);

  private:
    void TakePixels(const std::byte* piece, int lowest, int count);
    void TakePlanes(const std::byte* piece, int before, int count);

    DecoderAnswer first_;
    PieceLayout layout_;
    Bitmap bitmap_;
    std::shared_ptr<PlanarPicture> planar_;
    bool hasMetadata_ = false;
    int taken_ = 0;
    std::shared_ptr<ArrivingPicture> arriving_;
};

}  // namespace varnel
