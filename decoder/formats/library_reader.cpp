// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/library_reader.h"

#include <FreeImage.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "decoder/formats/readers/library_samples.h"
#include "decoder/formats/readers/modern_formats.h"
#include "remap/image/freeimage_bitmap.h"

namespace varnel {

namespace {

// The library's way to a file of ours.
const PictureFile& FileOf(fi_handle handle) {
    return *static_cast<const PictureFile*>(handle);
}

unsigned ReadItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    return FileOf(handle).Fill(buffer, size, count);
}

unsigned WriteNothing(void* /*buffer*/, unsigned /*size*/, unsigned /*count*/,
                      fi_handle /*handle*/) {
    return 0;
}

int Seek(fi_handle handle, long offset, int origin) {
    return std::fseek(FileOf(handle).File(), offset, origin);
}

long Tell(fi_handle handle) {
    return std::ftell(FileOf(handle).File());
}

FreeImageIO OpenFile() {
    return {&ReadItems, &WriteNothing, &Seek, &Tell};
}

// The library's handles have no const; nothing of ours writes through them.
fi_handle HandleOf(const PictureFile& file) {
    return const_cast<PictureFile*>(&file);
}

FREE_IMAGE_FORMAT TypeOf(const PictureFile& file) {
    FreeImageIO io = OpenFile();
    std::rewind(file.File());
    const FREE_IMAGE_FORMAT type = FreeImage_GetFileTypeFromHandle(&io, HandleOf(file), 0);
    return type != FIF_UNKNOWN && FreeImage_FIFSupportsReading(type) == TRUE ? type : FIF_UNKNOWN;
}

InputFormat FormatOf(int type) {
    constexpr std::pair<int, InputFormat> formats[] = {
        {FIF_UNKNOWN, InputFormat::Unknown}, {FIF_BMP, InputFormat::Bmp},
        {FIF_DDS, InputFormat::Dds},         {FIF_GIF, InputFormat::Gif},
        {FIF_IFF, InputFormat::Iff},         {FIF_J2K, InputFormat::J2k},
        {FIF_JP2, InputFormat::Jp2},         {FIF_JPEG, InputFormat::Jpeg},
        {FIF_PNG, InputFormat::Png},         {FIF_PSD, InputFormat::Psd},
        {FIF_RAW, InputFormat::Raw},         {FIF_SGI, InputFormat::Sgi},
        {FIF_TIFF, InputFormat::Tiff},       {FIF_WEBP, InputFormat::WebP}};
    const auto* const found = std::find_if(std::begin(formats), std::end(formats),
                                           [&](const auto& row) { return row.first == type; });
    return found == std::end(formats) ? InputFormat::Other : found->second;
}

FIBITMAP* BitmapOf(const std::shared_ptr<void>& picture) {
    return static_cast<FIBITMAP*>(picture.get());
}

SampleRows RowsOf(FIBITMAP* bitmap, int samplesPerPixel, int bytesPerSample) {
    return {SizeOf(bitmap), reinterpret_cast<const std::byte*>(FreeImage_GetBits(bitmap)),
            FreeImage_GetPitch(bitmap), samplesPerPixel, bytesPerSample};
}

// The standard conversion stretches darkest to brightest over black to white; a sample that is no
// number would spoil that.
template <class Sample>
void ReplaceNonNumbers(FIBITMAP* bitmap) {
    for (unsigned y = 0; y < FreeImage_GetHeight(bitmap); ++y) {
        auto* const row =
            reinterpret_cast<Sample*>(FreeImage_GetScanLine(bitmap, static_cast<int>(y)));
        for (unsigned x = 0; x < FreeImage_GetWidth(bitmap); ++x) {
            row[x] = std::isfinite(row[x]) ? row[x] : Sample{0};
        }
    }
}

// Grey of other kinds has no direct way to 24 bits.
LibraryBitmap ToGrey8(FIBITMAP* bitmap, FREE_IMAGE_TYPE type) {
    switch (type) {
        case FIT_UINT16:  // the upper eight bits, as of 16-bit colour
            return LibraryBitmap(FreeImage_ConvertTo8Bits(bitmap));
        case FIT_FLOAT:
            ReplaceNonNumbers<float>(bitmap);
            break;
        case FIT_DOUBLE:
            ReplaceNonNumbers<double>(bitmap);
            break;
        default:
            break;
    }
    return LibraryBitmap(FreeImage_ConvertToStandardType(bitmap, TRUE));
}

LibraryBitmap Converted(FIBITMAP* bitmap) {
    LibraryBitmap converted(FreeImage_ConvertTo24Bits(bitmap));
    return converted ? std::move(converted) : throw std::bad_alloc();
}

bool IsColour(FREE_IMAGE_TYPE type) {
    return type == FIT_BITMAP || type == FIT_RGB16 || type == FIT_RGBA16;
}

}  // namespace

