// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/decode_picture.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <new>
#include <utility>

#include "decoder/formats/bmp_picture.h"
#include "decoder/formats/cmyk.h"
#include "decoder/formats/header_size.h"
#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/jpeg_pixels.h"
#include "decoder/formats/orientation.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/tiff_structure.h"
#include "decoder/formats/true_colour.h"
#include "decoder/formats/truncation.h"
#include "decoder/request/picture_limits.h"
#include "remap/image/library_messages.h"

namespace varnel {

namespace {

// Beyond that, decoding a whole picture takes more than about a second.
constexpr std::int64_t mostPixelsForSmall = 60'000'000;

int WholeFlags(FREE_IMAGE_FORMAT format) {
    switch (format) {
        case FIF_JPEG:  // NOLINT(bugprone-branch-clone): one number, two meanings
            return JPEG_ACCURATE;
        case FIF_RAW:
            return RAW_DISPLAY;  // linear data would come out far too dark
        default:
            return 0;
    }
}

// Sides as a file states them, which may be anything.
struct StatedSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

StatedSize Stated(FIBITMAP* bitmap) {
    return {FreeImage_GetWidth(bitmap), FreeImage_GetHeight(bitmap)};
}

PixelSize Pixels(const StatedSize& stated) {
    return {static_cast<std::int32_t>(stated.width), static_cast<std::int32_t>(stated.height)};
}

// The largest size with the picture's proportions within the box, never larger than the picture.
PixelSize Within(PixelSize picture, PixelSize box) {
    const double scale = std::min({1.0, static_cast<double>(box.width) / picture.width,
                                   static_cast<double>(box.height) / picture.height});
    const auto scaled = [&](std::int32_t side) {
        return std::max(static_cast<std::int32_t>(std::floor(side * scale + 0.5)), 1);
    };
    return {scaled(picture.width), scaled(picture.height)};
}

PixelRows RowsOf(Bitmap& bitmap) {
    return {reinterpret_cast<std::byte*>(bitmap.Bits()), bitmap.Pitch()};
}

// Those of a picture, for the same turned by the orientation.
BitmapMetadata TurnedMetadata(BitmapMetadata metadata, int orientation) {
    if (SwapsSides(orientation)) {
        std::swap(metadata.dotsPerMetreX, metadata.dotsPerMetreY);
    }
    return metadata;
}

BitmapHandle Reduced(BitmapHandle bitmap, PixelSize box) {
    const PixelSize is = bitmap->Size();
    const PixelSize wanted = Within(is, box);
    bitmap->metadata = {};
    return is.width != wanted.width || is.height != wanted.height ? RescaledByBox(*bitmap, wanted)
                                                                  : std::move(bitmap);
}

class Decoding {
  public:
    Decoding(std::FILE* file, const ReadRequest& request, std::uint64_t memory,
             const RowsFor& rowsFor, const LibraryMessages& messages)
        : file_(file), request_(request), memory_(memory), rowsFor_(rowsFor), messages_(messages) {}

