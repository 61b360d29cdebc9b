// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/film_protocol.h"

#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <cmath>

#include "decoder/request/picture_limits.h"
#include "film/reading/film_reader.h"

namespace varnel {

namespace {

// No sound film has more of them.
constexpr quint32 mostStreams = 1000;
constexpr quint32 mostOfAKind = 100'000;  // chapters, tags, side data

QDataStream& operator<<(QDataStream& out, const SideData& side);
QDataStream& operator>>(QDataStream& in, SideData& side);
QDataStream& operator<<(QDataStream& out, const StreamInfo& stream);
QDataStream& operator>>(QDataStream& in, StreamInfo& stream);
QDataStream& operator<<(QDataStream& out, const Chapter& chapter);
QDataStream& operator>>(QDataStream& in, Chapter& chapter);

QDataStream& operator<<(QDataStream& out, const TimeBase& base) {
    return out << qint32{base.num} << qint32{base.den};
}

QDataStream& operator>>(QDataStream& in, TimeBase& base) {
    return in >> base.num >> base.den;
}

// The compiler has a name of its own for the type that Qt knows by this one.
qint64 Wide(std::int64_t number) {
    return qint64{number};
}

void Take(QDataStream& in, std::int64_t& number) {
    qint64 wide = 0;
    in >> wide;
    number = wide;
}

template <class Enum>
void TakeEnum(QDataStream& in, Enum& value, Enum last) {
    quint8 number = 0;
    in >> number;
    if (number > static_cast<quint8>(last)) {
        in.setStatus(QDataStream::ReadCorruptData);
    } else {
        value = static_cast<Enum>(number);
    }
}

// Qt's own reading of lists takes as much memory as the stream says there are elements.
template <class List>
void TakeList(QDataStream& in, List& list, quint32 most) {
    quint32 count = 0;
    in >> count;
    if (count > most) {
        in.setStatus(QDataStream::ReadCorruptData);
    }
    for (quint32 n = 0; n < count && in.status() == QDataStream::Ok; ++n) {
        typename List::value_type one;
        in >> one;
        list.push_back(std::move(one));
    }
}

template <class List>
void PutList(QDataStream& out, const List& list) {
    out << static_cast<quint32>(list.size());
    for (const auto& one : list) {
        out << one;
    }
}

QDataStream& operator<<(QDataStream& out, const SideData& side) {
    return out << qint32{side.type} << side.bytes;
}

QDataStream& operator>>(QDataStream& in, SideData& side) {
    return in >> side.type >> side.bytes;
}

QDataStream& operator<<(QDataStream& out, const StreamInfo& stream) {
    out << qint32{stream.index} << static_cast<quint8>(stream.kind) << stream.codec
        << qint32{stream.codecId} << quint32{stream.codecTag} << stream.timeBase
        << Wide(stream.startTime) << Wide(stream.duration) << qint32{stream.disposition}
        << Wide(stream.bitRate) << qint32{stream.format} << qint32{stream.profile}
        << qint32{stream.level} << qint32{stream.bitsPerCodedSample}
        << qint32{stream.bitsPerRawSample} << qint32{stream.size.width}
        << qint32{stream.size.height} << qint32{stream.sampleRate} << qint32{stream.channels}
        << quint64{stream.channelMask} << qint32{stream.blockAlign} << qint32{stream.frameSize}
        << qint32{stream.initialPadding} << qint32{stream.trailingPadding}
        << qint32{stream.seekPreroll} << stream.extraData;
    PutList(out, stream.sideData);
    PutList(out, stream.tags);
    return out;
}

QDataStream& operator>>(QDataStream& in, StreamInfo& stream) {
    in >> stream.index;
    TakeEnum(in, stream.kind, StreamKind::Attachment);
    in >> stream.codec >> stream.codecId >> stream.codecTag >> stream.timeBase;
    Take(in, stream.startTime);
    Take(in, stream.duration);
    in >> stream.disposition;
    Take(in, stream.bitRate);
    in >> stream.format >> stream.profile >> stream.level >> stream.bitsPerCodedSample >>
        stream.bitsPerRawSample >> stream.size.width >> stream.size.height >> stream.sampleRate >>
        stream.channels;
    quint64 mask = 0;
    in >> mask;
    stream.channelMask = mask;
    in >> stream.blockAlign >> stream.frameSize >> stream.initialPadding >>
        stream.trailingPadding >> stream.seekPreroll >> stream.extraData;
    TakeList(in, stream.sideData, mostOfAKind);
    TakeList(in, stream.tags, mostOfAKind);
    return in;
}

QDataStream& operator<<(QDataStream& out, const Chapter& chapter) {
    out << Wide(chapter.id) << chapter.timeBase << Wide(chapter.start) << Wide(chapter.end);
    PutList(out, chapter.tags);
    return out;
}

QDataStream& operator>>(QDataStream& in, Chapter& chapter) {
    Take(in, chapter.id);
    in >> chapter.timeBase;
    Take(in, chapter.start);
    Take(in, chapter.end);
    TakeList(in, chapter.tags, mostOfAKind);
    return in;
}

QDataStream& operator<<(QDataStream& out, const FrameFormat& format) {
    return out << qint32{format.size.width} << qint32{format.size.height}
               << static_cast<quint8>(format.chroma) << static_cast<quint8>(format.site)
               << format.alpha << format.fullRange << quint8{format.bits}
               << quint8{format.primaries} << quint8{format.transfer} << quint8{format.matrix};
}

QDataStream& operator>>(QDataStream& in, FrameFormat& format) {
    in >> format.size.width >> format.size.height;
    TakeEnum(in, format.chroma, ChromaLayout::Colours);
    TakeEnum(in, format.site, ChromaSite::Bottom);
    return in >> format.alpha >> format.fullRange >> format.bits >> format.primaries >>
           format.transfer >> format.matrix;
}

bool IsSound(TimeBase base) {
    return base.num > 0 && base.den > 0;
}

// One that may be unknown.
bool IsRatio(TimeBase base) {
    return base.num >= 0 && base.den > 0;
}

bool IsSound(const FrameFormat& format) {
    return format.size.width > 0 && format.size.height > 0 && format.size.width <= largestSide &&
           format.size.height <= largestSide && format.bits >= 8 && format.bits <= 16;
}

bool IsSound(const StreamInfo& stream, int index) {
    const std::int32_t counts[] = {
        stream.size.width,  stream.size.height,       stream.sampleRate,     stream.channels,
        stream.blockAlign,  stream.frameSize,         stream.initialPadding, stream.trailingPadding,
        stream.seekPreroll, stream.bitsPerCodedSample};
    return stream.index == index && IsSound(stream.timeBase) && stream.bitRate >= 0 &&
           std::ranges::all_of(counts, [](std::int32_t count) { return count >= 0; });
}

bool IsSound(const FilmInfo& film) {
    int index = 0;
    for (const StreamInfo& stream : film.streams) {
        if (!IsSound(stream, index++)) {
            return false;
        }
    }
    return film.picture >= 0 && film.picture < index &&
           film.streams[static_cast<std::size_t>(film.picture)].kind == StreamKind::Video &&
           std::ranges::all_of(film.chapters,
                               [](const Chapter& chapter) { return IsSound(chapter.timeBase); }) &&
           IsSound(film.format) && IsRatio(film.frameRate) && IsRatio(film.sampleAspect) &&
           film.turnedBy >= 0 && film.turnedBy < 360 && film.turnedBy % 90 == 0 &&
           std::isfinite(film.start) && std::isfinite(film.seconds) && film.seconds >= 0.0 &&
           film.frames >= 0;
}

bool IsWhole(const QDataStream& in) {
    return in.status() == QDataStream::Ok && in.atEnd();
}

}  // namespace

Reason TooMuchBeforePicture(std::uint64_t bytes) {
    return {ReasonCode::Damaged,
            QStringLiteral("more than %1 MB of sound and other data come before the film's picture")
                .arg(bytes >> 20)};
}

bool IsConsistentOpened(const FilmAnswer& answer) {
    constexpr std::uint64_t longest = std::uint64_t{1} << 40;
    return answer.slotLength > 0 && answer.slotLength <= longest &&
           answer.slotLength % slotAlignment == 0;
}

bool IsConsistentFrame(const FilmAnswer& answer, const FrameFormat& format,
                       std::uint64_t slotLength, std::uint64_t memoryLength) {
    if (answer.slot >= mostSlots || slotLength > memoryLength / (answer.slot + 1)) {
        return false;
    }
    const auto sample = static_cast<std::uint64_t>(BytesPerSample(format));
    for (int n = 0; n < PlanesOf(format); ++n) {
        const PixelSize size = PlaneSize(format, n);
        const PlanePlace& place = answer.planes[static_cast<std::size_t>(n)];
        const std::uint64_t row = static_cast<std::uint64_t>(size.width) * sample;
        const auto below = static_cast<std::uint64_t>(size.height - 1);
        // In this order nothing overflows.
        if (place.offset > slotLength || place.pitch > slotLength || place.pitch < row ||
            place.offset % sample != 0 || place.pitch % sample != 0 ||
            place.offset + place.pitch * below + row + slotMargin > slotLength) {
            return false;
        }
    }
    return true;
}

QByteArray Pack(const FilmInfo& film) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << film.container;
    PutList(out, film.streams);
    PutList(out, film.chapters);
    PutList(out, film.tags);
    out << qint32{film.picture} << film.format << film.frameRate << film.sampleAspect
        << qint32{film.turnedBy} << film.start << film.seconds << Wide(film.frames);
    return block;
}

