// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/film_facts.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace varnel {

namespace {

QByteArray BytesOf(const void* bytes, std::size_t length) {
    return bytes == nullptr
               ? QByteArray()
               : QByteArray(static_cast<const char*>(bytes), static_cast<qsizetype>(length));
}

TagList TagsOf(const AVDictionary* dictionary) {
    TagList tags;
    const AVDictionaryEntry* entry = nullptr;
    while ((entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
        tags.emplaceBack(QByteArray(entry->key), QByteArray(entry->value));
    }
    return tags;
}

// A damaged one as what is not known.
TimeBase RatioOf(AVRational ratio) {
    return ratio.num > 0 && ratio.den > 0 ? TimeBase{ratio.num, ratio.den} : TimeBase{0, 1};
}

TimeBase BaseOf(AVRational base) {
    return base.num > 0 && base.den > 0 ? TimeBase{base.num, base.den} : TimeBase{1, 90'000};
}

StreamKind KindOf(AVMediaType type) {
    switch (type) {
        case AVMEDIA_TYPE_VIDEO:
            return StreamKind::Video;
        case AVMEDIA_TYPE_AUDIO:
            return StreamKind::Audio;
        case AVMEDIA_TYPE_SUBTITLE:
            return StreamKind::Subtitle;
        case AVMEDIA_TYPE_ATTACHMENT:
            return StreamKind::Attachment;
        default:
            return StreamKind::Data;
    }
}

void AddParameters(const AVCodecParameters& codec, StreamInfo& stream) {
    stream.kind = KindOf(codec.codec_type);
    stream.codec = avcodec_get_name(codec.codec_id);
    stream.codecId = codec.codec_id;
    stream.codecTag = codec.codec_tag;
    stream.bitRate = std::max<std::int64_t>(codec.bit_rate, 0);
    stream.format = codec.format;
    stream.profile = codec.profile;
    stream.level = codec.level;
    stream.bitsPerCodedSample = std::max(codec.bits_per_coded_sample, 0);
    stream.bitsPerRawSample = codec.bits_per_raw_sample;
    stream.size = {std::max(codec.width, 0), std::max(codec.height, 0)};
    stream.sampleRate = std::max(codec.sample_rate, 0);
    stream.channels = std::max(codec.ch_layout.nb_channels, 0);
    stream.channelMask =
        codec.ch_layout.order == AV_CHANNEL_ORDER_NATIVE ? codec.ch_layout.u.mask : 0;
    stream.blockAlign = std::max(codec.block_align, 0);
    stream.frameSize = std::max(codec.frame_size, 0);
    stream.initialPadding = std::max(codec.initial_padding, 0);
    stream.trailingPadding = std::max(codec.trailing_padding, 0);
    stream.seekPreroll = std::max(codec.seek_preroll, 0);
    stream.extraData = BytesOf(codec.extradata, static_cast<std::size_t>(codec.extradata_size));
}

StreamInfo StreamOf(const AVStream& from) {
    StreamInfo stream;
    stream.index = from.index;
    AddParameters(*from.codecpar, stream);
    stream.timeBase = BaseOf(from.time_base);
    stream.startTime = from.start_time;
    stream.duration = from.duration;
    stream.disposition = from.disposition;
    for (int n = 0; n < from.nb_side_data; ++n) {
        const AVPacketSideData& side = from.side_data[n];
        if (side.type != AV_PKT_DATA_DISPLAYMATRIX) {
            stream.sideData.push_back({side.type, BytesOf(side.data, side.size)});
        }
    }
    stream.tags = TagsOf(from.metadata);
    return stream;
}

double SecondsOf(const AVFormatContext& container, const AVStream& picture) {
    double seconds = 0.0;
    if (picture.duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(picture.duration) * av_q2d(picture.time_base);
    } else if (container.duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(container.duration) / AV_TIME_BASE;
    }
    return std::max(seconds, 0.0);
}

void AddSide(const AVFrame& frame, AVFrameSideDataType from, AVPacketSideDataType type,
             StreamInfo& stream) {
    const AVFrameSideData* const side = av_frame_get_side_data(&frame, from);
    const bool isThere = std::ranges::any_of(
        stream.sideData, [type](const SideData& one) { return one.type == type; });
    if (side != nullptr && !isThere) {
        stream.sideData.push_back({type, BytesOf(side->data, side->size)});
    }
}

}  // namespace

FilmInfo FactsOf(const AVFormatContext& container, int picture) {
    FilmInfo film;
    film.container = container.iformat->name;
    for (unsigned n = 0; n < container.nb_streams; ++n) {
        film.streams.push_back(StreamOf(*container.streams[n]));
    }
    for (unsigned n = 0; n < container.nb_chapters; ++n) {
        const AVChapter& chapter = *container.chapters[n];
        film.chapters.push_back({chapter.id, BaseOf(chapter.time_base), chapter.start, chapter.end,
                                 TagsOf(chapter.metadata)});
    }
    film.tags = TagsOf(container.metadata);
    film.picture = picture;
    const AVStream& stream = *container.streams[picture];
    const TimeBase average = RatioOf(stream.avg_frame_rate);
    film.frameRate = average.num > 0 ? average : RatioOf(stream.r_frame_rate);
    film.seconds = SecondsOf(container, stream);
    film.frames = std::max<std::int64_t>(stream.nb_frames, 0);
    return film;
}

FrameTurn TurnOf(const AVStream& stream) {
    std::array<std::int32_t, 9> matrix{};
    std::size_t length = 0;
    const std::uint8_t* const bytes =
        av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &length);
    if (bytes == nullptr || length < sizeof matrix) {
        return {};
    }
    std::memcpy(matrix.data(), bytes, sizeof matrix);
    return TurnOf(matrix);
}

void AddFactsOf(AVFrame& frame, const FrameTurn& turn, AVFormatContext& container, FilmInfo& film) {
    AVStream* const stream = container.streams[film.picture];
    film.sampleAspect = RatioOf(av_guess_sample_aspect_ratio(&container, stream, &frame));
    if (turn.SwapsSides() && film.sampleAspect.num > 0) {
        std::swap(film.sampleAspect.num, film.sampleAspect.den);
    }
    StreamInfo& picture = film.streams[static_cast<std::size_t>(film.picture)];
    AddSide(frame, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA, AV_PKT_DATA_MASTERING_DISPLAY_METADATA,
            picture);
    AddSide(frame, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL, AV_PKT_DATA_CONTENT_LIGHT_LEVEL, picture);
}

FilmPacket PacketOf(const AVPacket& from) {
    FilmPacket packet;
    packet.stream = from.stream_index;
    packet.pts = from.pts;
    packet.dts = from.dts;
    packet.duration = std::max<std::int64_t>(from.duration, 0);
    packet.flags = from.flags;
    packet.bytes = BytesOf(from.data, static_cast<std::size_t>(std::max(from.size, 0)));
    for (int n = 0; n < from.side_data_elems; ++n) {
        const AVPacketSideData& side = from.side_data[n];
        packet.sideData.push_back({side.type, BytesOf(side.data, side.size)});
    }
    return packet;
}

}  // namespace varnel