    LoadedPicture Answer() {
        format_ = file_.Format();
        if (format_ == FIF_UNKNOWN) {
            return LoadedPicture::Refused(ReasonCode::NoKnownType);
        }
        if (format_ == FIF_TIFF || format_ == FIF_RAW) {
            tiff_ = TiffFactsOf(file_);
        }
        HideMetadata();
        if (format_ == FIF_TIFF && tiff_ && tiff_->isDng) {
            // The plain TIFF reader would give the thumbnail for the photo.
            return LoadedPicture::Refused(ReasonCode::RawUnreadable);
        }
        const HeaderSize claimed = HeaderSizeOf(format_, file_).value_or(HeaderSize{1, 1});
        if (const Reason error = Error({claimed.width, claimed.height}); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        NoteOrientation();
        stated_ = ReadHeaderSize();
        if (const Reason error = stated_ ? Error(*stated_) : Reason(); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        return Upright(AsAsked());
    }

  private:
    LoadedPicture AsAsked() {
        switch (request_.kind) {
            case ReadKind::Size:
                return OnlySize();
            case ReadKind::Small:
                return Small();
            case ReadKind::Facts:  // not asked here
            case ReadKind::Whole:
                break;
        }
        return Whole();
    }

    void NoteOrientation() {
        orientation_ = request_.upright ? OrientationOf(format_, file_, tiff_) : 1;
        // The library develops raw files upright, whatever is asked.
        turn_ = format_ == FIF_RAW ? 1 : orientation_;
        if (format_ == FIF_TIFF && tiff_ && tiff_->orientation != 1) {
            // It does a part of some turns with some kinds of TIFF, so it must not know.
            file_.Replace(tiff_->orientationPlace, 1);
        }
    }

    // Whether the sides of a raw file's picture have changed places against the sensor's; nothing
    // when they do not tell.
    std::optional<bool> HasSwappedSides(PixelSize size) const {
        if (!stated_ || stated_->width == stated_->height || size.width == size.height) {
            return std::nullopt;
        }
        return (stated_->width > stated_->height) != (size.width > size.height);
    }

    // The camera's own small picture in a raw file is not turned by the library. What was developed
    // for want of one is, and has the sensor's size.
    void NoteUnturnedPreview(PixelSize size) {
        const std::optional<bool> swapped = HasSwappedSides(size);
        const bool isUnturned = SwapsSides(orientation_) && swapped
                                    ? !*swapped
                                    : stated_ && size.width < stated_->width / 2;
        turn_ = isUnturned ? orientation_ : 1;
    }

    LoadedPicture Upright(LoadedPicture picture) {
        if (picture.outcome == LoadOutcome::NotLoaded) {
            return picture;
        }
        if (format_ == FIF_RAW && picture.size.width > 0 &&
            HasSwappedSides(picture.size) == !SwapsSides(orientation_)) {
            orientation_ = 1;  // it was developed by something else than that
        }
        if (turn_ != 1) {
            picture.size = Turned(picture.size, turn_);
            if (picture.bitmap) {
                picture.bitmap = TurnedCopy(*picture.bitmap);
            }
        }
        picture.orientation = orientation_;
        return picture;
    }

    // By what the library has left to be done.
    BitmapHandle TurnedCopy(Bitmap& bitmap) {
        const PixelSize size = bitmap.Size();
        BitmapHandle turned = Room(Turned(size, turn_));
        if (!turned) {
            throw std::bad_alloc();
        }
        TurnRows(size, {0, size.height}, RowsOf(bitmap), turn_, RowsOf(*turned));
        turned->metadata = TurnedMetadata(std::move(bitmap.metadata), turn_);
        return turned;
    }

    // Where the picture is wanted, if it is.
    BitmapHandle Room(PixelSize size) const {
        return rowsFor_ && request_.kind == ReadKind::Whole ? BitmapOver(rowsFor_(size), size)
                                                            : NewBitmap(size);
    }

    // Metadata are read later and by others: in the library they are where most crashes are.
    void HideMetadata() {
        if (format_ == FIF_JPEG) {
            constexpr char unused = '\xEF';
            for (const std::int64_t place : JpegMetadataMarkers(file_)) {
                file_.Replace(place, unused);
            }
        } else if (tiff_) {
            HideTags(tiff_->deadlyTags);
            if (format_ == FIF_TIFF) {  // raw files tell there how they are to be developed
                HideTags(tiff_->metadataTags);
            }
        }
    }
    // The next number means nothing to anybody and keeps the tags in order.
    void HideTags(const std::vector<std::int64_t>& lowestBytes) {
        for (const std::int64_t place : lowestBytes) {
            const QByteArray byte = file_.Read(place, 1);
            file_.Replace(place, static_cast<char>(byte.isEmpty() ? 0 : byte.front() + 1));
        }
    }

    Reason Error(const StatedSize& size) const {
        return SizeError(size.width, size.height, memory_);
    }

    // Without reading pixels, where the type allows.
    std::optional<StatedSize> ReadHeaderSize() const {
        if (format_ == FIF_JPEG) {
            const std::optional<PixelSize> size = JpegSize(file_);
            return size ? std::optional(StatedSize{size->width, size->height}) : std::nullopt;
        }
        const std::optional<BmpHeader> bmp =
            format_ == FIF_BMP ? ReadBmpHeader(file_) : std::nullopt;
        if (bmp) {
            return StatedSize{bmp->width, bmp->height};
        }
        if (FreeImage_FIFSupportsNoPixels(format_) != TRUE) {
            return std::nullopt;
        }
        const LibraryBitmap header = file_.Load(format_, FIF_LOAD_NOPIXELS);
        return header ? std::optional(Stated(header.get())) : std::nullopt;
    }

    LoadedPicture OnlySize() {
        std::optional<StatedSize> size = stated_;
        if (size && format_ == FIF_RAW) {
            // The library states the sensor's way up and knows no odd pixels before developing.
            const bool known = tiff_ && tiff_->isDng && tiff_->isEven;
            if (!known) {
                size.reset();
            } else if (SwapsSides(tiff_->orientation)) {
                std::swap(size->width, size->height);
            }
        }
        if (size) {
            return {LoadOutcome::Loaded, nullptr, {}, Pixels(*size)};
        }
        LoadedPicture whole = Whole();
        whole.bitmap.reset();
        if (whole.outcome == LoadOutcome::Damaged) {
            whole.outcome = LoadOutcome::Loaded;  // its size is what it is
            whole.reason = {};
        }
        return whole;
    }

    LoadedPicture Small() {
        LoadedPicture picture = Quick();
        if (!picture.bitmap) {
            if (stated_ && stated_->width * stated_->height > mostPixelsForSmall) {
                return LoadedPicture::Refused(ReasonCode::TooLargeForQuickLook);
            }
            picture = Whole();
        }
        if (picture.bitmap && format_ == FIF_RAW) {
            NoteUnturnedPreview(picture.bitmap->Size());
        }
        if (picture.bitmap) {
            picture.bitmap = Reduced(std::move(picture.bitmap), Turned(request_.box, turn_));
        }
        return picture;
    }
    // Empty where the type has no short way.
    LoadedPicture Quick() {
        int flags = RAW_PREVIEW;
        if (format_ == FIF_JPEG) {
            // The upper half of the flags is the size that is wanted at least.
            const int side = std::clamp(std::max(request_.box.width, request_.box.height), 1,
                                        static_cast<int>(largestSide));
            flags = side << 16 | JPEG_FAST;
        } else if (format_ != FIF_RAW) {
            return {};
        }
        LoadedPicture picture = Judged(file_.Load(format_, flags));
        picture.size = format_ == FIF_JPEG && stated_ ? Pixels(*stated_) : PixelSize{};
        return picture;
    }

    // Past the library, which takes half as long again; empty where it has to do it.
    BitmapHandle DirectJpeg() {
        if (format_ != FIF_JPEG || !stated_ || request_.kind != ReadKind::Whole) {
            return nullptr;
        }
        const PixelSize size = Pixels(*stated_);
        BitmapHandle bitmap = Room(Turned(size, turn_));
        std::optional<BitmapMetadata> metadata;
        if (bitmap) {
            metadata = ReadJpegPixels(file_.File(), size, RowsOf(*bitmap), turn_);
        }
        if (!metadata) {
            return nullptr;
        }
        bitmap->metadata = TurnedMetadata(std::move(*metadata), turn_);
        turn_ = 1;
        return bitmap;
    }

    LoadedPicture Whole() {
        if (BitmapHandle bitmap = DirectJpeg()) {
            return Judged(std::move(bitmap));
        }
        const std::optional<BmpHeader> bmp =
            format_ == FIF_BMP ? ReadBmpHeader(file_) : std::nullopt;
        LibraryBitmap bitmap;
        if (!bmp || !NeedsBmpReader(*bmp)) {
            bitmap = file_.Load(format_, WholeFlags(format_));
        }
        return !bitmap && bmp ? Judged(LoadBmp(file_, *bmp)) : Judged(std::move(bitmap));
    }

    // What a reader of ours gave, as an answer.
    LoadedPicture Judged(BitmapHandle bitmap) {
        if (!bitmap) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        const PixelSize size = bitmap->Size();
        if (const Reason error = Error({size.width, size.height}); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        if (!IsProfileForRgb(bitmap->metadata.colourProfile)) {
            bitmap->metadata.colourProfile.clear();
        }
        return Answered(std::move(bitmap));
    }

    // What the library gave, likewise.
    LoadedPicture Judged(LibraryBitmap bitmap) {
        if (!bitmap || FreeImage_HasPixels(bitmap.get()) != TRUE) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        if (const Reason error = Error(Stated(bitmap.get())); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        if (format_ == FIF_TIFF && tiff_ && !tiff_->colourProfile.isEmpty()) {
            // The library looks at its own only after it has given back the memory.
            QByteArray& profile = tiff_->colourProfile;
            FreeImage_CreateICCProfile(bitmap.get(), profile.data(),
                                       static_cast<long>(profile.size()));
        }
        BitmapHandle inks = FromInks(bitmap.get(), format_, file_);
        BitmapHandle colours = inks ? std::move(inks) : To24Bits(std::move(bitmap));
        return colours ? Answered(std::move(colours))
                       : LoadedPicture::Refused(ReasonCode::NoTrueColour);
    }

    LoadedPicture Answered(BitmapHandle bitmap) const {
        const PixelSize size = bitmap->Size();
        const Reason damage = DamageOf(format_, file_, messages_.Lines());
        return {damage.isEmpty() ? LoadOutcome::Loaded : LoadOutcome::Damaged, std::move(bitmap),
                damage, size};
    }

    PictureFile file_;
    const ReadRequest& request_;
    std::uint64_t memory_;
    const RowsFor& rowsFor_;
    const LibraryMessages& messages_;
    FREE_IMAGE_FORMAT format_ = FIF_UNKNOWN;
    std::optional<TiffStructure> tiff_;
    std::optional<StatedSize> stated_;
    int orientation_ = 1;  // to be undone
    int turn_ = 1;         // the part of it that is still to be done
};

}  // namespace

LoadedPicture DecodePicture(std::FILE* file, const ReadRequest& request, std::uint64_t memory,
                            const RowsFor& rowsFor) {
    const LibraryMessages messages;
    try {
        return Decoding(file, request, memory, rowsFor, messages).Answer();
    } catch (const std::bad_alloc&) {
        return LoadedPicture::Refused(ReasonCode::NotEnoughMemory);
    } catch (const std::exception& error) {
        return LoadedPicture::Refused(
            {ReasonCode::Added, ReasonCode::CannotBeDecoded, QString::fromLocal8Bit(error.what())});
    } catch (...) {  // codecs throw numbers and types of their own
        return LoadedPicture::Refused(messages.Added(ReasonCode::CannotBeDecoded));
    }
}

}  // namespace varnel
