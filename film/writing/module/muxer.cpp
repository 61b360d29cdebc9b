// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/muxer.h"

#include <QByteArray>
#include <algorithm>
#include <cstring>

#include "film/writing/module/av_formats.h"
#include "film/writing/module/av_log.h"

namespace varnel {

namespace {

constexpr int outputBuffer = 1 << 18;          // bytes
constexpr char longestFragment[] = "2000000";  // microseconds

// A copied stream's packet as the library has it; its bytes are copied.
void Fill(AVPacket& target, const FilmPacket& packet) {
    if (av_new_packet(&target, static_cast<int>(packet.bytes.size())) < 0) {
        throw std::bad_alloc();
    }
    std::memcpy(target.data, packet.bytes.constData(),
                static_cast<std::size_t>(packet.bytes.size()));
    target.pts = TimeOf(packet.pts);
    target.dts = TimeOf(packet.dts);
    target.duration = packet.duration;
    target.flags = packet.flags;
    for (const SideData& data : packet.sideData) {
        std::uint8_t* const bytes =
            av_packet_new_side_data(&target, static_cast<AVPacketSideDataType>(data.type),
                                    static_cast<std::size_t>(data.bytes.size()));
        if (bytes == nullptr) {
            throw std::bad_alloc();
        }
        std::memcpy(bytes, data.bytes.constData(), static_cast<std::size_t>(data.bytes.size()));
    }
}

// Times that a muxer takes: none missing, and rising.
void Mend(AVPacket& packet, StreamCopy& copy) {
    if (packet.dts == AV_NOPTS_VALUE) {
        packet.dts = packet.pts;
    }
    if (!copy.isSparse && copy.lastDts != AV_NOPTS_VALUE && packet.dts <= copy.lastDts) {
        packet.dts = copy.lastDts + 1;
    }
    if (packet.pts == AV_NOPTS_VALUE || packet.pts < packet.dts) {
        packet.pts = packet.dts;
    }
    copy.lastDts = packet.dts;
}

// The keys of makers of telephones stand beside those that every reader knows.
bool HasKeysOfMakers(const AVDictionary* tags) {
    return av_dict_get(tags, "com.", nullptr, AV_DICT_IGNORE_SUFFIX) != nullptr;
}

QString ContainersFor(const AVStream& stream) {
    QStringList names;
    for (const FilmContainer container :
         {FilmContainer::Mp4, FilmContainer::Matroska, FilmContainer::QuickTime}) {
        if (CanHold(*OutputFormatOf(container), stream)) {
            names.append(ToText(container));
        }
    }
    return names.join(QStringLiteral(", "));
}

}  // namespace

Muxer::~Muxer() {
    if (file_ == nullptr) {
        return;
    }
    if (file_->pb != nullptr) {
        av_freep(&file_->pb->buffer);
        avio_context_free(&file_->pb);
    }
    avformat_free_context(file_);
}

Reason Muxer::Failure(int error) const {
    if (!outputError_.isEmpty()) {
        return outputError_;
    }
    return {ReasonCode::FilmsNotWritable, Reason(ReasonCode::Words, AvErrorText(error))};
}

int Muxer::WriteBytes(void* self, std::uint8_t* bytes, int length) {
    auto& muxer = *static_cast<Muxer*>(self);
    muxer.outputError_ =
        muxer.output_.Write({reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(length)});
    return muxer.outputError_.isEmpty() ? length : AVERROR(EIO);
}

std::int64_t Muxer::Seek(void* self, std::int64_t place, int whence) {
    auto& muxer = *static_cast<Muxer*>(self);
    const std::int64_t length = muxer.output_.Length();
    if (whence == AVSEEK_SIZE) {
        return length;
    }
    const std::int64_t from = whence == SEEK_CUR   ? muxer.output_.Place()
                              : whence == SEEK_END ? length
                                                   : 0;
    if (from + place < 0) {
        return AVERROR(EINVAL);
    }
    muxer.outputError_ = muxer.output_.MoveTo(from + place);
    return muxer.outputError_.isEmpty() ? from + place : AVERROR(EIO);
}

Reason Muxer::AddPictures(const FilmToWrite& film) {
    const bool wants = (file_->oformat->flags & AVFMT_GLOBALHEADER) != 0;
    if (Reason error = encoder_.Open(film, wants ? AV_CODEC_FLAG_GLOBAL_HEADER : 0);
        !error.isEmpty()) {
        return error;
    }
    pictures_ = avformat_new_stream(file_, nullptr);
    if (pictures_ == nullptr ||
        avcodec_parameters_from_context(pictures_->codecpar, &encoder_.Codec()) < 0) {
        throw std::bad_alloc();
    }
    const FilmEncoding& encoding = film.encoding;
    if (encoding.codec == FilmCodec::H265 && encoding.container != FilmContainer::Matroska) {
        pictures_->codecpar->codec_tag = MKTAG('h', 'v', 'c', '1');  // some players know no hev1
    }
    pictures_->time_base = frameTimes_ = RationalOf(film.timeBase);
    pictures_->sample_aspect_ratio = encoder_.Codec().sample_aspect_ratio;
    if (film.frameRate.num > 0) {
        pictures_->avg_frame_rate = RationalOf(film.frameRate);
    }
    if (!CanHold(*file_->oformat, *pictures_)) {
        return {ReasonCode::ContainerHoldsNo, ToText(encoding.container), ToText(encoding.codec),
                ContainersFor(*pictures_)};
    }
    return {};
}

void Muxer::AddTheRest(const FilmToWrite& film) {
    const FilmInfo* const source = film.source;
    if (source == nullptr) {
        return;
    }
    for (const StreamInfo& info : source->streams) {
        if (info.index == source->picture) {
            CopyTags(info.tags, pictures_->metadata);
            CopyPictureSideData(info, *pictures_);
            pictures_->disposition = info.disposition;
        }
    }
    copies_ = CopyStreams(*source, film.encoding.container, *file_, leftOut_);
    CopyTags(source->tags, file_->metadata);
    CopyChapters(*source, *file_);
}

Reason Muxer::WriteHeader(const FilmEncoding& encoding) {
    QByteArrayList flags;
    if (encoding.keepPart) {
        flags << "frag_keyframe"
              << "delay_moov"
              << "default_base_moof";
    }
    if (HasKeysOfMakers(file_->metadata)) {
        flags << "use_metadata_tags";
    }
    AVDictionary* options = nullptr;
    if (encoding.container != FilmContainer::Matroska && !flags.isEmpty()) {
        av_dict_set(&options, "movflags", flags.join('+').constData(), 0);
        if (encoding.keepPart) {
            av_dict_set(&options, "frag_duration", longestFragment, 0);
        }
    }
    const int written = avformat_write_header(file_, &options);
    av_dict_free(&options);
    begun_ = written >= 0;
    return begun_ ? Reason() : Failure(written);
}

Reason Muxer::Open(const FilmToWrite& film) {
    const AVOutputFormat* const format = OutputFormatOf(film.encoding.container);
    avformat_alloc_output_context2(&file_, format, nullptr, nullptr);
    packet_.reset(av_packet_alloc());
    auto* const buffer = static_cast<std::uint8_t*>(av_malloc(outputBuffer));
    if (file_ == nullptr || !packet_ || buffer == nullptr) {
        throw std::bad_alloc();
    }
    file_->pb = avio_alloc_context(buffer, outputBuffer, 1, this, nullptr, &WriteBytes, &Seek);
    if (file_->pb == nullptr) {
        av_free(buffer);
        throw std::bad_alloc();
    }
    file_->flags |= AVFMT_FLAG_CUSTOM_IO;
    if (Reason error = AddPictures(film); !error.isEmpty()) {
        return error;
    }
    AddTheRest(film);
    return WriteHeader(film.encoding);
}

Reason Muxer::TakePicture(AVPacket* packet) {
    packet->stream_index = pictures_->index;
    av_packet_rescale_ts(packet, frameTimes_, pictures_->time_base);
    const int written = av_interleaved_write_frame(file_, packet);
    return written < 0 ? Failure(written) : Reason();
}

Reason Muxer::Write(const FrameView& frame, std::int64_t pts, std::int64_t duration) {
    return encoder_.Encode(frame, pts, duration,
                           [this](AVPacket* packet) { return TakePicture(packet); });
}

Reason Muxer::Write(const FilmPacket& packet) {
    const auto copy = std::ranges::find(copies_, packet.stream, &StreamCopy::source);
    if (copy == copies_.end() || (packet.pts == noTime && packet.dts == noTime)) {
        return {};
    }
    Fill(*packet_, packet);
    packet_->stream_index = copy->stream->index;
    av_packet_rescale_ts(packet_.get(), copy->timeBase, copy->stream->time_base);
    Mend(*packet_, *copy);
    const int written = av_interleaved_write_frame(file_, packet_.get());
    return written < 0 ? Failure(written) : Reason();
}

Reason Muxer::Finish() {
    if (!begun_) {
        return {};
    }
    begun_ = false;
    if (Reason error = encoder_.Flush([this](AVPacket* packet) { return TakePicture(packet); });
        !error.isEmpty()) {
        return error;
    }
    const int written = av_write_trailer(file_);
    avio_flush(file_->pb);
    const int failed = written < 0 ? written : file_->pb->error;
    return failed < 0 ? Failure(failed) : Reason();
}

}  // namespace varnel
