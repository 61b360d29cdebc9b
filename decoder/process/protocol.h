// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The messages between a program and its decoder process: one of fixed size each way over a socket
// that keeps messages apart. With the request come two file descriptors, the photo and a memory
// file for the picture, in this order. Both ends are built together, so structs go as they are.
// Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <array>
#include <cstdint>
#include <optional>

#include "decoder/request/file_metadata.h"
#include "decoder/request/loaded_picture.h"
#include "decoder/request/read_request.h"
#include "decoder/request/row_pieces.h"

namespace varnel {

struct DecoderRequest {
    std::uint32_t number = 0;  // comes back in the answer
    ReadKind kind = ReadKind::Whole;
    PixelSize box{};
    std::uint64_t memory = 0;      // bytes that the picture is measured by
    std::uint32_t seconds = 0;     // of processor time that it may take, about
    std::uint32_t memoryFile = 0;  // the same number: the same memory file as before
    bool upright = true;
    bool inPieces = false;  // a large picture may come so
    bool planar = false;    // and its planes in place of pixels
    ReadDepth depth = ReadDepth::Eight;
    RawDevelopment raw{};
};

inline constexpr std::size_t longestReason = 2000;  // bytes

// In place of an outcome: the decoder tried a system call that is forbidden to it, of that number,
// and is dead. A decoder that sends this is not asked again.
inline constexpr std::uint32_t triedForbidden = 0xF0;

// In place of an outcome: the photo is none of those that this decoder reads.
inline constexpr std::uint32_t leftToOther = 0xF1;

// In place of an outcome: the picture comes in pieces. The answer tells of the picture as any
// other, the second one of its metadata; then each piece is told of with rowsCame, from the top of
// the picture as it is stored. The last answer has the outcome, without pixels, or is rowsGivenUp:
// then the picture is to be asked for as a whole. The memory file holds the pieces in turns, then
// what else belongs to the picture. The parent tells the decoder of each piece that it has taken,
// by the request's number alone.
inline constexpr std::uint32_t inPieces = 0xF2;
inline constexpr std::uint32_t rowsCame = 0xF3;
inline constexpr std::uint32_t rowsGivenUp = 0xF4;

// The pieces of a picture of this size, as it is stored: pixels of 24 bits, or planes.
struct PieceLayout {
    static constexpr int inTurns = 4;  // pieces in the memory file

    int rows = 0;           // of all pieces but the last
    int count = 0;          // pieces
    std::size_t pitch = 0;  // bytes from row to row
    PixelSize stored{};
    bool planar = false;

    PieceLayout(PixelSize size, bool isPlanar);
    PiecePlanes Planes() const { return {stored, rows}; }
    std::uint64_t PieceBytes() const {
        return planar ? Planes().Bytes() : pitch * static_cast<std::size_t>(rows);
    }
    // Where the n-th lies in the memory file.
    std::uint64_t Place(int n) const {
        return PieceBytes() * (static_cast<std::uint64_t>(n) % inTurns);
    }
    // Bytes of the memory file that they take.
    std::uint64_t Length() const { return PieceBytes() * inTurns; }
};
// Pictures with fewer bytes come at once: they are read in a moment.
inline constexpr std::uint64_t fewestBytesForPieces = std::uint64_t{4} << 20;

// Else the memory file holds the rows, bottom row first, then what else belongs to the picture.
struct DecoderAnswer {
    std::uint32_t number = 0;
    std::uint32_t outcome = 0;  // as LoadOutcome, or one of the above
    PixelSize size{};           // of the full picture
    PixelSize bitmap{};         // of the pixels in the memory file, 0 x 0 when there are none
    std::uint32_t format = 0;   // a PixelFormat
    std::uint32_t pitch = 0;    // bytes from row to row
    std::uint64_t attributesLength = 0;  // bytes after the rows
    std::uint64_t metadataLength = 0;    // bytes after those
    std::uint32_t metadataFollows = 0;   // not 0: they come with a second answer
    std::uint32_t isPlanar = 0;          // not 0: the pieces are planes
    std::int32_t orientation = 1;        // as in LoadedPicture
    std::uint32_t reasonLength = 0;
    std::array<char, longestReason> reason{};  // its code and arguments as a stream
};

// Bytes that the rows take.
inline std::uint64_t RowBytes(const DecoderAnswer& answer) {
    return std::uint64_t{answer.pitch} * static_cast<std::uint32_t>(answer.bitmap.height);
}

// Nothing in an answer is believed unchecked: a hostile photo may have made the decoder send
// anything. True when the answer belongs to the request, its numbers agree with one another and the
// memory file is long enough for what it has to hold.
bool IsConsistent(const DecoderAnswer& answer, const DecoderRequest& request,
                  std::uint64_t memoryFileLength);

// The same of the first answer of a picture that comes in pieces, and of the last.
bool IsConsistentInPieces(const DecoderAnswer& answer, const DecoderRequest& request,
                          std::uint64_t memoryFileLength);
bool IsConsistentEnd(const DecoderAnswer& answer, const DecoderRequest& request);

// The second answer, of which nothing but number and length of the metadata counts: likewise.
bool IsConsistentMetadata(const DecoderAnswer& answer, const DecoderAnswer& first,
                          std::uint64_t memoryFileLength);

// Of a first answer.
PieceLayout LayoutOf(const DecoderAnswer& first);

// Where attributes and metadata begin in the memory file.
std::uint64_t PlaceBehindRows(const DecoderAnswer& first);

// Puts the reason into the answer, its texts cut where it would be too long, and takes it out
// again: nothing when its bytes are no sound reason.
void SetReason(DecoderAnswer& answer, const Reason& reason);
std::optional<Reason> ReasonOf(const DecoderAnswer& answer);

// Resolution, colour profile and comments as one block of bytes, and back: what comes with the
// pixels. Unpacking gives back whatever of a block is sound and drops the rest; any bytes may be
// given.
QByteArray PackAttributes(const BitmapMetadata& metadata);
BitmapMetadata UnpackAttributes(const QByteArray& block);

// What the photo's file says, with a colour profile that the pixels came without, likewise. Empty
// metadata come back from a block that is not sound.
QByteArray PackFileMetadata(const FileMetadata& metadata);
FileMetadata UnpackFileMetadata(const QByteArray& block);

// A block beyond this is not sent; the picture then comes without.
inline constexpr std::uint64_t longestBlock = std::uint64_t{256} << 20;  // bytes

}  // namespace varnel
