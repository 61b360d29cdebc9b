// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as a film decoder's answers and as what comes behind them. A frame that is believed
// lies in the memory, row by row; what is taken can be packed and taken again.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "base/error_text.h"
#include "film/reading/film_protocol.h"

namespace {

using varnel::FilmInfo;
using varnel::FilmPacket;

void Require(bool isSo) {
    if (!isSo) {
        std::abort();
    }
}

FilmInfo SoundFilm() {
    FilmInfo film;
    film.container = "matroska,webm";
    film.streams.resize(2);
    film.streams[0].kind = varnel::StreamKind::Video;
    film.streams[1].kind = varnel::StreamKind::Audio;
    film.streams[1].index = 1;
    for (varnel::StreamInfo& stream : film.streams) {
        stream.timeBase = {1, 1000};
        stream.extraData = "extra";
        stream.sideData = {{4, "side"}};
        stream.tags = {{"language", "eng"}};
    }
    film.chapters = {{7, {1, 1000}, -5, 900, {{"title", "Wood"}}}};
    film.picture = 0;
    film.format = {.size = {64, 48}, .chroma = varnel::ChromaLayout::C422, .bits = 10};
    return film;
}

FilmPacket SoundPacket() {
    FilmPacket packet{1, 5, 4, 1, 1, "sound", {}};
    packet.sideData = {{4, "side"}};
    return packet;
}

// Bytes by bytes over a sound block: place, place, value, ...
QByteArray Damaged(QByteArray block, const std::uint8_t* data, std::size_t size) {
    for (std::size_t i = 0; i + 3 <= size; i += 3) {
        block[(data[i] << 8 | data[i + 1]) % block.size()] = static_cast<char>(data[i + 2]);
    }
    return block;
}

// The rows, and what may be read behind the last one.
void CheckPlaces(const varnel::FilmAnswer& answer, const varnel::FrameFormat& format,
                 std::uint64_t memoryLength) {
    Require(answer.slot < memoryLength);
    Require((answer.slot + std::uint64_t{1}) * answer.slotLength <= memoryLength);
    const auto sample = static_cast<std::uint64_t>(BytesPerSample(format));
    for (int n = 0; n < PlanesOf(format); ++n) {
        const varnel::PixelSize size = PlaneSize(format, n);
        const auto& [offset, pitch] = answer.planes[static_cast<std::size_t>(n)];
        const std::uint64_t row = static_cast<std::uint64_t>(size.width) * sample;
        Require(offset % sample == 0 && pitch >= row);
        // Then nothing below overflows.
        Require(offset <= memoryLength && pitch <= memoryLength);
        const auto below = static_cast<std::uint64_t>(size.height - 1);
        Require(offset + pitch * below + row + varnel::slotMargin <= answer.slotLength);
    }
}

void CheckAnswer(const std::uint8_t* data, std::size_t size, const FilmInfo& film) {
    varnel::FilmAnswer answer;
    std::memcpy(&answer, data, std::min(size, sizeof answer));
    // Lengths that are at all likely, else nothing is ever believed.
    answer.slotLength = answer.slotLength % 64 * varnel::slotAlignment;
    constexpr std::uint64_t memoryLength = std::uint64_t{1} << 20;
    if (IsConsistentOpened(answer) &&
        IsConsistentFrame(answer, film.format, answer.slotLength, memoryLength)) {
        CheckPlaces(answer, film.format, memoryLength);
    }
}

void CheckFilm(const QByteArray& block, const std::uint8_t* data, std::size_t size) {
    const std::optional<FilmInfo> film = varnel::UnpackFilm(block);
    if (!film) {
        return;
    }
    const QByteArray packed = varnel::Pack(*film);
    const std::optional<FilmInfo> again = varnel::UnpackFilm(packed);
    Require(again && varnel::Pack(*again) == packed);
    CheckAnswer(data, size, *film);
}

void CheckPacket(const QByteArray& block, const FilmInfo& film) {
    if (const std::optional<FilmPacket> packet = varnel::UnpackPacket(block, film)) {
        Require(packet->stream > 0 &&
                static_cast<std::size_t>(packet->stream) < film.streams.size());
        const std::optional<FilmPacket> again = varnel::UnpackPacket(varnel::Pack(*packet), film);
        Require(again && varnel::Pack(*again) == varnel::Pack(*packet));
    }
}

void CheckReason(const QByteArray& block) {
    if (const std::optional<varnel::Reason> reason = varnel::UnpackReason(block)) {
        Require(varnel::UnpackReason(varnel::Pack(*reason)) == reason);
        varnel::ErrorText(*reason);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FilmInfo sound = SoundFilm();
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CheckAnswer(data, size, sound);
    CheckFilm(bytes, data, size);
    CheckFilm(Damaged(varnel::Pack(sound), data, size), data, size);
    CheckPacket(bytes, sound);
    CheckPacket(Damaged(varnel::Pack(SoundPacket()), data, size), sound);
    CheckReason(bytes);
    CheckReason(
        Damaged(varnel::Pack({varnel::ReasonCode::FrameLost, QStringLiteral("1.5")}), data, size));
    return 0;
}
