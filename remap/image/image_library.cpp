// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/image_library.h"

#include <new>
#include <utility>

#include "remap/image/freeimage_bitmap.h"

namespace varnel {

namespace {

void AddComment(FITAG* tag, BitmapMetadata& metadata) {
    const QByteArray key = FreeImage_GetTagKey(tag);
    const auto* const text = static_cast<const char*>(FreeImage_GetTagValue(tag));
    if (FreeImage_GetTagType(tag) == FIDT_ASCII && text != nullptr && !key.isEmpty() &&
        !IsMetadataInText(key)) {
        metadata.comments.insert(key, text);
    }
}

void PassOn(FREE_IMAGE_FORMAT /*format*/, const char* message) {
    AddLibraryMessage(QString::fromLocal8Bit(message));
}

}  // namespace

bool IsMetadataInText(const QByteArray& key) {
    return key.startsWith("Raw profile type") || key.startsWith("XML:");
}

PixelSize SizeOf(FIBITMAP* bitmap) {
    return {static_cast<std::int32_t>(FreeImage_GetWidth(bitmap)),
            static_cast<std::int32_t>(FreeImage_GetHeight(bitmap))};
}

LibraryBitmap LibraryView(const Bitmap& bitmap) {
    const PixelSize size = bitmap.Size();
    // The library's parameters only lack a const.
    LibraryBitmap view(FreeImage_ConvertFromRawBitsEx(
        FALSE, const_cast<BYTE*>(bitmap.Bits()), FIT_BITMAP, size.width, size.height,
        static_cast<int>(bitmap.Pitch()), 24, FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK,
        FI_RGBA_BLUE_MASK, FALSE));
    if (!view) {
        throw std::bad_alloc();
    }
    const BitmapMetadata& metadata = bitmap.metadata;
    FreeImage_SetDotsPerMeterX(view.get(), metadata.dotsPerMetreX);
    FreeImage_SetDotsPerMeterY(view.get(), metadata.dotsPerMetreY);
    if (!metadata.colourProfile.isEmpty()) {
        FreeImage_CreateICCProfile(view.get(),
                                   const_cast<char*>(metadata.colourProfile.constData()),
                                   static_cast<long>(metadata.colourProfile.size()));
    }
    for (auto comment = metadata.comments.begin(); comment != metadata.comments.end(); ++comment) {
        FreeImage_SetMetadataKeyValue(FIMD_COMMENTS, view.get(), comment.key().constData(),
                                      comment.value().constData());
    }
    return view;
}

BitmapMetadata LibraryMetadata(FIBITMAP* bitmap) {
    BitmapMetadata metadata;
    metadata.dotsPerMetreX = FreeImage_GetDotsPerMeterX(bitmap);
    metadata.dotsPerMetreY = FreeImage_GetDotsPerMeterY(bitmap);
    const FIICCPROFILE* const profile = FreeImage_GetICCProfile(bitmap);
    if (profile->data != nullptr) {
        metadata.colourProfile = QByteArray(static_cast<const char*>(profile->data),
                                            static_cast<qsizetype>(profile->size));
    }
    FITAG* tag = nullptr;
    if (FIMETADATA* const search = FreeImage_FindFirstMetadata(FIMD_COMMENTS, bitmap, &tag)) {
        do {
            AddComment(tag, metadata);
        } while (FreeImage_FindNextMetadata(search, &tag) == TRUE);
        FreeImage_FindCloseMetadata(search);
    }
    return metadata;
}

BitmapHandle TakeOver(LibraryBitmap bitmap) {
    if (!bitmap) {
        return nullptr;
    }
    FIBITMAP* const library = bitmap.get();
    const PixelSize size = SizeOf(library);
    auto* const rows = reinterpret_cast<std::byte*>(FreeImage_GetBits(library));
    const std::shared_ptr<FIBITMAP> owner = std::move(bitmap);
    auto taken =
        std::make_unique<Bitmap>(PixelFormat::Bgr8, size, std::shared_ptr<std::byte>(owner, rows));
    taken->metadata = LibraryMetadata(library);
    return taken;
}

BitmapHandle RescaledByBox(const Bitmap& bitmap, PixelSize size) {
    LibraryBitmap scaled(
        FreeImage_Rescale(LibraryView(bitmap).get(), size.width, size.height, FILTER_BOX));
    if (!scaled) {
        throw std::bad_alloc();
    }
    BitmapHandle result = TakeOver(std::move(scaled));
    result->metadata = bitmap.metadata;
    return result;
}

ImageLibraryMessages::ImageLibraryMessages() {
    FreeImage_SetOutputMessage(&PassOn);
}

bool IsPictureName(const QString& name) {
    return FreeImage_GetFIFFromFilename(name.toUtf8().constData()) != FIF_UNKNOWN;
}

QString LibraryVersion() {
    return QString::fromLocal8Bit(FreeImage_GetVersion());
}

QString LibraryNotice() {
    return QString::fromLocal8Bit(FreeImage_GetCopyrightMessage());
}

}  // namespace varnel
