// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/jpeg_pixels.h"

#include <QByteArray>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "decoder/formats/readers/picture_forms.h"
#include "remap/image/jpeg_errors.h"
#include "remap/image/library_messages.h"
#include "remap/image/pixel_format.h"

namespace varnel {

namespace {

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

    // Up to the first pixel; of a picture in several scans, the whole file is read for that. Where
    // planes are wanted they are given of pictures that have them.
    bool Start(PixelSize expected, bool wantsPlanes = false) {
        if (setjmp(errors_.Back()) != 0) {
            return false;
        }
        jpeg_create_decompress(&info_);
        info_.src = &source_;
        jpeg_save_markers(&info_, JPEG_COM, 0xFFFF);
        jpeg_save_markers(&info_, colourProfileMarker, 0xFFFF);
        jpeg_read_header(&info_, TRUE);
        if (!IsOrdinary() || info_.image_width != static_cast<JDIMENSION>(expected.width) ||
            info_.image_height != static_cast<JDIMENSION>(expected.height)) {
            return false;
        }
        info_.out_color_space = JCS_EXT_BGR;
        if (wantsPlanes && HasPlanes()) {
            info_.raw_data_out = TRUE;
            info_.out_color_space = JCS_YCbCr;
        }
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

    bool GivesPlanes() const { return info_.raw_data_out != FALSE; }

    // The next rows where planes are given, as many as fit the piece or are left.
    bool Planes(const PiecePlanes& planes, std::byte* piece) {
        if (setjmp(errors_.Back()) != 0) {
            return false;
        }
        auto* const samples = reinterpret_cast<JSAMPROW>(piece);
        constexpr std::size_t block = PiecePlanes::blockRows;
        for (std::size_t row = 0; row < planes.rows && info_.output_scanline < info_.output_height;
             row += block) {
            std::array<JSAMPROW, block> brightness;
            std::array<JSAMPROW, block / 2> blue;
            std::array<JSAMPROW, block / 2> red;
            for (std::size_t n = 0; n < block; ++n) {
                brightness[n] = samples + planes.Brightness(row + n);
            }
            for (std::size_t n = 0; n < block / 2; ++n) {
                blue[n] = samples + planes.Blue(row / 2 + n);
                red[n] = samples + planes.Red(row / 2 + n);
            }
            std::array<JSAMPARRAY, 3> all{brightness.data(), blue.data(), red.data()};
            jpeg_read_raw_data(&info_, all.data(), block);
        }
        if (info_.output_scanline >= info_.output_height) {
            jpeg_finish_decompress(&info_);
        }
        return true;
    }

    // Comments, resolution and colour profile, as the image library reads them. To be called once
    // the decoder has started.
    BitmapMetadata Metadata() {
        BitmapMetadata metadata;
        if (const auto perMetre = DotsPerMetre(info_.X_density)) {
            metadata.dotsPerMetreX = *perMetre;
            metadata.dotsPerMetreY = *DotsPerMetre(info_.Y_density);
        }
        for (const jpeg_marker_struct* one = info_.marker_list; one != nullptr; one = one->next) {
            if (one->marker == JPEG_COM) {
                const QByteArray text(reinterpret_cast<const char*>(one->data),
                                      static_cast<qsizetype>(one->data_length));
                metadata.comments["Comment"] = text.constData();  // up to a zero byte
            }
        }
        JOCTET* profile = nullptr;
        unsigned length = 0;
        if (ReadProfile(&profile, &length)) {
            metadata.colourProfile =
                QByteArray(reinterpret_cast<const char*>(profile), static_cast<qsizetype>(length));
        }
        std::free(profile);
        return metadata;
    }

    bool HasWarned() const { return *errors_.Warning() != '\0'; }
    const char* Warning() const { return errors_.Warning(); }

  private:
    // Nothing where the file does not tell them.
    std::optional<std::uint32_t> DotsPerMetre(UINT16 density) const {
        constexpr UINT8 inches = 1;
        constexpr UINT8 centimetres = 2;
        constexpr double metresPerInch = 0.0254;
        switch (info_.density_unit) {
            case inches:
                return static_cast<std::uint32_t>(std::lround(density / metresPerInch));
            case centimetres:
                return density * 100U;
            default:
                return std::nullopt;
        }
    }

    // A profile with pieces missing gives none and is nothing to warn of.
    bool ReadProfile(JOCTET** profile, unsigned* length) {
        const auto warn = info_.err->emit_message;
        info_.err->emit_message = [](j_common_ptr, int) {};
        if (setjmp(errors_.Back()) == 0) {
            jpeg_read_icc_profile(&info_, profile, length);
        }
        info_.err->emit_message = warn;
        return *profile != nullptr;
    }

    bool IsOrdinary() const {
        return info_.data_precision == 8 && info_.arith_code == FALSE &&
               (info_.jpeg_color_space == JCS_GRAYSCALE || info_.jpeg_color_space == JCS_YCbCr ||
                info_.jpeg_color_space == JCS_RGB);
    }

    // Colours for each four pixels.
    bool HasPlanes() const {
        const auto samples = [this](int n, int across, int down) {
            return info_.comp_info[n].h_samp_factor == across &&
                   info_.comp_info[n].v_samp_factor == down;
        };
        return info_.jpeg_color_space == JCS_YCbCr && info_.num_components == 3 &&
               samples(0, 2, 2) && samples(1, 1, 1) && samples(2, 1, 1) &&
               info_.image_width > 4;  // narrower ones have their colours repeated, not blended
    }

    JpegErrors errors_;
    FileSource source_;
    jpeg_decompress_struct info_{};
};

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

bool NextPiece(JpegDecoder& decoder, const PiecePlanes& planes, PixelRows rows,
               std::int32_t count) {
    return decoder.GivesPlanes() ? decoder.Planes(planes, rows.bottom)
                                 : decoder.Rows(rows, static_cast<JDIMENSION>(count));
}

bool AllPieces(JpegDecoder& decoder, PixelSize size, int rowsOfAPiece, RowPieces& pieces) {
    const PiecePlanes planes(size, rowsOfAPiece);
    for (std::int32_t left = size.height; left > 0;) {
        const std::int32_t count = std::min(left, rowsOfAPiece);
        std::byte* const room = pieces.Room();
        if (room == nullptr || !NextPiece(decoder, planes, {room, RowPitch(size.width)}, count) ||
            !pieces.Give()) {
            return false;
        }
        left -= count;
    }
    return true;
}

void PassOnWarning(const JpegDecoder& decoder) {
    if (decoder.HasWarned()) {
        AddLibraryMessage(QString::fromLocal8Bit(decoder.Warning()));
    }
}

}  // namespace

PiecesEnd ReadJpegPieces(std::FILE* file, PixelSize expected, int orientation, RowPieces& pieces) {
    std::rewind(file);
    JpegDecoder decoder(file);
    if (!decoder.Start(expected, orientation == 1 && pieces.WantsPlanar())) {
        return PiecesEnd::NotBegun;
    }
    // Others may read in the file before the first piece.
    const long place = std::ftell(file);
    const int rows =
        pieces.Begin({expected, orientation, TurnedMetadata(decoder.Metadata(), orientation),
                      decoder.GivesPlanes()});
    if (rows <= 0 || std::fseek(file, place, SEEK_SET) != 0 ||
        !AllPieces(decoder, expected, rows, pieces)) {
        return PiecesEnd::Broken;
    }
    PassOnWarning(decoder);
    return PiecesEnd::Whole;
}

std::optional<BitmapMetadata> ReadJpegPixels(std::FILE* file, PixelSize expected, PixelRows rows,
                                             int orientation) {
    std::rewind(file);
    JpegDecoder decoder(file);
    if (!decoder.Start(expected)) {
        return std::nullopt;
    }
    BitmapMetadata metadata = decoder.Metadata();
    if (!AllRows(decoder, expected, rows, orientation)) {
        return std::nullopt;
    }
    PassOnWarning(decoder);
    return metadata;
}

}  // namespace varnel