bool LibraryPicture::HasPixels() const {
    return bitmap_ && FreeImage_HasPixels(BitmapOf(bitmap_)) == TRUE;
}

StatedSize LibraryPicture::Size() const {
    return {FreeImage_GetWidth(BitmapOf(bitmap_)), FreeImage_GetHeight(BitmapOf(bitmap_))};
}

BitmapMetadata LibraryPicture::Metadata() const {
    return LibraryMetadata(BitmapOf(bitmap_));
}

std::optional<SampleRows> LibraryPicture::FloatColours() const {
    FIBITMAP* const bitmap = BitmapOf(bitmap_);
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(bitmap);
    if (type != FIT_RGBF && type != FIT_RGBAF) {
        return std::nullopt;
    }
    return RowsOf(bitmap, type == FIT_RGBAF ? 4 : 3, sizeof(float));
}

std::optional<SampleRows> LibraryPicture::Inks() const {
    FIBITMAP* const bitmap = BitmapOf(bitmap_);
    if (bitmap == nullptr || FreeImage_GetColorType(bitmap) != FIC_CMYK) {
        return std::nullopt;
    }
    const int bits = static_cast<int>(FreeImage_GetBPP(bitmap));
    return bits == 32 || bits == 64 ? std::optional(RowsOf(bitmap, 4, bits / 32)) : std::nullopt;
}

BitmapHandle LibraryPicture::To24Bits() {
    const std::shared_ptr<void> picture = std::move(bitmap_);
    FIBITMAP* const bitmap = BitmapOf(picture);
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(bitmap);
    if (type == FIT_COMPLEX || type == FIT_UNKNOWN) {
        return nullptr;
    }
    if (type == FIT_BITMAP && FreeImage_GetBPP(bitmap) == 24) {
        return std::make_unique<Bitmap>(
            PixelFormat::Bgr8, SizeOf(bitmap),
            std::shared_ptr<std::byte>(picture,
                                       reinterpret_cast<std::byte*>(FreeImage_GetBits(bitmap))));
    }
    LibraryBitmap grey;
    if (!IsColour(type)) {
        grey = ToGrey8(bitmap, type);
        if (!grey) {
            throw std::bad_alloc();
        }
    }
    BitmapHandle result = TakeOver(Converted(grey ? grey.get() : bitmap));
    result->metadata = {};
    return result;
}

BitmapHandle LibraryPicture::InOwnFormat() {
    BitmapHandle own = bitmap_ ? OwnSamples(BitmapOf(bitmap_)) : nullptr;
    if (!own) {
        return To24Bits();
    }
    bitmap_.reset();
    return own;
}

PixelFormat LibraryPicture::OwnFormat() const {
    return FormatOfSamples(BitmapOf(bitmap_));
}

LibraryReader::LibraryReader(const PictureFile& file)
    : file_(file), type_(FIF_UNKNOWN), format_(ModernFormatOf(file)) {
    if (format_ == InputFormat::Unknown) {
        type_ = TypeOf(file);
        format_ = FormatOf(type_);
    }
}

LibraryPicture LibraryReader::Load(int flags) const {
    FreeImageIO io = OpenFile();
    std::rewind(file_.File());
    return LibraryPicture(LibraryBitmap(FreeImage_LoadFromHandle(
        static_cast<FREE_IMAGE_FORMAT>(type_), &io, HandleOf(file_), flags)));
}

LibraryPicture LibraryReader::Header() const {
    const bool isApart =
        FreeImage_FIFSupportsNoPixels(static_cast<FREE_IMAGE_FORMAT>(type_)) == TRUE;
    return isApart ? Load(FIF_LOAD_NOPIXELS) : LibraryPicture(nullptr);
}

LibraryPicture LibraryReader::Whole() const {
    return Load(format_ == InputFormat::Jpeg ? JPEG_ACCURATE : 0);
}

LibraryPicture LibraryReader::WithInks() const {
    switch (format_) {
        case InputFormat::Jpeg:
            return Load(JPEG_CMYK | JPEG_ACCURATE);
        case InputFormat::Tiff:  // NOLINT(bugprone-branch-clone): one number, two meanings
            return Load(TIFF_CMYK);
        case InputFormat::Psd:
            return Load(PSD_CMYK);
        default:
            return LibraryPicture(nullptr);
    }
}

LibraryPicture LibraryReader::Preview(int longerSide) const {
    // The upper half of the flags is the size that is wanted at least.
    return format_ == InputFormat::Jpeg ? Load(longerSide << 16 | JPEG_FAST)
                                        : LibraryPicture(nullptr);
}

}  // namespace varnel
