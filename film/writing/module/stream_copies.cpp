// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/stream_copies.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "film/writing/module/av_formats.h"

namespace varnel {

namespace {

// What writers of files say of themselves and of the file's old bytes.
bool IsOfTheOldFile(const QByteArray& name) {
    constexpr std::array<const char*, 7> names{"major_brand",  "minor_version", "compatible_brands",
                                               "encoder",      "rotate",        "DURATION",
                                               "creation_tool"};
    const QByteArray trackFacts[] = {"BPS", "NUMBER_OF_", "_STATISTICS_"};
    return std::ranges::any_of(names, [&](const char* n) { return name == n; }) ||
           std::ranges::any_of(trackFacts, [&](const QByteArray& n) { return name.startsWith(n); });
}

std::uint8_t* Padded(const QByteArray& bytes) {
    auto* const copy = static_cast<std::uint8_t*>(
        av_mallocz(static_cast<std::size_t>(bytes.size()) + AV_INPUT_BUFFER_PADDING_SIZE));
    if (copy == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(copy, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return copy;
}

AVMediaType TypeOf(StreamKind kind) {
    switch (kind) {
        case StreamKind::Video:
            return AVMEDIA_TYPE_VIDEO;
        case StreamKind::Audio:
            return AVMEDIA_TYPE_AUDIO;
        case StreamKind::Subtitle:
            return AVMEDIA_TYPE_SUBTITLE;
        case StreamKind::Data:
            return AVMEDIA_TYPE_DATA;
        case StreamKind::Attachment:
            break;
    }
    return AVMEDIA_TYPE_ATTACHMENT;
}

// The number that the source's container gave the codec, where the new one knows it so, too.
std::uint32_t TagFor(const StreamInfo& info, const AVOutputFormat& format) {
    const auto id = static_cast<AVCodecID>(info.codecId);
    unsigned other = 0;
    const bool fits = format.codec_tag == nullptr ||
                      av_codec_get_id(format.codec_tag, info.codecTag) == id ||
                      av_codec_get_tag2(format.codec_tag, id, &other) == 0;
    return fits ? info.codecTag : 0;
}

void CopyParameters(const StreamInfo& info, const AVOutputFormat& format, AVCodecParameters& to) {
    to.codec_type = TypeOf(info.kind);
    to.codec_id = static_cast<AVCodecID>(info.codecId);
    to.codec_tag = TagFor(info, format);
    to.format = info.format;
    to.bit_rate = info.bitRate;
    to.profile = info.profile;
    to.level = info.level;
    to.bits_per_coded_sample = info.bitsPerCodedSample;
    to.bits_per_raw_sample = info.bitsPerRawSample;
    to.width = info.size.width;
    to.height = info.size.height;
    to.sample_rate = info.sampleRate;
    to.block_align = info.blockAlign;
    to.frame_size = info.frameSize;
    to.initial_padding = info.initialPadding;
    to.trailing_padding = info.trailingPadding;
    to.seek_preroll = info.seekPreroll;
    if (info.channelMask != 0) {
        av_channel_layout_from_mask(&to.ch_layout, info.channelMask);
    } else if (info.channels > 0) {
        to.ch_layout.order = AV_CHANNEL_ORDER_UNSPEC;
        to.ch_layout.nb_channels = info.channels;
    }
    if (!info.extraData.isEmpty()) {
        to.extradata = Padded(info.extraData);
        to.extradata_size = static_cast<int>(info.extraData.size());
    }
}

void AddSideData(const SideData& data, AVStream& stream) {
    std::uint8_t* const bytes =
        av_stream_new_side_data(&stream, static_cast<AVPacketSideDataType>(data.type),
                                static_cast<std::size_t>(data.bytes.size()));
    if (bytes == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(bytes, data.bytes.constData(), static_cast<std::size_t>(data.bytes.size()));
}

AVStream& AddStream(const StreamInfo& info, AVFormatContext& file) {
    AVStream* const stream = avformat_new_stream(&file, nullptr);
    if (stream == nullptr) {
        throw std::bad_alloc();
    }
    CopyParameters(info, *file.oformat, *stream->codecpar);
    stream->time_base = RationalOf(info.timeBase);
    stream->disposition = info.disposition;
    CopyTags(info.tags, stream->metadata);
    for (const SideData& data : info.sideData) {
        AddSideData(data, *stream);
    }
    return *stream;
}

struct FreeFormat {
    void operator()(AVFormatContext* file) const { avformat_free_context(file); }
};
using FormatHandle = std::unique_ptr<AVFormatContext, FreeFormat>;

FormatHandle NewFormat(const AVOutputFormat& format) {
    AVFormatContext* file = nullptr;
    avformat_alloc_output_context2(&file, &format, nullptr, nullptr);
    if (file == nullptr) {
        throw std::bad_alloc();
    }
    return FormatHandle(file);
}

// Tried on a file in memory: what a container holds stands in no table that can be asked.
bool IsTaken(AVFormatContext& file) {
    if (avio_open_dyn_buf(&file.pb) < 0) {
        throw std::bad_alloc();
    }
    const bool taken = avformat_write_header(&file, nullptr) >= 0;
    std::uint8_t* bytes = nullptr;
    avio_close_dyn_buf(file.pb, &bytes);
    file.pb = nullptr;
    av_free(bytes);
    return taken;
}

bool CanHold(const AVOutputFormat& container, const StreamInfo& info) {
    const FormatHandle trial = NewFormat(container);
    AddStream(info, *trial);
    return IsTaken(*trial);
}

constexpr std::uint32_t Letters(const char (&text)[5]) {
    return MKTAG(text[0], text[1], text[2], text[3]);
}

// Written anew from the chapters and from the picture stream's tag.
bool IsMadeAnew(const StreamInfo& info, const FilmInfo& source) {
    if (info.kind != StreamKind::Data) {
        return false;
    }
    return (info.codecTag == Letters("text") && !source.chapters.empty()) ||
           info.codecTag == Letters("tmcd");
}

QString NameOf(const StreamInfo& info) {
    const char* const kind = av_get_media_type_string(TypeOf(info.kind));
    return QStringLiteral("%1 %2").arg(QString::fromLatin1(kind),
                                       QString::fromUtf8(info.codec).simplified());
}

}  // namespace

const AVOutputFormat* OutputFormatOf(FilmContainer container) {
    const char* const name = container == FilmContainer::Mp4        ? "mp4"
                             : container == FilmContainer::Matroska ? "matroska"
                                                                    : "mov";
    return av_guess_format(name, nullptr, nullptr);
}

bool CanHold(const AVOutputFormat& container, const AVStream& stream) {
    const FormatHandle trial = NewFormat(container);
    AVStream* const copy = avformat_new_stream(trial.get(), nullptr);
    if (copy == nullptr || avcodec_parameters_copy(copy->codecpar, stream.codecpar) < 0) {
        throw std::bad_alloc();
    }
    copy->time_base = stream.time_base;
    return IsTaken(*trial);
}

void CopyTags(const TagList& tags, AVDictionary*& target) {
    for (const auto& [name, value] : tags) {
        if (!IsOfTheOldFile(name)) {
            av_dict_set(&target, name.constData(), value.constData(), 0);
        }
    }
}

std::vector<StreamCopy> CopyStreams(const FilmInfo& source, FilmContainer container,
                                    AVFormatContext& file, Reasons& leftOut) {
    std::vector<StreamCopy> copies;
    for (const StreamInfo& info : source.streams) {
        if (info.index == source.picture || IsMadeAnew(info, source)) {
            continue;
        }
        if (!CanHold(*file.oformat, info)) {
            leftOut.append(
                {ReasonCode::StreamLeftOut, info.index, NameOf(info), ToText(container)});
            continue;
        }
        const bool isSparse = info.kind == StreamKind::Subtitle || info.kind == StreamKind::Data;
        copies.push_back({info.index, &AddStream(info, file), RationalOf(info.timeBase),
                          AV_NOPTS_VALUE, isSparse});
    }
    return copies;
}

void CopyChapters(const FilmInfo& source, AVFormatContext& file) {
    const std::size_t count = source.chapters.size();
    if (count == 0) {
        return;
    }
    file.chapters = static_cast<AVChapter**>(av_calloc(count, sizeof(AVChapter*)));
    if (file.chapters == nullptr) {
        throw std::bad_alloc();
    }
    for (const Chapter& chapter : source.chapters) {
        auto* const copy = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
        if (copy == nullptr) {
            throw std::bad_alloc();
        }
        copy->id = chapter.id;
        copy->time_base = RationalOf(chapter.timeBase);
        copy->start = chapter.start;
        copy->end = chapter.end;
        CopyTags(chapter.tags, copy->metadata);
        file.chapters[file.nb_chapters++] = copy;
    }
}

void CopyPictureSideData(const StreamInfo& source, AVStream& stream) {
    for (const SideData& data : source.sideData) {
        if (data.type == AV_PKT_DATA_MASTERING_DISPLAY_METADATA ||
            data.type == AV_PKT_DATA_CONTENT_LIGHT_LEVEL) {
            AddSideData(data, stream);
        }
    }
}

}  // namespace varnel
