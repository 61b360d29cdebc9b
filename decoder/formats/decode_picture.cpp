// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/decode_picture.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "decoder/formats/bmp_picture.h"
#include "decoder/formats/cmyk.h"
#include "decoder/formats/header_size.h"
#include "decoder/formats/library_reader.h"
#include "decoder/formats/orientation.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/profiles/rgb_profile.h"
#include "decoder/formats/readers/camera_preview.h"
#include "decoder/formats/readers/hidden_tags.h"
#include "decoder/formats/readers/modern_formats.h"
#include "decoder/formats/readers/ordinary_jpeg.h"
#include "decoder/formats/readers/picture_forms.h"
#include "decoder/formats/readers/raw_reader.h"
#include "decoder/formats/readers/stated_header.h"
#include "decoder/formats/tiff_structure.h"
#include "decoder/formats/true_colour.h"
#include "decoder/formats/truncation.h"
#include "decoder/request/picture_limits.h"
#include "remap/image/image_library.h"

namespace varnel {

namespace {

// Beyond that, decoding a whole picture takes more than about a second.
constexpr std::int64_t mostPixelsForSmall = 60'000'000;

PixelSize Pixels(const StatedSize& stated) {
    return {static_cast<std::int32_t>(stated.width), static_cast<std::int32_t>(stated.height)};
}

class Decoding {
  public:
    Decoding(std::FILE* file, const ReadRequest& request, std::uint64_t memory,
             const PixelPlace& place, const LibraryMessages& messages)
        : file_(file),
          reader_(file_),
          format_(reader_.Format()),
          request_(request),
          memory_(memory),
          rowsFor_(place.rows),
          messages_(messages) {}

