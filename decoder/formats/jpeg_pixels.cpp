// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/jpeg_pixels.h"

#include <QByteArray>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "remap/image/freeimage_bitmap.h"
#include "remap/image/jpeg_errors.h"
#include "remap/image/pixel_format.h"

namespace varnel {

namespace {

constexpr QByteArrayView jfif("JFIF\0", 5);
constexpr int colourProfileMarker = JPEG_APP0 + 2;

// Reads as the image library does. The size of its buffer shows: near the buffer's end libjpeg
// decodes more carefully and warns of wrong codes that it passes over elsewhere.
class FileSource : public jpeg_source_mgr {
  public:
    explicit FileSource(std::FILE* file) : jpeg_source_mgr{}, file_(file) {
        init_source = [](j_decompress_ptr) {};
        fill_input_buffer = [](j_decompress_ptr info) -> boolean {
            static_cast<FileSource*>(info->src)->Fill(info);
            return TRUE;
        };
        skip_input_data = [](j_decompress_ptr info, long count) {
            static_cast<FileSource*>(info->src)->Skip(info, count);
        };
        resync_to_restart = &jpeg_resync_to_restart;
        term_source = [](j_decompress_ptr) {};
    }

  private:
    void Fill(j_decompress_ptr info) {
        bytes_in_buffer = std::fread(buffer_.data(), 1, buffer_.size(), file_);
        if (bytes_in_buffer == 0) {
            info->err->msg_code = JWRN_JPEG_EOF;
            info->err->emit_message(reinterpret_cast<j_common_ptr>(info), -1);
            buffer_[0] = 0xFF;
            buffer_[1] = JPEG_EOI;
            bytes_in_buffer = 2;
        }
        next_input_byte = buffer_.data();
    }
    void Skip(j_decompress_ptr info, long count) {
        auto rest = static_cast<std::size_t>(count > 0 ? count : 0);
        while (rest > bytes_in_buffer) {
            rest -= bytes_in_buffer;
            Fill(info);
        }
        next_input_byte += rest;
        bytes_in_buffer -= rest;
    }

    std::FILE* file_;
    std::array<JOCTET, 4096> buffer_{};
};

// libjpeg's work on one photo. Nothing may be destroyed in functions that set the way back: errors
// jump over them.
class JpegDecoder {
  public:
    explicit JpegDecoder(std::FILE* file) : source_(file) { info_.err = errors_.Base(); }
    ~JpegDecoder() { jpeg_destroy_decompress(&info_); }
    JpegDecoder(const JpegDecoder&) = delete;
    JpegDecoder& operator=(const JpegDecoder&) = delete;

    // Up to the first pixel; of a picture in several scans, the whole file is read for that.
    bool Start(PixelSize expected) {
        if (setjmp(errors_.Back()) != 0) {
            return false;
        }
        jpeg_create_decompress(&info_);
        info_.src = &source_;
        jpeg_save_markers(&info_, JPEG_COM, 0xFFFF);
        jpeg_save_markers(&info_, JPEG_APP0, 0xFFFF);
        jpeg_save_markers(&info_, colourProfileMarker, 0xFFFF);
        jpeg_read_header(&info_, TRUE);
        if (!IsOrdinary() || info_.image_width != static_cast<JDIMENSION>(expected.width) ||
            info_.image_height != static_cast<JDIMENSION>(expected.height)) {
            return false;
        }
        info_.out_color_space = JCS_EXT_BGR;
        jpeg_start_decompress(&info_);
        return true;
    }

    // The next rows, the last of them to the bottom. To be called once the decoder has started, for
    // no more rows than are left; with the picture's last row it is done.
    bool Rows(PixelRows rows, JDIMENSION count) {
        if (setjmp(errors_.Back()) != 0) {
            return false;
        }
        auto* const bottom = reinterpret_cast<JSAMPROW>(rows.bottom);
        const JDIMENSION end = info_.output_scanline + count;
        while (info_.output_scanline < end) {
            std::array<JSAMPROW, 4> next;
            JDIMENSION asked = 0;
            for (JDIMENSION y = info_.output_scanline; asked < next.size() && y < end; ++y) {
                next[asked++] = bottom + rows.pitch * (end - 1 - y);
            }
            jpeg_read_scanlines(&info_, next.data(), asked);
        }
        if (end == info_.output_height) {
            jpeg_finish_decompress(&info_);
        }
        return true;
    }

