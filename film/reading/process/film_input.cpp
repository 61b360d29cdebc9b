// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/film_input.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <new>
#include <span>

namespace varnel {

namespace {

constexpr int bufferLength = 1 << 16;  // bytes

// What IsFilm knows. Play lists, addresses and descriptions that lead to other files are not among
// them.
constexpr char containers[] =
    "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,mpegts,mpeg,asf,flv,ogg,mxf,ivf,nut,yuv4mpegpipe";

int RefuseToOpen(AVFormatContext* /*container*/, AVIOContext** /*bytes*/, const char* /*url*/,
                 int /*flags*/, AVDictionary** /*options*/) {
    return AVERROR(EACCES);
}

bool IsEncrypted(const AVStream& stream) {
    return stream.codecpar->codec_tag == MKTAG('e', 'n', 'c', 'v') ||
           av_stream_get_side_data(&stream, AV_PKT_DATA_ENCRYPTION_INIT_INFO, nullptr) != nullptr ||
           av_dict_get(stream.metadata, "enc_key_id", nullptr, 0) != nullptr;
}

QString NameOf(const AVCodecParameters& codec) {
    if (codec.codec_id != AV_CODEC_ID_NONE) {
        return QString::fromUtf8(avcodec_get_name(codec.codec_id));
    }
    std::array<char, AV_FOURCC_MAX_STRING_SIZE> text{};
    return QString::fromUtf8(av_fourcc_make_string(text.data(), codec.codec_tag));
}

// The one that is shown, and not a cover; decoders are looked for afterwards, so that a codec
// without one is named.
int PictureOf(AVFormatContext* container) {
    const int best = av_find_best_stream(container, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (best >= 0 && (container->streams[best]->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0) {
        return best;
    }
    for (unsigned n = 0; n < container->nb_streams; ++n) {
        const AVStream& stream = *container->streams[n];
        if (stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
            (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) == 0) {
            return static_cast<int>(n);
        }
    }
    return -1;
}

}  // namespace

Reason LibavReason(int error) {
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    return error == AVERROR(ENOMEM) ? Reason(ReasonCode::NotEnoughMemory)
                                    : Reason(ReasonCode::Damaged, QString::fromUtf8(text.data()));
}

FilmInput::FilmInput(Descriptor file) : file_(std::move(file)) {
    // The C library's fstat() is a call that is refused here.
    length_ = std::max<std::int64_t>(lseek(file_.Get(), 0, SEEK_END), 0);
    auto* const buffer = static_cast<std::uint8_t*>(av_malloc(bufferLength));
    if (buffer != nullptr) {
        bytes_ = avio_alloc_context(buffer, bufferLength, 0, this, &ReadBytes, nullptr, &SeekBytes);
    }
    container_ = avformat_alloc_context();
    if (bytes_ == nullptr || container_ == nullptr) {
        throw std::bad_alloc();
    }
}

FilmInput::~FilmInput() {
    avformat_close_input(&container_);
    if (bytes_ != nullptr) {
        av_freep(&bytes_->buffer);
    }
    avio_context_free(&bytes_);
}

int FilmInput::ReadBytes(void* input, std::uint8_t* bytes, int length) {
    auto& self = *static_cast<FilmInput*>(input);
    const ssize_t got =
        pread(self.file_.Get(), bytes, static_cast<std::size_t>(length), self.place_);
    if (got > 0) {
        self.place_ += got;
        return static_cast<int>(got);
    }
    return got == 0 ? AVERROR_EOF : AVERROR(errno);
}

std::int64_t FilmInput::SeekBytes(void* input, std::int64_t offset, int whence) {
    auto& self = *static_cast<FilmInput*>(input);
    if ((whence & AVSEEK_SIZE) != 0) {
        return self.length_;
    }
    const int from = whence & ~AVSEEK_FORCE;
    const std::int64_t base = from == SEEK_CUR ? self.place_ : from == SEEK_END ? self.length_ : 0;
    if (offset < -base || offset > std::numeric_limits<std::int64_t>::max() - base) {
        return AVERROR(EINVAL);
    }
    self.place_ = base + offset;
    return self.place_;
}

bool FilmInput::IsCutBox() const {
    std::int64_t place = 0;
    bool isMovie = false;
    while (place < length_) {
        // Length and name; 1 stands for a length of 8 bytes behind them, 0 for all that is left.
        std::array<std::uint8_t, 16> head{};
        if (pread(file_.Get(), head.data(), head.size(), place) < 8) {
            return true;
        }
        const bool isLong = AV_RB32(head.data()) == 1;
        const std::uint64_t length = isLong ? AV_RB64(head.data() + 8) : AV_RB32(head.data());
        const bool isKnown = std::ranges::all_of(
            std::span(head).subspan(4, 4), [](std::uint8_t c) { return c >= ' ' && c < 0x7F; });
        if (!isKnown || length < (isLong ? 16U : 8U)) {
            return false;
        }
        if (length > static_cast<std::uint64_t>(length_ - place)) {
            return true;
        }
        isMovie = isMovie || std::memcmp(head.data() + 4, "moov", 4) == 0;
        place += static_cast<std::int64_t>(length);
    }
    return !isMovie;
}

Reason FilmInput::Open() {
    container_->pb = bytes_;
    container_->flags |= AVFMT_FLAG_CUSTOM_IO;
    container_->io_open = &RefuseToOpen;
    container_->protocol_whitelist = av_strdup("");
    container_->format_whitelist = av_strdup(containers);
    // Frees the container where it fails.
    if (const int error = avformat_open_input(&container_, nullptr, nullptr, nullptr); error < 0) {
        return IsCutBox() ? Reason(ReasonCode::FileCutShort) : LibavReason(error);
    }
    if (const int error = avformat_find_stream_info(container_, nullptr); error < 0) {
        return LibavReason(error);
    }
    picture_ = PictureOf(container_);
    if (picture_ < 0) {
        return ReasonCode::FilmWithoutPicture;
    }
    if (IsEncrypted(Picture())) {
        return ReasonCode::FilmEncrypted;
    }
    const AVCodecParameters& codec = *Picture().codecpar;
    if (avcodec_find_decoder(codec.codec_id) == nullptr) {
        return {ReasonCode::FilmCodecUnknown, NameOf(codec)};
    }
    return {};
}

bool FilmInput::Seek(std::int64_t time) {
    if (time == AV_NOPTS_VALUE) {
        return av_seek_frame(container_, -1, 0, AVSEEK_FLAG_BYTE) >= 0;
    }
    return avformat_seek_file(container_, picture_, std::numeric_limits<std::int64_t>::min(), time,
                              time, 0) >= 0 ||
           av_seek_frame(container_, picture_, time, AVSEEK_FLAG_BACKWARD) >= 0;
}

}  // namespace varnel
