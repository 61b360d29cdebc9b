// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The messages between a program and its film decoder: structs of fixed size over a socket that
// keeps messages apart. With the first one come two file descriptors, the film and a memory file
// for the frames. Behind an answer with a payload come so many bytes in messages of pieceLength,
// the last one shorter. The decoder sends what is in the film without being asked, as long as there
// are slots for frames. Both ends are built together, so structs go as they are. Throws
// std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <array>
#include <cstdint>
#include <optional>

#include "base/reason.h"
#include "film/frames/film_info.h"

namespace varnel {

enum class FilmRequestKind : std::uint32_t { Open, Free, Seek };

struct FilmRequest {
    FilmRequestKind kind = FilmRequestKind::Open;
    std::uint32_t number = 0;   // Seek: comes back with all that follows it
    std::uint32_t slot = 0;     // Free: the one whose frame nobody holds any more
    std::uint32_t seconds = 0;  // Open: of processor time that an item may take, about
    std::uint64_t memory = 0;   // Open: bytes that frames are measured by
    double time = 0.0;          // Seek: seconds from the first frame
    bool upright = true;        // Open
    bool packets = true;        // Open
};

enum class FilmAnswerKind : std::uint32_t { Opened, Refused, Frame, Packet, Fault, End, Sought };

// Where a plane lies in its slot, bytes.
struct PlanePlace {
    std::uint64_t offset = 0;
    std::uint64_t pitch = 0;
};

// Slot n of the memory file begins at n times the slots' length.
struct FilmAnswer {
    FilmAnswerKind kind = FilmAnswerKind::Opened;
    std::uint32_t number = 0;  // of the last seek
    std::int64_t pts = noTime;
    std::int64_t duration = 0;
    std::uint32_t key = 0;
    std::uint32_t slot = 0;
    std::array<PlanePlace, mostPlanes> planes{};
    std::uint64_t slotLength = 0;     // Opened: bytes
    std::uint64_t payloadLength = 0;  // Opened: film; Packet: packet; else a reason
};

inline constexpr std::uint32_t mostSlots = 64;
inline constexpr std::size_t pieceLength = 32768;  // bytes
inline constexpr std::size_t slotAlignment = 4096;
// Behind a slot's last sample so many bytes may be read.
inline constexpr std::size_t slotMargin = 64;

// A film says more about itself than this, or a packet is longer: damaged.
inline constexpr std::uint64_t longestPayload = std::uint64_t{128} << 20;  // bytes

// Nothing in an answer is believed unchecked. True when the answer's numbers agree with one another
// and with the memory file's length.
bool IsConsistentOpened(const FilmAnswer& answer);
bool IsConsistentFrame(const FilmAnswer& answer, const FrameFormat& format,
                       std::uint64_t slotLength, std::uint64_t memoryLength);

// To blocks of bytes and back. What comes back is complete, and all its numbers are in their
// ranges; nothing comes from a block that is not sound.
QByteArray Pack(const FilmInfo& film);
std::optional<FilmInfo> UnpackFilm(const QByteArray& block);
QByteArray Pack(const FilmPacket& packet);
std::optional<FilmPacket> UnpackPacket(const QByteArray& block, const FilmInfo& film);
QByteArray Pack(const Reason& reason);
std::optional<Reason> UnpackReason(const QByteArray& block);

}  // namespace varnel
