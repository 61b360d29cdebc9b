// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/png_head.h"

#include <libdeflate.h>
#include <png.h>

#include <QtEndian>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/coders/memory_file.h"

namespace varnel {

namespace {

// The chunks that hold text: keywords and texts.
struct Text {
    int compression;
    QByteArray keyword;
    QByteArray text;
};

// IPTC in a chunk of compressed text, as there is none for it: its type, its length and its bytes
// in hexadecimal digits.
QByteArray ProfileText(const QByteArray& resource) {
    constexpr qsizetype digitsInLine = 72;
    QByteArray text = "\niptc\n" + QByteArray::number(resource.size()).rightJustified(8) + '\n';
    const QByteArray digits = resource.toHex();
    for (qsizetype at = 0; at < digits.size(); at += digitsInLine) {
        text += digits.mid(at, digitsInLine) + '\n';
    }
    return text;
}

std::vector<Text> TextsFor(const Bitmap& bitmap, const WrittenMetadata& metadata) {
    std::vector<Text> texts;
    if (!metadata.xmp.isEmpty()) {
        texts.push_back({PNG_ITXT_COMPRESSION_NONE, "XML:com.adobe.xmp", metadata.xmp});
    }
    if (!metadata.iptc.isEmpty()) {
        texts.push_back({PNG_TEXT_COMPRESSION_zTXt, "Raw profile type iptc",
                         ProfileText(IptcResource(metadata.iptc))});
    }
    const auto& comments = bitmap.metadata.comments;
    for (auto comment = comments.begin(); comment != comments.end(); ++comment) {
        texts.push_back({PNG_ITXT_COMPRESSION_NONE, comment.key(), comment.value()});
    }
    return texts;
}

// libpng's work. It reports an error through a call that must not return: nothing may be destroyed
// in the function that sets the way back.
class HeadWriter {
  public:
    explicit HeadWriter(std::vector<Text>& texts)
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, this, &GoBack, &Ignore)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
        if (info_ == nullptr) {
            png_destroy_write_struct(&png_, nullptr);
            throw std::bad_alloc();
        }
        for (Text& text : texts) {
            png_text& its = texts_.emplace_back();
            its.compression = text.compression;
            its.key = text.keyword.data();
            its.text = text.text.data();
            its.text_length = its.itxt_length = static_cast<png_size_t>(text.text.size());
        }
    }
    ~HeadWriter() { png_destroy_write_struct(&png_, &info_); }
    HeadWriter(const HeadWriter&) = delete;
    HeadWriter& operator=(const HeadWriter&) = delete;

    bool Write(const Bitmap& bitmap, QByteArray& exif, MemoryFile& file) {
        if (setjmp(png_jmpbuf(png_)) != 0) {
            return false;
        }
        png_set_write_fn(png_, &file, &WriteTo, nullptr);
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(bitmap.Size().width),
                     static_cast<png_uint_32>(bitmap.Size().height), BitsPerSample(bitmap.Format()),
                     HasAlpha(bitmap.Format()) ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        const BitmapMetadata& metadata = bitmap.metadata;
        if (metadata.dotsPerMetreX > 0 && metadata.dotsPerMetreY > 0) {
            png_set_pHYs(png_, info_, metadata.dotsPerMetreX, metadata.dotsPerMetreY,
                         PNG_RESOLUTION_METER);
        }
        if (!metadata.colourProfile.isEmpty()) {
            png_set_iCCP(png_, info_, "Embedded Profile", PNG_COMPRESSION_TYPE_BASE,
                         reinterpret_cast<png_const_bytep>(metadata.colourProfile.constData()),
                         static_cast<png_uint_32>(metadata.colourProfile.size()));
        }
        if (!exif.isEmpty()) {
            png_set_eXIf_1(png_, info_, static_cast<png_uint_32>(exif.size()),
                           reinterpret_cast<png_bytep>(exif.data()));
        }
        if (!texts_.empty()) {
            png_set_text(png_, info_, texts_.data(), static_cast<int>(texts_.size()));
        }
        png_write_info(png_, info_);
        return true;
    }
    const QString& Message() const { return message_; }

  private:
    [[noreturn]] static void GoBack(png_structp png, png_const_charp message) {
        static_cast<HeadWriter*>(png_get_error_ptr(png))->message_ = QString::fromLatin1(message);
        png_longjmp(png, 1);
    }
    static void Ignore(png_structp /*png*/, png_const_charp /*warning*/) {}
    static void WriteTo(png_structp png, png_bytep bytes, png_size_t length) {
        if (!static_cast<MemoryFile*>(png_get_io_ptr(png))
                 ->Write(bytes, static_cast<qint64>(length))) {
            png_error(png, "no room");
        }
    }

    png_structp png_;
    png_infop info_;
    std::vector<png_text> texts_;
    QString message_;
};

}  // namespace

PngHead PngHeadFor(const Bitmap& bitmap, const WrittenMetadata& metadata) {
    std::vector<Text> texts = TextsFor(bitmap, metadata);
    QByteArray exif = metadata.exif;
    MemoryFile file(largestFile);
    HeadWriter writer(texts);
    if (writer.Write(bitmap, exif, file)) {
        return {std::move(file.Bytes()), {}};
    }
    if (!file.Error().isEmpty()) {
        return {{}, file.Error()};
    }
    return {{}, {ReasonCode::Added, Reason(ReasonCode::CannotBeEncoded), writer.Message()}};
}

void SealPngChunk(char* chunk, qsizetype dataLength, const char* type) {
    qToBigEndian<quint32>(static_cast<quint32>(dataLength), chunk);
    std::memcpy(chunk + 4, type, 4);
    const std::uint32_t sum =
        libdeflate_crc32(0, chunk + 4, 4 + static_cast<std::size_t>(dataLength));
    qToBigEndian<quint32>(sum, chunk + pngChunkStart + dataLength);
}

}  // namespace varnel
