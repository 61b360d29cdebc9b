// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/picture_encoder.h"

#include <QStringList>
#include <algorithm>

#include "film/writing/module/av_formats.h"
#include "film/writing/module/av_log.h"

namespace varnel {

namespace {

Reason NoSuchValue(const EncoderRow& row, const QString& what, const QString& value,
                   const QString& taken) {
    return {ReasonCode::EncoderTakesNoSuchValue, QString::fromLatin1(row.name), what, value, taken};
}

QString FormatText(const FrameFormat& format) {
    const AVPixelFormat known = PixelFormatOf(format);
    return known == AV_PIX_FMT_NONE ? QStringLiteral("%1 bits").arg(format.bits)
                                    : QString::fromLatin1(av_get_pix_fmt_name(known));
}

// The codecs whose encoders take such frames.
QString CodecsFor(const FrameFormat& format) {
    QStringList names;
    for (const EncoderRow& row : EncoderRows()) {
        const AVCodec* const encoder = avcodec_find_encoder_by_name(row.name);
        const QString name = ToText(row.codec);
        if (encoder != nullptr && FittingFormat(*encoder, format) && !names.contains(name)) {
            names.append(name);
        }
    }
    return names.isEmpty() ? QStringLiteral("-") : names.join(QStringLiteral(", "));
}

bool TakesSpeed(const EncoderRow& row, const QString& speed) {
    const QString speeds = QString::fromLatin1(row.speeds);
    if (const qsizetype to = speeds.indexOf(QStringLiteral(" to ")); to > 0) {
        bool isNumber = false;
        const int number = speed.toInt(&isNumber);
        return isNumber && number >= speeds.left(to).toInt() &&
               number <= speeds.mid(to + 4).toInt();
    }
    return speeds.split(u' ').contains(speed);
}

// Of encoders that need one and frames that come at any time.
AVRational GuessedRate(const FilmToWrite& film) {
    if (film.frameRate.num > 0 && film.frameRate.den > 0) {
        return RationalOf(film.frameRate);
    }
    const FilmInfo* const source = film.source;
    if (source != nullptr && source->frames > 1 && source->seconds > 0.0) {
        return av_d2q(static_cast<double>(source->frames) / source->seconds, 1 << 16);
    }
    return {25, 1};
}

void SetColours(const FrameFormat& format, AVCodecContext& codec) {
    codec.color_primaries = static_cast<AVColorPrimaries>(format.primaries);
    codec.color_trc = static_cast<AVColorTransferCharacteristic>(format.transfer);
    codec.colorspace = format.chroma == ChromaLayout::Colours
                           ? AVCOL_SPC_RGB
                           : static_cast<AVColorSpace>(format.matrix);
    const bool isFull = format.fullRange || format.chroma == ChromaLayout::Colours;
    codec.color_range = isFull ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    codec.chroma_sample_location = ChromaLocationOf(format);
}

}  // namespace

Reason PictureEncoder::Failure(int error) const {
    return {ReasonCode::EncoderFailed, QString::fromLatin1(row_->name), AvErrorText(error)};
}

Reason PictureEncoder::SetChoices(const FilmEncoding& encoding) {
    for (const auto& [name, value] : row_->settings) {
        av_opt_set(codec_.get(), name, value, AV_OPT_SEARCH_CHILDREN);
    }
    if (encoding.crf) {
        const QString crf = QString::number(*encoding.crf);
        if (*encoding.crf < 0 || *encoding.crf > row_->mostCrf) {
            return NoSuchValue(*row_, QStringLiteral("crf"), crf,
                               row_->mostCrf < 0 ? QStringLiteral("none")
                                                 : QStringLiteral("0 to %1").arg(row_->mostCrf));
        }
        av_opt_set(codec_.get(), "crf", crf.toLatin1().constData(), AV_OPT_SEARCH_CHILDREN);
    }
    if (!encoding.speed.isEmpty()) {
        if (row_->speed == nullptr || !TakesSpeed(*row_, encoding.speed)) {
            return NoSuchValue(*row_, QStringLiteral("speed"), encoding.speed,
                               row_->speed == nullptr ? QStringLiteral("none")
                                                      : QString::fromLatin1(row_->speeds));
        }
        av_opt_set(codec_.get(), row_->speed, encoding.speed.toLatin1().constData(),
                   AV_OPT_SEARCH_CHILDREN);
    }
    return {};
}

Reason PictureEncoder::Set(const FilmToWrite& film) {
    const std::optional<FrameFormat> format = FittingFormat(*codec_->codec, film.format);
    if (!format) {
        return {ReasonCode::EncoderTakesNoSuchFrames, QString::fromLatin1(row_->name),
                FormatText(film.format), CodecsFor(film.format)};
    }
    fitting_.emplace(film.format, *format);
    codec_->pix_fmt = PixelFormatOf(*format);
    codec_->width = format->size.width;
    codec_->height = format->size.height;
    codec_->time_base = RationalOf(film.timeBase);
    codec_->framerate = GuessedRate(film);
    codec_->sample_aspect_ratio = RationalOf(film.sampleAspect);
    codec_->thread_count = film.encoding.threads;
    SetColours(*format, *codec_);
    return SetChoices(film.encoding);
}

Reason PictureEncoder::Open(const FilmToWrite& film, int flags) {
    row_ = FindEncoder(film.encoding.codec);
    if (row_ == nullptr) {
        QStringList names;
        for (const EncoderRow& row : EncoderRows()) {
            if (row.codec == film.encoding.codec) {
                names.append(QString::fromLatin1(row.name));
            }
        }
        return {ReasonCode::NoEncoder, ToText(film.encoding.codec),
                names.join(QStringLiteral(", "))};
    }
    const AVCodec* const encoder = avcodec_find_encoder_by_name(row_->name);
    codec_.reset(avcodec_alloc_context3(encoder));
    frame_.reset(av_frame_alloc());
    packet_.reset(av_packet_alloc());
    if (!codec_ || !frame_ || !packet_) {
        throw std::bad_alloc();
    }
    if (Reason error = Set(film); !error.isEmpty()) {
        return error;
    }
    codec_->flags |= flags;
    const int opened = avcodec_open2(codec_.get(), encoder, nullptr);
    ended_ = opened < 0;
    return ended_ ? Failure(opened) : Reason();
}

PictureEncoder::~PictureEncoder() {
    if (!ended_ && row_->mustEnd) {
        avcodec_send_frame(codec_.get(), nullptr);
        while (avcodec_receive_packet(codec_.get(), packet_.get()) >= 0) {
            av_packet_unref(packet_.get());
        }
    }
}

Reason PictureEncoder::Send(const AVFrame* frame, const Taker& take) {
    int result = avcodec_send_frame(codec_.get(), frame);
    if (result < 0) {
        return Failure(result);
    }
    while (true) {
        result = avcodec_receive_packet(codec_.get(), packet_.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) {
            return {};
        }
        if (result < 0) {
            return Failure(result);
        }
        if (const auto duration = durations_.find(packet_->pts); duration != durations_.end()) {
            packet_->duration = duration->second;
            durations_.erase(duration);
        }
        if (Reason error = take(packet_.get()); !error.isEmpty()) {
            return error;
        }
    }
}

Reason PictureEncoder::Encode(const FrameView& frame, std::int64_t pts, std::int64_t duration,
                              const Taker& take) {
    const FrameView fitted = fitting_->Fit(frame);
    frame_->format = codec_->pix_fmt;
    frame_->width = codec_->width;
    frame_->height = codec_->height;
    frame_->pts = pts;
    frame_->color_range = codec_->color_range;
    frame_->color_primaries = codec_->color_primaries;
    frame_->color_trc = codec_->color_trc;
    frame_->colorspace = codec_->colorspace;
    frame_->chroma_location = codec_->chroma_sample_location;
    frame_->sample_aspect_ratio = codec_->sample_aspect_ratio;
    for (int plane = 0; plane < PlanesOf(fitted.format); ++plane) {
        const auto& [first, pitch] = fitted.planes[static_cast<std::size_t>(plane)];
        // The library's frames are not const; encoders only read them.
        frame_->data[plane] = reinterpret_cast<std::uint8_t*>(const_cast<std::byte*>(first));
        frame_->linesize[plane] = static_cast<int>(pitch);
    }
    if (row_->copiesFrames) {  // with a buffer the library does not make a copy of its own
        frame_->buf[0] = av_buffer_create(
            frame_->data[0], 1, [](void*, std::uint8_t*) {}, nullptr, AV_BUFFER_FLAG_READONLY);
        if (frame_->buf[0] == nullptr) {
            throw std::bad_alloc();
        }
    }
    durations_[pts] = duration;
    Reason error = Send(frame_.get(), take);
    av_frame_unref(frame_.get());
    return error;
}

Reason PictureEncoder::Flush(const Taker& take) {
    ended_ = true;
    return Send(nullptr, take);
}

}  // namespace varnel
