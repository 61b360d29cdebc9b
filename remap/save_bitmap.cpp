// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/save_bitmap.h"

#include <QSaveFile>

#include "remap/library_messages.h"

namespace varnel {

namespace {

struct MemoryCloser {
    void operator()(FIMEMORY* memory) const { FreeImage_CloseMemory(memory); }
};

SaveResult Failed(const QString& reason) {
    return {false, reason};
}

}  // namespace

SaveResult SaveBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const QString& fileName,
                      int flags) {
    const LibraryMessages messages;
    const std::unique_ptr<FIMEMORY, MemoryCloser> memory(FreeImage_OpenMemory());
    BYTE* bytes = nullptr;
    DWORD length = 0;
    if (FreeImage_SaveToMemory(format, bitmap, memory.get(), flags) != TRUE ||
        FreeImage_AcquireMemory(memory.get(), &bytes, &length) != TRUE || length == 0) {
        return Failed(messages.Added(QStringLiteral("the picture could not be encoded")));
    }
    QSaveFile file(fileName);
    // Flushing is checked by itself: committing alone has let cut files pass on a full disk.
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(bytes), length) != static_cast<qint64>(length) ||
        !file.flush() || !file.commit()) {
        return Failed(file.errorString());
    }
    return {true, {}};
}

}  // namespace varnel