    // Comments, resolution and colour profile, as the segments of a file.
    QByteArray Metadata() const {
        QByteArray segments;
        for (const jpeg_marker_struct* one = info_.marker_list; one != nullptr; one = one->next) {
            const QByteArrayView data(reinterpret_cast<const char*>(one->data),
                                      static_cast<qsizetype>(one->data_length));
            const bool isApp0 = one->marker == JPEG_APP0;
            if (isApp0 && data.size() < jfif.size()) {  // too short for anything
                continue;
            }
            std::array<char, 4> head{'\xFF', static_cast<char>(one->marker)};
            qToBigEndian(static_cast<quint16>(data.size() + 2), &head[2]);
            segments.append(head.data(), head.size());
            segments += data;
            if (isApp0 && data.size() > jfif.size() && data.startsWith(jfif)) {
                // libjpeg has warned of another version already, and nobody else asks.
                segments[segments.size() - data.size() + jfif.size()] = 1;
            }
        }
        return segments;
    }

    bool IsGrey() const { return info_.num_components == 1; }
    bool HasWarned() const { return *errors_.Warning() != '\0'; }
    const char* Warning() const { return errors_.Warning(); }

  private:
    bool IsOrdinary() const {
        return info_.data_precision == 8 && info_.arith_code == FALSE &&
               (info_.jpeg_color_space == JCS_GRAYSCALE || info_.jpeg_color_space == JCS_YCbCr ||
                info_.jpeg_color_space == JCS_RGB);
    }

    JpegErrors errors_;
    FileSource source_;
    jpeg_decompress_struct info_{};
};

// One block of grey or three of colour, all zero: its two codes are single bits.
QByteArray TinyPicture(bool isGrey) {
    const auto table = [](char number) {
        return QByteArray("\xFF\xC4\0\x14", 4) + number + '\1' + QByteArray(16, '\0');
    };
    QByteArray file =
        QByteArray("\xFF\xDB\0\x43\0", 5) + QByteArray(64, '\1') + table('\0') + table('\x10');
    if (isGrey) {
        return file.append("\xFF\xC0\0\x0B\x08\0\x08\0\x08\1\1\x11\0", 13)
            .append("\xFF\xDA\0\x08\1\1\0\0\x3F\0\x3F\xFF\xD9", 13);
    }
    return file.append("\xFF\xC0\0\x11\x08\0\x08\0\x08\3\1\x11\0\2\x11\0\3\x11\0", 19)
        .append("\xFF\xDA\0\x0C\3\1\0\2\0\3\0\0\x3F\0\3\xFF\xD9", 17);
}

// The library reads metadata out of a JPEG only.
std::optional<BitmapMetadata> MetadataIn(const QByteArray& segments, bool isGrey) {
    QByteArray file = QByteArray("\xFF\xD8", 2) + segments + TinyPicture(isGrey);
    FIMEMORY* const memory =
        FreeImage_OpenMemory(reinterpret_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size()));
    const LibraryBitmap bitmap(FreeImage_LoadFromMemory(FIF_JPEG, memory, JPEG_ACCURATE));
    FreeImage_CloseMemory(memory);
    return bitmap ? std::optional(LibraryMetadata(bitmap.get())) : std::nullopt;
}

bool AllRows(JpegDecoder& decoder, PixelSize size, PixelRows rows, int orientation) {
    if (orientation == 1) {
        return decoder.Rows(rows, static_cast<JDIMENSION>(size.height));
    }
    // While they are in the cache; in whole blocks of the coding.
    constexpr std::int32_t bandRows = 64;
    const std::size_t pitch = RowPitch(size.width);
    std::vector<std::byte> decoded(pitch * bandRows);
    const PixelRows band{decoded.data(), pitch};
    for (std::int32_t left = size.height; left > 0;) {
        const std::int32_t count = std::min(left, bandRows);
        if (!decoder.Rows(band, static_cast<JDIMENSION>(count))) {
            return false;
        }
        left -= count;
        TurnRows(size, {left, count}, band, orientation, rows);
    }
    return true;
}

}  // namespace

std::optional<BitmapMetadata> ReadJpegPixels(std::FILE* file, PixelSize expected, PixelRows rows,
                                             int orientation) {
    std::rewind(file);
    JpegDecoder decoder(file);
    if (!decoder.Start(expected)) {
        return std::nullopt;
    }
    const QByteArray segments = decoder.Metadata();
    const bool warnedEarly = decoder.HasWarned();
    if (!AllRows(decoder, expected, rows, orientation)) {
        return std::nullopt;
    }
    // In the order of the library's own work.
    if (warnedEarly) {
        FreeImage_OutputMessageProc(FIF_JPEG, "%s", decoder.Warning());
    }
    std::optional<BitmapMetadata> metadata = MetadataIn(segments, decoder.IsGrey());
    if (!warnedEarly && decoder.HasWarned()) {
        FreeImage_OutputMessageProc(FIF_JPEG, "%s", decoder.Warning());
    }
    return metadata;
}

}  // namespace varnel