std::optional<FilmInfo> UnpackFilm(const QByteArray& block) {
    QDataStream in(block);
    FilmInfo film;
    in >> film.container;
    TakeList(in, film.streams, mostStreams);
    TakeList(in, film.chapters, mostOfAKind);
    TakeList(in, film.tags, mostOfAKind);
    in >> film.picture >> film.format >> film.frameRate >> film.sampleAspect >> film.turnedBy >>
        film.start >> film.seconds;
    Take(in, film.frames);
    return IsWhole(in) && IsSound(film) ? std::optional(std::move(film)) : std::nullopt;
}

QByteArray Pack(const FilmPacket& packet) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << qint32{packet.stream} << Wide(packet.pts) << Wide(packet.dts) << Wide(packet.duration)
        << qint32{packet.flags} << packet.bytes;
    PutList(out, packet.sideData);
    return block;
}

std::optional<FilmPacket> UnpackPacket(const QByteArray& block, const FilmInfo& film) {
    QDataStream in(block);
    FilmPacket packet;
    in >> packet.stream;
    Take(in, packet.pts);
    Take(in, packet.dts);
    Take(in, packet.duration);
    in >> packet.flags >> packet.bytes;
    TakeList(in, packet.sideData, mostOfAKind);
    const bool isOfTheFilm = packet.stream >= 0 && packet.stream != film.picture &&
                             static_cast<std::size_t>(packet.stream) < film.streams.size();
    return IsWhole(in) && isOfTheFilm && packet.duration >= 0 ? std::optional(std::move(packet))
                                                              : std::nullopt;
}

QByteArray Pack(const Reason& reason) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << reason;
    return block;
}

std::optional<Reason> UnpackReason(const QByteArray& block) {
    QDataStream in(block);
    Reason reason;
    in >> reason;
    return IsWhole(in) && !reason.Is(ReasonCode::Cancelled) ? std::optional(std::move(reason))
                                                            : std::nullopt;
}

}  // namespace varnel
