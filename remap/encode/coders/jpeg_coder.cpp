// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/jpeg_coder.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "base/ordered_pieces.h"
#include "remap/encode/coders/file_bytes.h"
#include "remap/encode/metadata_writer.h"
#include "remap/encode/thumbnail.h"
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
constexpr unsigned char tablesMarker = 0xDB;
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

// What the file has in front of the picture besides the resolution.
struct Head {
    struct Segment {
        int marker;
        QByteArray data;
    };
    std::vector<Segment> segments{};
    QByteArray colourProfile{};
    UINT16 dotsPerInchX = 0;
    UINT16 dotsPerInchY = 0;
};

UINT16 DotsPerInch(std::uint32_t dotsPerMetre) {
    constexpr double metresPerInch = 0.0254;
    return static_cast<UINT16>(std::clamp(0.5 + metresPerInch * dotsPerMetre, 0.0, double{0xFFFF}));
}

Head HeadFor(const Bitmap& bitmap, const WrittenMetadata& metadata) {
    constexpr int exifAndXmp = JPEG_APP0 + 1;
    constexpr int photoshop = JPEG_APP0 + 13;
    constexpr qsizetype longestSegment = 65533;  // bytes of data
    Head head{.colourProfile = bitmap.metadata.colourProfile,
              .dotsPerInchX = DotsPerInch(bitmap.metadata.dotsPerMetreX),
              .dotsPerInchY = DotsPerInch(bitmap.metadata.dotsPerMetreY)};
    const auto add = [&head](int marker, const QByteArray& mark, const QByteArray& data) {
        if (!data.isEmpty()) {
            head.segments.push_back({marker, mark + data});
        }
    };
    add(exifAndXmp, QByteArray("Exif\0\0", 6), metadata.exif);
    add(exifAndXmp, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29), metadata.xmp);
    if (!metadata.iptc.isEmpty()) {
        add(photoshop, QByteArray("Photoshop 3.0\0", 14), IptcResource(metadata.iptc));
    }
    const QByteArray comment = bitmap.metadata.comments.value("Comment");
    for (qsizetype at = 0; at < comment.size(); at += longestSegment) {
        add(JPEG_COM, {}, comment.mid(at, longestSegment));
    }
    return head;
}

// libjpeg's work on one band.
class BandCoder {
  public:
    explicit BandCoder(CodedBytes& coded) : coded_(coded) { info_.err = errors_.Base(); }
    ~BandCoder() { jpeg_destroy_compress(&info_); }
    BandCoder(const BandCoder&) = delete;
    BandCoder& operator=(const BandCoder&) = delete;

    // A whole file; without a head it has no JFIF header either. Nothing may be destroyed in here:
    // errors jump.
    bool Code(const Band& band, const OutputEncoding& encoding, const Head* head) {
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
        jpeg_set_quality(&info_, encoding.quality, TRUE);
        jpeg_component_info& brightness = info_.comp_info[0];
        if (encoding.chroma444) {
            brightness.h_samp_factor = brightness.v_samp_factor = 1;
        }
        info_.write_JFIF_header = head != nullptr ? TRUE : FALSE;
        if (head != nullptr) {
            constexpr UINT8 inches = 1;
            info_.density_unit = inches;
            info_.X_density = head->dotsPerInchX;
            info_.Y_density = head->dotsPerInchY;
        }
        const int strip = stripHeight / (brightness.v_samp_factor * DCTSIZE);  // rows of blocks
        info_.restart_in_rows = band.restarts ? strip : 0;
        jpeg_start_compress(&info_, TRUE);
        if (head != nullptr) {
            WriteHead(*head);
        }
        WriteRows(band);
        jpeg_finish_compress(&info_);
        return true;
    }
    bool IsOutOfMemory() const { return errors_.IsOutOfMemory(); }
    const char* Error() const { return errors_.Error(); }

