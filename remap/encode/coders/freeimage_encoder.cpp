// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/freeimage_encoder.h"

#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

#include "remap/encode/coders/memory_file.h"
#include "remap/image/freeimage_bitmap.h"
#include "remap/image/image_library.h"

namespace varnel {

namespace {

MemoryFile& FileOf(fi_handle handle) {
    return *static_cast<MemoryFile*>(handle);
}

// Sizes and counts come in 32 bits; their product need not fit.
unsigned DLL_CALLCONV ReadItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    const qint64 read = FileOf(handle).Read(buffer, qint64{size} * qint64{count});
    return size == 0 ? 0 : static_cast<unsigned>(read / size);
}

unsigned DLL_CALLCONV WriteItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    return FileOf(handle).Write(buffer, qint64{size} * qint64{count}) ? count : 0;
}

int DLL_CALLCONV SeekTo(fi_handle handle, long offset, int origin) {
    return FileOf(handle).Seek(offset, origin) ? 0 : -1;
}

long DLL_CALLCONV TellPosition(fi_handle handle) {
    return static_cast<long>(FileOf(handle).Position());
}

// The one error that libtiff's caller lets pass: all that comes after it is missing in the file.
bool CutByLibrary(const QStringList& messages) {
    return !messages.filter(QStringLiteral("Maximum TIFF file size exceeded")).isEmpty();
}

// The reason why the file is not whole; empty when it is.
Reason Encode(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags, MemoryFile& file) {
    const ImageLibraryMessages messages;
    FreeImageIO access{ReadItems, WriteItems, SeekTo, TellPosition};
    const bool done = FreeImage_SaveToHandle(format, bitmap, &access, &file, flags) == TRUE;
    if (!file.Error().isEmpty()) {
        return file.Error();
    }
    if (!done || file.Bytes().isEmpty() || CutByLibrary(messages.Lines())) {
        return messages.Added(ReasonCode::CannotBeEncoded);
    }
    return {};
}

}  // namespace

EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags, qint64 largest) {
    try {
        MemoryFile file(largest);
        const Reason reason = Encode(format, bitmap, flags, file);
        return reason.isEmpty() ? EncodedBitmap{std::move(file.Bytes()), {}}
                                : EncodedBitmap{{}, reason};
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    } catch (const std::exception& error) {
        return {{}, {ReasonCode::Words, QString::fromLocal8Bit(error.what())}};
    } catch (...) {  // the library throws plain texts, too
        return {{}, ReasonCode::CannotBeEncoded};
    }
}

EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                          qint64 largest) {
    try {
        return LibraryFile(format, LibraryView(*bitmap).get(), flags, largest);
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

EncodedBitmap EncodeBmp(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                        const EncodeOptions& options) {
    return LibraryFile(FIF_BMP, bitmap, BMP_DEFAULT, options.largest);
}

}  // namespace varnel
