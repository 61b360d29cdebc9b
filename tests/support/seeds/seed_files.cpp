// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/seed_files.h"

#include <algorithm>

#include "remap/encode/coders/freeimage_encoder.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel::testing {

namespace {

struct LibraryKind {
    const char* name;
    FREE_IMAGE_FORMAT format;
    int bits;  // of FIT_BITMAP; 0 otherwise
    int flags = 0;
    FREE_IMAGE_TYPE type = FIT_BITMAP;
    bool loads = true;
};

constexpr LibraryKind libraryKinds[] = {
    {"jpeg/baseline", FIF_JPEG, 24, JPEG_BASELINE},
    {"jpeg/progressive", FIF_JPEG, 24, JPEG_PROGRESSIVE},
    {"jpeg/grey", FIF_JPEG, 8, 95},
    {"jpeg/444", FIF_JPEG, 24, 90 | JPEG_SUBSAMPLING_444},
    {"jpeg/422-optimized", FIF_JPEG, 24, 60 | JPEG_SUBSAMPLING_422 | JPEG_OPTIMIZE},
    {"tiff/none", FIF_TIFF, 24, TIFF_NONE},
    {"tiff/lzw", FIF_TIFF, 24, TIFF_LZW},
    {"tiff/deflate", FIF_TIFF, 24, TIFF_DEFLATE},
    {"tiff/packbits", FIF_TIFF, 24, TIFF_PACKBITS},
    {"tiff/jpeg", FIF_TIFF, 24, TIFF_JPEG},
    {"tiff/fax3", FIF_TIFF, 1, TIFF_CCITTFAX3},
    {"tiff/fax4", FIF_TIFF, 1, TIFF_CCITTFAX4},
    {"tiff/lzw-grey", FIF_TIFF, 8, TIFF_LZW},
    {"tiff/lzw-16", FIF_TIFF, 0, TIFF_LZW, FIT_RGB16},
    {"tiff/deflate-alpha-16", FIF_TIFF, 0, TIFF_DEFLATE, FIT_RGBA16},
    {"tiff/lzw-grey-16", FIF_TIFF, 0, TIFF_LZW, FIT_UINT16},
    {"tiff/float-grey", FIF_TIFF, 0, TIFF_NONE, FIT_FLOAT},
    {"tiff/float", FIF_TIFF, 0, TIFF_DEFLATE, FIT_RGBF},
    {"tiff/logluv", FIF_TIFF, 0, TIFF_LOGLUV, FIT_RGBF},
    {"tiff/complex", FIF_TIFF, 0, TIFF_NONE, FIT_COMPLEX, false},
    {"gif/library", FIF_GIF, 8},
    {"psd/plain", FIF_PSD, 24, PSD_NONE},
    {"psd/16", FIF_PSD, 0, PSD_NONE, FIT_RGB16},
    {"psd/large-document", FIF_PSD, 24, PSD_NONE | PSD_PSB},
    {"tga/8", FIF_TARGA, 8},
    {"tga/16", FIF_TARGA, 16},
    {"tga/24", FIF_TARGA, 24},
    {"tga/8-rle", FIF_TARGA, 8, TARGA_SAVE_RLE},
    {"tga/32-rle", FIF_TARGA, 32, TARGA_SAVE_RLE},
    {"webp/lossy", FIF_WEBP, 24},
    {"webp/lossless", FIF_WEBP, 24, WEBP_LOSSLESS},
    {"webp/alpha", FIF_WEBP, 32},
    {"exr/half-piz", FIF_EXR, 0, EXR_DEFAULT, FIT_RGBF},
    {"exr/none", FIF_EXR, 0, EXR_NONE | EXR_FLOAT, FIT_RGBF},
    {"exr/zip-alpha", FIF_EXR, 0, EXR_ZIP, FIT_RGBAF},
    {"exr/b44", FIF_EXR, 0, EXR_B44, FIT_RGBF},
    {"exr/pxr24-grey", FIF_EXR, 0, EXR_PXR24, FIT_FLOAT},
    {"hdr/plain", FIF_HDR, 0, 0, FIT_RGBF},
    {"pfm/colour", FIF_PFM, 0, 0, FIT_RGBF},
    {"ico/8", FIF_ICO, 8},
    {"ico/32", FIF_ICO, 32},
    {"jp2/24", FIF_JP2, 24},
    {"j2k/grey", FIF_J2K, 8},
    {"jng/24", FIF_JNG, 24},
    {"pnm/raw-1", FIF_PBMRAW, 1},
    {"pnm/text-8", FIF_PGM, 8, PNM_SAVE_ASCII},
    {"pnm/raw-24", FIF_PPMRAW, 24},
    {"xpm/8", FIF_XPM, 8},
};

// Smooth colours with a grain, so that every code of the compressions comes up.
LibraryBitmap Picture() {
    return InLibrary(*Painted(seedSize, [](int x, int y) {
        const int grain = (x * x * 31 + y * y * 17 + x * y) % 23;
        return PixelColor{static_cast<BYTE>(x * 4), static_cast<BYTE>(y * 5),
                          static_cast<BYTE>(100 + grain), 0};
    }));
}

LibraryBitmap Converted(FIBITMAP* picture, const LibraryKind& kind) {
    if (kind.type == FIT_COMPLEX) {
        const LibraryBitmap grey(FreeImage_ConvertToFloat(picture));
        return LibraryBitmap(FreeImage_ConvertToType(grey.get(), FIT_COMPLEX));
    }
    if (kind.type == FIT_FLOAT) {
        return LibraryBitmap(FreeImage_ConvertToFloat(picture));
    }
    if (kind.type != FIT_BITMAP) {
        return LibraryBitmap(FreeImage_ConvertToType(picture, kind.type));
    }
    switch (kind.bits) {
        case 1:
            return LibraryBitmap(FreeImage_Dither(picture, FID_FS));
        case 8:
            return LibraryBitmap(kind.format == FIF_GIF || kind.format == FIF_TARGA
                                     ? FreeImage_ColorQuantize(picture, FIQ_WUQUANT)
                                     : FreeImage_ConvertToGreyscale(picture));
        case 16:
            return LibraryBitmap(FreeImage_ConvertTo16Bits565(picture));
        case 32:
            return LibraryBitmap(FreeImage_ConvertTo32Bits(picture));
        default:
            return LibraryBitmap(FreeImage_Clone(picture));
    }
}

void SetTag(FIBITMAP* bitmap, FREE_IMAGE_MDMODEL model, const char* key, int number,
            FREE_IMAGE_MDTYPE type, const QByteArray& value) {
    FITAG* const tag = FreeImage_CreateTag();
    FreeImage_SetTagKey(tag, key);
    FreeImage_SetTagID(tag, static_cast<WORD>(number));
    FreeImage_SetTagType(tag, type);
    FreeImage_SetTagCount(tag, static_cast<DWORD>(value.size()));
    FreeImage_SetTagLength(tag, static_cast<DWORD>(value.size()));
    FreeImage_SetTagValue(tag, value.constData());
    FreeImage_SetMetadata(model, bitmap, key, tag);
    FreeImage_DeleteTag(tag);
}

// Described photos, written by hand and by the library.
std::vector<SeedFile> DescribedSeeds(FIBITMAP* picture) {
    const LibraryBitmap photo = DescribedPicture();
    std::vector<SeedFile> seeds = {
        {"jpeg/described", Described(LibraryFile(FIF_JPEG, picture, 80).bytes, true), seedSize},
        {"jpeg/described-big-endian",
         Described(LibraryFile(FIF_JPEG, picture, 80 | JPEG_PROGRESSIVE).bytes), seedSize}};
    constexpr std::tuple<const char*, FREE_IMAGE_FORMAT, int> kinds[] = {
        {"jpeg/described-twice", FIF_JPEG, 80},
        {"tiff/described-jpeg", FIF_TIFF, TIFF_JPEG},
        {"tiff/described-lzw", FIF_TIFF, TIFF_LZW},
        {"webp/described", FIF_WEBP, 0},
        {"tga/thumbnail", FIF_TARGA, 0}};
    for (const auto& [name, format, flags] : kinds) {
        seeds.push_back({name, LibraryFile(format, photo.get(), flags).bytes, seedSize});
    }
    return seeds;
}

}  // namespace