  private:
    void WriteHead(const Head& head) {
        for (const Head::Segment& segment : head.segments) {
            jpeg_write_marker(&info_, segment.marker,
                              reinterpret_cast<const JOCTET*>(segment.data.constData()),
                              static_cast<unsigned>(segment.data.size()));
        }
        if (!head.colourProfile.isEmpty()) {
            jpeg_write_icc_profile(&info_,
                                   reinterpret_cast<const JOCTET*>(head.colourProfile.constData()),
                                   static_cast<unsigned>(head.colourProfile.size()));
        }
    }
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

// The error that ended it; empty when there was none.
QString CodeBand(const Band& band, const OutputEncoding& encoding, const Head* head,
                 CodedBytes& coded) {
    BandCoder coder(coded);
    const bool done = coder.Code(band, encoding, head);
    if (coder.IsOutOfMemory()) {
        throw std::bad_alloc();
    }
    return done ? QString() : QString::fromLatin1(coder.Error());
}

// Where a coded band has what joining it to others needs.
struct Places {
    qsizetype tables = 0;  // behind all that may stand in front of them
    qsizetype height = 0;  // two bytes
    qsizetype data = 0;    // of the scan, behind its header; 0 when there is none
};

Places PlacesIn(QByteArrayView coded) {
    Places places;
    for (qsizetype at = startOfImage.size(); at + 9 < coded.size();) {
        const auto marker = static_cast<unsigned char>(coded[at + 1]);
        if (marker == tablesMarker && places.tables == 0) {
            places.tables = at;
        }
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

// Behind the head the first band's file, made as high as the picture, and behind that the scans of
// the others. False when the band has no scan or no place.
bool AddBand(const CodedBytes& band, bool isFirst, int height, FileBytes& file) {
    const QByteArrayView coded = band.View();
    const Places places = PlacesIn(coded);
    if (places.data == 0 || !coded.endsWith(endOfImage)) {
        return false;
    }
    const QByteArrayView rest = coded.chopped(endOfImage.size());
    if (!isFirst) {
        return file.Add(lastRestart) && file.Add(rest.sliced(places.data));
    }
    QByteArray start = rest.sliced(places.tables).toByteArray();
    qToBigEndian(static_cast<quint16>(height), start.data() + places.height - places.tables);
    return file.Add(start);
}

// All that stands in front of the tables, as a file of one pixel has it. The error is returned.
QString CodeHead(const Head& head, const OutputEncoding& encoding, QByteArray& bytes) {
    const BitmapHandle pixel = NewBitmap({1, 1});
    CodedBytes coded;
    QString error = CodeBand({pixel.get(), 0, 1, false}, encoding, &head, coded);
    bytes = coded.View().first(error.isEmpty() ? PlacesIn(coded.View()).tables : 0).toByteArray();
    return error;
}

// libjpeg refuses higher pictures, and is to report that, but not bands of them.
bool IsTooHigh(const Bitmap& bitmap) {
    return bitmap.Size().height > JPEG_MAX_DIMENSION;
}

std::vector<Band> BandsOf(const Bitmap* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    if (size.height <= bandHeight || IsTooHigh(*bitmap) ||
        std::int64_t{size.width} * size.height < fewestPixelsForBands) {
        return {{bitmap, 0, size.height, false}};
    }
    std::vector<Band> bands;
    for (int first = 0; first < size.height; first += bandHeight) {
        bands.push_back({bitmap, first, std::min(bandHeight, size.height - first), true});
    }
    return bands;
}

constexpr std::size_t mostWaiting = 16;  // bands, while one is being written

// The picture's bands, coded apart, each in the file as soon as those before it are.
class BandsInOrder {
  public:
    BandsInOrder(const Bitmap* bitmap, const OutputEncoding& encoding, const EncodeOptions& options)
        : bitmap_(*bitmap),
          encoding_(encoding),
          options_(options),
          bands_(BandsOf(bitmap)),
          errors_(bands_.size()),
          sampler_(options.rows != nullptr ? std::optional<ThumbnailSampler>(bitmap->Size())
                                           : std::nullopt) {}

    // False when one could not be coded or had no place.
    bool AddTo(FileBytes& file) {
        using Coded = std::unique_ptr<CodedBytes>;
        bool isFirst = true;
        OrderedPieces<Coded> inOrder(
            [&](const Coded& coded) {
                return AddBand(*coded, std::exchange(isFirst, false), bitmap_.Size().height, file);
            },
            mostWaiting);
        options_.Run(static_cast<int>(bands_.size()), [&](int n) {
            if (!inOrder.Failed()) {
                auto coded = std::make_unique<CodedBytes>();
                errors_[n] = Code(bands_[n], *coded);
                inOrder.Put(static_cast<std::size_t>(n), std::move(coded));
            }
        });
        return !inOrder.Failed();
    }
    // What libjpeg says of the first that it could not code; empty when it could all.
    QString Error() const {
        const auto error =
            std::ranges::find_if_not(errors_, [](const QString& text) { return text.isEmpty(); });
        return error == errors_.end() ? QString() : *error;
    }
    // Of bands that are all coded, from rows that came and went; else none.
    BitmapHandle Thumbnail() const { return sampler_ ? sampler_->Thumbnail() : nullptr; }

  private:
    QString Code(Band band, CodedBytes& coded) {
        QString error;
        const int top = bitmap_.Size().height - 1 - band.first;
        const LineRange rows{top - band.count + 1, top};
        options_.WithRows(bitmap_, rows, [&](const Bitmap& there) {
            if (sampler_) {
                sampler_->Take(there, rows);
            }
            band.bitmap = &there;
            error = CodeBand(band, encoding_, nullptr, coded);
        });
        return error;
    }

    const Bitmap& bitmap_;
    const OutputEncoding& encoding_;
    const EncodeOptions& options_;
    const std::vector<Band> bands_;
    std::vector<QString> errors_;
    std::optional<ThumbnailSampler> sampler_;
};

EncodedBitmap Refused(const QString& error) {
    const Reason reason(ReasonCode::CannotBeEncoded);
    return {{}, error.isEmpty() ? reason : Reason(ReasonCode::Added, reason, error)};
}

}  // namespace

EncodedBitmap EncodeJpeg(const Bitmap* bitmap, const OutputEncoding& encoding,
                         const EncodeOptions& options) {
    // The head has a thumbnail. Where the pixels are yet to come, one just as long keeps its place.
    const BitmapHandle early = options.rows != nullptr ? NewBitmap({1, 1}) : nullptr;
    const WrittenMetadata metadata = MetadataForJpeg(*bitmap, early.get());
    QByteArray head;
    if (const QString error = CodeHead(HeadFor(*bitmap, metadata), encoding, head);
        !error.isEmpty()) {
        return Refused(error);
    }
    BandsInOrder bands(bitmap, encoding, options);
    FileBytes file(options);
    bool ok = file.Add(head) && bands.AddTo(file) && file.Add(endOfImage);
    if (const BitmapHandle thumbnail = bands.Thumbnail(); ok && thumbnail) {
        const QString error =
            CodeHead(HeadFor(*bitmap, MetadataForJpeg(*bitmap, thumbnail.get())), encoding, head);
        ok = error.isEmpty() && file.PutAtStart(head);
    }
    if (!ok) {
        return file.Error().isEmpty() ? Refused(bands.Error()) : EncodedBitmap{{}, file.Error()};
    }
    return {std::move(file.Bytes()), {}, Joined(metadata.notes)};
}

QByteArray PlainJpeg(const Bitmap* bitmap, int quality) {
    CodedBytes coded;
    return CodeBand({bitmap, 0, SizeOf(bitmap).height, false}, {OutputType::Jpeg, quality}, nullptr,
                    coded)
                   .isEmpty()
               ? coded.View().toByteArray()
               : throw std::bad_alloc();
}

}  // namespace varnel
