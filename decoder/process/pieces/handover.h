// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures on their way from the decoder to its parent. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "decoder/process/protocol.h"
#include "decoder/request/row_pieces.h"

namespace varnel {

// Memory files stay mapped while they take turns: to map one anew for each small photo costs as
// much time as a tenth of its decoding.
class MappedFiles {
  public:
    // The first bytes of that memory file, which is so long; null when there is no memory for them.
    std::byte* Map(std::uint32_t name, int file, std::size_t length);

  private:
    struct Mapped {
        std::uint32_t name = 0;
        std::byte* bytes = nullptr;
        std::size_t length = 0;
    };
    // Its place, or that of the one that was not used last.
    Mapped& Find(std::uint32_t name);

    std::array<Mapped, 2> mapped_;
    std::size_t last_ = 0;
};

// The memory file of the photo at hand, where its picture goes.
class Handover {
  public:
    Handover(MappedFiles& mapped, std::uint32_t name, int file)
        : mapped_(mapped), name_(name), file_(file) {}

    // Null when there is no memory for them.
    std::byte* Rows(std::size_t length) {
        return Lengthen(length) ? mapped_.Map(name_, file_, length) : nullptr;
    }
    bool WriteAt(std::size_t place, const QByteArray& block) const;

  private:
    // The file only grows: a longer one of an earlier picture stays as it is.
    bool Lengthen(std::size_t length) const;

    MappedFiles& mapped_;
    std::uint32_t name_;
    int file_;
};

// Takes a picture in pieces and sends them to the parent. The metadata go before the pixels, so
// that the parent can begin; should they end this process, it asks anew for the picture as a whole.
class PieceHandover : public RowPieces {
  public:
    // Packed metadata of the file of the picture that is told of.
    using Metadata = std::function<QByteArray(const LoadedPicture& picture)>;
    PieceHandover(const DecoderRequest& request, Handover& handover, Metadata metadata)
        : request_(request), handover_(handover), metadata_(std::move(metadata)) {}

    bool Begun() const { return layout_.has_value(); }
    // After the last piece, or when there are no more. False when the parent is gone.
    bool End(const LoadedPicture& picture);

    bool Wants(PixelSize stored) const override;
    bool WantsPlanar() const override { return request_.planar; }
    int Begin(const PiecedHead& head) override;
    std::byte* Room() override;
    bool Give() override;

  private:
    bool WaitUntilTaken();

    const DecoderRequest& request_;
    Handover& handover_;
    Metadata metadata_;
    std::optional<PieceLayout> layout_;
    DecoderAnswer first_;
    std::byte* pieces_ = nullptr;
    int given_ = 0;
    int taken_ = 0;
};

// Sends what the metadata are packed into as the second answer; without them when there is no
// memory for them. False when the parent is gone.
bool SendMetadata(const QByteArray& block, const DecoderAnswer& first, const Handover& handover);

}  // namespace varnel