std::vector<SeedFile> LibrarySeeds() {
    const LibraryBitmap picture = Picture();
    std::vector<SeedFile> seeds = DescribedSeeds(picture.get());
    for (const LibraryKind& kind : libraryKinds) {
        LibraryBitmap bitmap = Converted(picture.get(), kind);
        if (kind.format == FIF_ICO) {  // whose sides are multiples of 8
            bitmap.reset(FreeImage_Rescale(bitmap.get(), 32, 32, FILTER_BOX));
        }
        seeds.push_back({kind.name, LibraryFile(kind.format, bitmap.get(), kind.flags).bytes,
                         SizeOf(bitmap.get()), kind.loads});
    }
    return seeds;
}

LibraryBitmap DescribedPicture() {
    LibraryBitmap photo = Picture();
    SetTag(photo.get(), FIMD_EXIF_RAW, "ExifRaw", 0, FIDT_BYTE, ExifBlock(true));
    SetTag(photo.get(), FIMD_EXIF_MAIN, "Make", 271, FIDT_ASCII, QByteArray("Varnel", 7));
    SetTag(photo.get(), FIMD_IPTC, "Caption-Abstract", 0x0278, FIDT_ASCII, QByteArray("fish", 5));
    SetTag(photo.get(), FIMD_XMP, "XMLPacket", 700, FIDT_ASCII, XmpPacket() + '\0');
    SetTag(photo.get(), FIMD_COMMENTS, "Comment", 0, FIDT_ASCII, QByteArray("an eye", 7));
    QByteArray profile = ColourProfile();
    FreeImage_CreateICCProfile(photo.get(), profile.data(), static_cast<long>(profile.size()));
    const LibraryBitmap thumbnail(FreeImage_Rescale(photo.get(), 16, 11, FILTER_BOX));
    FreeImage_SetThumbnail(photo.get(), thumbnail.get());
    return photo;
}

