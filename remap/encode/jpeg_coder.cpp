// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/jpeg_coder.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <new>
#include <utility>
#include <vector>

#include "remap/encode/freeimage_encoder.h"
#include "remap/image/jpeg_errors.h"

namespace varnel {

namespace {

// Restart markers are numbered 0 to 7 in turn. With one after each strip, every band of eight
// strips begins with the same number, so bands can be coded apart.
constexpr int stripHeight = 16;  // rows of pixels: one row of blocks, two at full colour resolution
constexpr int bandHeight = 8 * stripHeight;
// Below that one core is done before another has woken up.
constexpr std::int64_t fewestPixelsForBands = 1'000'000;

constexpr QByteArrayView startOfImage("\xFF\xD8");
constexpr QByteArrayView endOfImage("\xFF\xD9");
constexpr QByteArrayView lastRestart("\xFF\xD7");
constexpr unsigned char frameMarker = 0xC0;
constexpr unsigned char scanMarker = 0xDA;

// Rows of a bitmap, counted from the top as in a JPEG file.
struct Band {
    const Bitmap* bitmap;
    int first;
    int count;
    bool restarts;  // a marker after each strip
};

// Coded bytes. They grow without throwing, because libjpeg's frames lie in between.
class CodedBytes : public jpeg_destination_mgr {
  public:
    CodedBytes() : jpeg_destination_mgr{} {
        init_destination = [](j_compress_ptr info) { Of(info).MakeRoom(info); };
        empty_output_buffer = [](j_compress_ptr info) -> boolean {
            Of(info).length_ = Of(info).capacity_;
            Of(info).MakeRoom(info);
            return TRUE;
        };
        term_destination = [](j_compress_ptr info) {
            Of(info).length_ = Of(info).capacity_ - Of(info).free_in_buffer;
        };
    }
    ~CodedBytes() { Free(); }
    CodedBytes(const CodedBytes&) = delete;
    CodedBytes& operator=(const CodedBytes&) = delete;

    void Free() {
        std::free(bytes_);
        bytes_ = nullptr;
        length_ = 0;
    }
    QByteArrayView View() const {
        return {reinterpret_cast<const char*>(bytes_), static_cast<qsizetype>(length_)};
    }

  private:
    static CodedBytes& Of(j_compress_ptr info) { return *static_cast<CodedBytes*>(info->dest); }

    void MakeRoom(j_compress_ptr info) {
        constexpr std::size_t leastCapacity = 65536;
        const std::size_t wanted = std::max(2 * capacity_, leastCapacity);
        void* const bytes = std::realloc(bytes_, wanted);
        if (bytes == nullptr) {
            info->err->msg_code = JERR_OUT_OF_MEMORY;
            info->err->error_exit(reinterpret_cast<j_common_ptr>(info));
        }
        bytes_ = static_cast<JOCTET*>(bytes);
        capacity_ = wanted;
        next_output_byte = bytes_ + length_;
        free_in_buffer = capacity_ - length_;
    }

    JOCTET* bytes_ = nullptr;
    std::size_t length_ = 0;
    std::size_t capacity_ = 0;
};

constexpr int QualityIn(int flags) {
    return flags & ~JPEG_SUBSAMPLING_444;
}

// libjpeg's work on one band.
class BandCoder {
  public:
    explicit BandCoder(CodedBytes& coded) : coded_(coded) { info_.err = errors_.Base(); }
    ~BandCoder() { jpeg_destroy_compress(&info_); }
    BandCoder(const BandCoder&) = delete;
    BandCoder& operator=(const BandCoder&) = delete;

    // A whole file, but without JFIF header. Nothing may be destroyed in here: errors jump.
    bool Code(const Band& band, int flags) {
        if (setjmp(errors_.Back()) != 0) {
            return false;
        }
        jpeg_create_compress(&info_);
        info_.dest = &coded_;
        info_.image_width = static_cast<JDIMENSION>(band.bitmap->Size().width);
        info_.image_height = static_cast<JDIMENSION>(band.count);
        info_.in_color_space = JCS_EXT_BGR;
        info_.input_components = 3;
        jpeg_set_defaults(&info_);
        jpeg_set_quality(&info_, QualityIn(flags) == 0 ? 75 : QualityIn(flags), TRUE);
        jpeg_component_info& brightness = info_.comp_info[0];
        if ((flags & JPEG_SUBSAMPLING_444) != 0) {
            brightness.h_samp_factor = brightness.v_samp_factor = 1;
        }
        info_.write_JFIF_header = FALSE;
        const int strip = stripHeight / (brightness.v_samp_factor * DCTSIZE);  // rows of blocks
        info_.restart_in_rows = band.restarts ? strip : 0;
        jpeg_start_compress(&info_, TRUE);
        WriteRows(band);
        jpeg_finish_compress(&info_);
        return true;
    }
    bool IsOutOfMemory() const { return errors_.IsOutOfMemory(); }

  private:
    void WriteRows(const Band& band) {
        std::array<JSAMPROW, stripHeight> rows;
        const int top = band.bitmap->Size().height - 1 - band.first;
        for (int done = 0; done < band.count;) {
            const int count = std::min(band.count - done, stripHeight);
            for (int i = 0; i < count; ++i) {
                rows[i] = const_cast<JSAMPROW>(band.bitmap->ScanLine(top - done - i).data());
            }
            done += static_cast<int>(
                jpeg_write_scanlines(&info_, rows.data(), static_cast<JDIMENSION>(count)));
        }
    }