    LoadedPicture Answer() {
        if (format_ == InputFormat::Unknown) {
            return LoadedPicture::Refused(ReasonCode::NoKnownType);
        }
        if (format_ == InputFormat::Tiff || format_ == InputFormat::Raw) {
            tiff_ = TiffFactsOf(file_);
        }
        HideMetadata(format_, tiff_, file_);
        if (format_ == InputFormat::Tiff && tiff_ && tiff_->isDng) {
            // The plain TIFF reader would give the thumbnail for the photo.
            return LoadedPicture::Refused(ReasonCode::RawUnreadable);
        }
        const HeaderSize claimed = HeaderSizeOf(format_, file_).value_or(HeaderSize{1, 1});
        if (const Reason error = Error({claimed.width, claimed.height}); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        NoteOrientation();
        ReadHeader();
        if (ComesUpright(format_) && !direct_) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        if (const Reason error = StatedError(); !error.isEmpty()) {
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
        turn_ = orientation_ = request_.upright ? OrientationOf(format_, file_, tiff_) : 1;
        if (format_ == InputFormat::Tiff && tiff_ && tiff_->orientation != 1) {
            // The library does a part of some turns with some kinds of TIFF, so it must not know.
            file_.Replace(tiff_->orientationPlace, 1);
        }
    }

    LoadedPicture Upright(LoadedPicture picture) {
        if (picture.outcome == LoadOutcome::NotLoaded) {
            return picture;
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
        BitmapHandle turned = Room(Turned(bitmap.Size(), turn_), bitmap.Format());
        if (!turned) {
            throw std::bad_alloc();
        }
        TurnInto(*turned, std::move(bitmap), turn_);
        return turned;
    }

    // Where the picture is wanted, if it is.
    BitmapHandle Room(PixelSize size, PixelFormat format = PixelFormat::Bgr8) const {
        return rowsFor_ && request_.kind == ReadKind::Whole
                   ? BitmapOver(rowsFor_(size, format), size, format)
                   : NewBitmap(size, format);
    }

    // Only whole pictures are wanted as they are; BMP files have anything in place of alpha.
    bool WantsOwnFormat() const {
        return request_.depth == ReadDepth::Own && request_.kind == ReadKind::Whole &&
               format_ != InputFormat::Bmp;
    }

    Reason Error(const StatedSize& size, PixelFormat format = PixelFormat::Bgr8) const {
        return SizeError(size.width, size.height, memory_, format);
    }

    void ReadHeader() {
        if (format_ == InputFormat::Raw) {
            OpenRaw(request_.raw);
        } else if (ComesUpright(format_)) {
            OpenDirect();
        } else if (!WantsOwnFormat() || !OpenDirect()) {
            const StatedHeader header = HeaderOf(reader_, file_);
            stated_ = header.size;
            statedFormat_ = WantsOwnFormat() ? header.format : PixelFormat::Bgr8;
        }
    }

    // By the library of its own type; none: the image library has to read the file.
    void Take(std::unique_ptr<DirectReader> reader) {
        direct_ = std::move(reader);
        if (direct_) {
            stated_ = direct_->Size();
            statedFormat_ = direct_->Format();
        }
        if (direct_ && ComesUpright(format_)) {
            turn_ = 1;
            orientation_ = request_.upright ? direct_->Orientation() : 1;
        }
    }
    // False when there is none.
    bool OpenDirect() {
        Take(format_ == InputFormat::Tiff  ? NewTiffReader(file_)
             : format_ == InputFormat::Png ? NewPngReader(file_)
                                           : NewModernReader(format_, file_));
        return direct_ != nullptr;
    }
    void OpenRaw(const RawDevelopment& development) {
        auto reader = NewRawReader(file_, development,
                                   WantsOwnFormat() ? SampleKind::Word : SampleKind::Byte);
        raw_ = reader.get();
        Take(std::move(reader));
    }

    // Developing takes four words for each pixel beside the picture.
    Reason StatedError() const {
        return stated_ ? Error(*stated_, raw_ != nullptr ? PixelFormat::Bgr16 : statedFormat_)
                       : Reason();
    }

    LoadedPicture OnlySize() {
        if (stated_) {
            return {LoadOutcome::Loaded, nullptr, {}, Pixels(*stated_)};
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
        LoadedPicture picture = raw_ != nullptr ? OfCamera() : Quick();
        if (!picture.bitmap) {
            if (stated_ && stated_->width * stated_->height > mostPixelsForSmall) {
                return LoadedPicture::Refused(ReasonCode::TooLargeForQuickLook);
            }
            picture = raw_ != nullptr ? QuicklyDeveloped() : Whole();
        }
        if (picture.bitmap) {
            picture.bitmap = Reduced(std::move(picture.bitmap), Turned(request_.box, turn_));
        }
        return picture;
    }

    // Empty where the type has no short way.
    LoadedPicture Quick() {
        if (direct_) {
            return {LoadOutcome::Loaded, direct_->Small(), {}, Pixels(*stated_)};
        }
        if (format_ != InputFormat::Jpeg) {
            return {};
        }
        LoadedPicture picture = Judged(reader_.Preview(LongerSideOfBox()));
        picture.size = stated_ ? Pixels(*stated_) : PixelSize{};
        return picture;
    }

    std::int32_t LongerSideOfBox() const {
        return std::clamp(std::max(request_.box.width, request_.box.height), 1,
                          static_cast<std::int32_t>(largestSide));
    }

    // The camera's own picture in a raw file; its reader does not turn that.
    LoadedPicture OfCamera() {
        BitmapHandle bitmap = PreviewPicture(raw_->Preview(), LongerSideOfBox(), memory_);
        if (!bitmap) {
            return {};
        }
        const PixelSize full = Pixels(*stated_);
        const PixelSize size = bitmap->Size();
        const bool isTurned = SwapsSides(raw_->Orientation()) && size.width != size.height &&
                              (size.width > size.height) == (full.width > full.height);
        turn_ = isTurned ? 1 : raw_->Orientation();
        // The full size is turned back with the picture.
        return {LoadOutcome::Loaded, std::move(bitmap), {}, Turned(full, turn_)};
    }

    LoadedPicture QuicklyDeveloped() {
        const PixelSize full = Pixels(*stated_);
        OpenRaw({request_.raw.profile, true});
        LoadedPicture picture = Whole();
        picture.size = full;
        return picture;
    }

    LoadedPicture ByDirectReader() {
        if (const Reason error = Error(*stated_, statedFormat_); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        const PixelSize size = Pixels(*stated_);
        const bool isAsWanted = WantsOwnFormat() || statedFormat_ == PixelFormat::Bgr8;
        BitmapHandle bitmap =
            turn_ == 1 && isAsWanted ? Room(size, statedFormat_) : NewBitmap(size, statedFormat_);
        if (!bitmap) {
            throw std::bad_alloc();
        }
        std::optional<BitmapMetadata> metadata = direct_->Read(RowsOf(*bitmap));
        if (!metadata) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        bitmap->metadata = std::move(*metadata);
        if (format_ == InputFormat::Tiff && tiff_) {
            bitmap->metadata.colourProfile = tiff_->colourProfile;
        }
        return Judged(isAsWanted ? std::move(bitmap) : InBytes(std::move(bitmap)));
    }

    LoadedPicture Whole() {
        if (direct_) {
            return ByDirectReader();
        }
        const std::optional<BmpHeader> bmp =
            format_ == InputFormat::Bmp ? ReadBmpHeader(file_) : std::nullopt;
        LibraryPicture picture(nullptr);
        if (!bmp || !NeedsBmpReader(*bmp)) {
            picture = reader_.Whole();
        }
        if (!picture.HasPixels() && OpenDirect() && direct_->IsOnlyWay()) {
            return ByDirectReader();  // of a depth that the image library does not know
        }
        return !picture.Exists() && bmp ? Judged(LoadBmp(file_, *bmp)) : Judged(std::move(picture));
    }

    // What a reader of ours gave, as an answer.
    LoadedPicture Judged(BitmapHandle bitmap) {
        if (!bitmap) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        const PixelSize size = bitmap->Size();
        if (const Reason error = Error({size.width, size.height}, bitmap->Format());
            !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        if (!IsProfileForRgb(bitmap->metadata.colourProfile)) {
            bitmap->metadata.colourProfile.clear();
        }
        return Answered(std::move(bitmap));
    }

    // What the library gave, likewise.
    LoadedPicture Judged(LibraryPicture picture) {
        if (!picture.HasPixels()) {
            return LoadedPicture::Refused(messages_.Added(ReasonCode::CannotBeDecoded));
        }
        const PixelFormat format = WantsOwnFormat() ? picture.OwnFormat() : PixelFormat::Bgr8;
        if (const Reason error = Error(picture.Size(), format); !error.isEmpty()) {
            return LoadedPicture::Refused(error);
        }
        BitmapMetadata metadata = picture.Metadata();
        if (format_ == InputFormat::Tiff && tiff_ && !tiff_->colourProfile.isEmpty()) {
            // The library looks at its own only after it has given back the memory.
            metadata.colourProfile = tiff_->colourProfile;
        }
        BitmapHandle colours = FromInks(reader_, metadata, WantsOwnFormat());
        if (!colours) {
            colours = WantsOwnFormat() ? InOwnFormat(std::move(picture), std::move(metadata))
                                       : To24Bits(std::move(picture), std::move(metadata));
        }
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
    LibraryReader reader_;
    InputFormat format_;
    const ReadRequest& request_;
    std::uint64_t memory_;
    const RowsFor& rowsFor_;
    const LibraryMessages& messages_;
    std::optional<TiffStructure> tiff_;
    std::unique_ptr<DirectReader> direct_;
    RawReader* raw_ = nullptr;  // the same
    std::optional<StatedSize> stated_;
    PixelFormat statedFormat_ = PixelFormat::Bgr8;  // that the picture will have
    int orientation_ = 1;                           // to be undone
    int turn_ = 1;                                  // the part of it that is still to be done
};

}  // namespace

LoadedPicture DecodePicture(std::FILE* file, const ReadRequest& request, std::uint64_t memory,
                            const PixelPlace& place) {
    const ImageLibraryMessages messages;
    try {
        // The library takes half as long again.
        if (auto jpeg = DecodeOrdinaryJpeg(file, request, memory, place, messages)) {
            return std::move(*jpeg);
        }
        return Decoding(file, request, memory, place, messages).Answer();
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