QByteArray ThumbnailJpeg() {
    const LibraryBitmap small(FreeImage_Rescale(Picture().get(), 16, 11, FILTER_BOX));
    return LibraryFile(FIF_JPEG, small.get(), 50).bytes;
}

QByteArray IptcBlock() {
    QByteArray block;
    constexpr std::pair<int, const char*> texts[] = {
        {5, "a title"}, {25, "fish"}, {25, "eye"}, {80, "a photographer"}, {120, "a caption"}};
    for (const auto& [tag, text] : texts) {
        block += Numbers({0x1c, 2, tag}, 1) + Number(qstrlen(text), 2, Order::Big) + text;
    }
    return block;
}

QByteArray XmpPacket() {
    return "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'/></x:xmpmeta>"
           "<?xpacket end='w'?>";
}

// A display profile with a notice as its only table.
QByteArray ColourProfile() {
    constexpr int headerBytes = 128;
    const QByteArray notice = "text" + Number(0, 4) + PatternBytes(100);
    const QByteArray table = Number(1, 4, Order::Big) + "cprt" +
                             Numbers({headerBytes + 16, notice.size()}, 4, Order::Big) + notice;
    const QByteArray profile = Number(headerBytes + table.size(), 4, Order::Big) + "none" +
                               Number(0x02100000, 4, Order::Big) + "mntrRGB XYZ " +
                               Numbers({2020, 5, 1, 12, 0, 0}, 2, Order::Big) + "acsp";
    return (profile.leftJustified(68, '\0') +
            Numbers({0xf6d6, 0x10000, 0xd32d}, 4, Order::Big))  // the standard's white
               .leftJustified(headerBytes, '\0') +
           table;
}

const std::vector<SeedFile>& SeedFiles() {
    static const std::vector<SeedFile> all = [] {
        std::vector<SeedFile> seeds;
        for (const auto& part : {LibrarySeeds(), BmpSeeds(), PngSeeds(), OldTypeSeeds(),
                                 TiffSeeds(), RawSeeds(), ModernSeeds()}) {
            seeds.insert(seeds.end(), part.begin(), part.end());
        }
        return seeds;
    }();
    return all;
}

const QByteArray& Seed(std::string_view name) {
    return std::ranges::find(SeedFiles(), name, &SeedFile::name)->bytes;
}

}  // namespace varnel::testing