    JpegErrors errors_;
    jpeg_compress_struct info_{};
    CodedBytes& coded_;
};

bool CodeBand(const Band& band, int flags, CodedBytes& coded) {
    BandCoder coder(coded);
    const bool done = coder.Code(band, flags);
    if (coder.IsOutOfMemory()) {
        throw std::bad_alloc();
    }
    return done;
}

// The library's file for the same metadata, up to where the tables of this quality begin: the rest
// has to be what libjpeg makes of the same pixels here.
std::optional<QByteArray> LibraryHead(const Bitmap* bitmap, int flags,
                                      const WrittenMetadata& metadata) {
    const BitmapHandle sample = MetadataSample(bitmap);
    EncodedBitmap file = LibraryFile(FIF_JPEG, sample.get(), flags);
    CodedBytes coded;
    if (!file.reason.isEmpty() ||
        !CodeBand({sample.get(), 0, SizeOf(sample.get()).height, false}, flags, coded)) {
        return std::nullopt;
    }
    const QByteArrayView rest = coded.View().sliced(startOfImage.size());
    if (!file.bytes.startsWith(startOfImage) || !file.bytes.endsWith(rest) ||
        file.bytes.size() < startOfImage.size() + rest.size()) {
        return std::nullopt;
    }
    file.bytes.chop(rest.size());
    return InsertParts(FIF_JPEG, metadata, file.bytes) ? std::optional(std::move(file.bytes))
                                                       : std::nullopt;
}

// Where a coded band has what joining it to others needs.
struct Places {
    qsizetype height = 0;  // two bytes
    qsizetype data = 0;    // of the scan, behind its header; 0 when there is none
};

Places PlacesIn(QByteArrayView coded) {
    Places places;
    for (qsizetype at = startOfImage.size(); at + 9 < coded.size();) {
        const auto marker = static_cast<unsigned char>(coded[at + 1]);
        if (marker == frameMarker) {
            places.height = at + 5;
        }
        at += 2 + qFromBigEndian<quint16>(coded.data() + at + 2);
        if (marker == scanMarker) {
            places.data = places.height > 0 ? at : 0;
            break;
        }
    }
    return places;
}

// The first band's file made as high as the picture, with the scans of the others behind its own.
// The bands are freed on the way. Nothing when one has no scan.
std::optional<QByteArray> Joined(const QByteArray& head, std::vector<CodedBytes>& bands,
                                 int height) {
    qsizetype most = head.size();
    for (const CodedBytes& band : bands) {
        most += band.View().size();
    }
    QByteArray file;
    file.reserve(most);
    file += head;
    for (CodedBytes& band : bands) {
        const bool isFirst = &band == &bands.front();
        const Places places = PlacesIn(band.View());
        if (places.data == 0 || !band.View().endsWith(endOfImage)) {
            return std::nullopt;
        }
        if (!isFirst) {
            file += lastRestart;
        }
        const qsizetype begin = isFirst ? startOfImage.size() : places.data;
        file += band.View().sliced(begin).chopped(endOfImage.size());
        if (isFirst) {
            qToBigEndian(static_cast<quint16>(height),
                         file.data() + head.size() + places.height - begin);
        }
        band.Free();
    }
    return file += endOfImage;
}

bool IsCodable(const Bitmap* bitmap, int flags) {
    const auto isSide = [](std::int32_t side) { return side > 0 && side <= JPEG_MAX_DIMENSION; };
    const auto [width, height] = bitmap->Size();
    return bitmap->Format() == PixelFormat::Bgr8 && isSide(width) && isSide(height) &&
           QualityIn(flags) >= 0 && QualityIn(flags) <= 100;
}

std::vector<Band> BandsOf(const Bitmap* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    if (size.height <= bandHeight ||
        std::int64_t{size.width} * size.height < fewestPixelsForBands) {
        return {{bitmap, 0, size.height, false}};
    }
    std::vector<Band> bands;
    for (int first = 0; first < size.height; first += bandHeight) {
        bands.push_back({bitmap, first, std::min(bandHeight, size.height - first), true});
    }
    return bands;
}

}  // namespace

std::optional<QByteArray> EncodeJpeg(const Bitmap* bitmap, int flags, BlockRunner& runner,
                                     const WrittenMetadata& metadata) {
    if (!IsCodable(bitmap, flags)) {
        return std::nullopt;
    }
    const std::optional<QByteArray> head = LibraryHead(bitmap, flags, metadata);
    if (!head) {
        return std::nullopt;
    }
    const std::vector<Band> bands = BandsOf(bitmap);
    std::vector<CodedBytes> coded(bands.size());
    std::atomic<bool> failed = false;
    runner.Run(static_cast<int>(bands.size()), [&](int n) {
        if (!CodeBand(bands[n], flags, coded[n])) {
            failed = true;
        }
    });
    return failed ? std::nullopt : Joined(*head, coded, SizeOf(bitmap).height);
}

QByteArray PlainJpeg(const Bitmap* bitmap, int quality) {
    CodedBytes coded;
    return CodeBand({bitmap, 0, SizeOf(bitmap).height, false}, quality, coded)
               ? coded.View().toByteArray()
               : throw std::bad_alloc();
}

}  // namespace varnel
