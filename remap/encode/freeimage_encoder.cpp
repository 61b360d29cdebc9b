// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/freeimage_encoder.h"

#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

#include "remap/image/freeimage_bitmap.h"
#include "remap/image/library_messages.h"

namespace varnel {

namespace {

// The file that the library writes. A write that fails is remembered here, because the encoders go
// on after one and report success.
class EncodedFile {
  public:
    explicit EncodedFile(qint64 largest) : largest_(largest) {}

    // Nothing may be thrown through the encoders, which are C.
    bool Write(const void* bytes, qint64 length) {
        const qint64 end = position_ + length;
        if (!error_.isEmpty() || !Reach(end)) {
            return false;
        }
        std::memcpy(bytes_.data() + position_, bytes, static_cast<std::size_t>(length));
        position_ = end;
        return true;
    }

    qint64 Read(void* bytes, qint64 length) {
        const qint64 there = std::min<qint64>(bytes_.size() - position_, length);
        if (there <= 0) {
            return 0;
        }
        std::memcpy(bytes, bytes_.constData() + position_, static_cast<std::size_t>(there));
        position_ += there;
        return there;
    }

    bool Seek(qint64 offset, int origin) {
        const qint64 start = origin == SEEK_SET   ? 0
                             : origin == SEEK_CUR ? position_
                                                  : bytes_.size();
        if (start + offset < 0) {
            return false;
        }
        position_ = start + offset;
        return true;
    }

    qint64 Position() const { return position_; }
    const Reason& Error() const { return error_; }
    QByteArray& Bytes() { return bytes_; }

  private:
    // Makes the file at least so long; what was never written is zero.
    bool Reach(qint64 end) {
        if (end > largest_) {
            error_ = {ReasonCode::FileTooLarge, largest_};
            return false;
        }
        const qint64 before = bytes_.size();
        if (end <= before) {
            return true;
        }
        try {
            if (end > bytes_.capacity()) {
                bytes_.reserve(std::max(end, std::min(2 * before, largest_)));
            }
            bytes_.resize(end);
        } catch (const std::bad_alloc&) {
            error_ = ReasonCode::NotEnoughMemory;
            return false;
        }
        if (position_ > before) {
            std::memset(bytes_.data() + before, 0, static_cast<std::size_t>(position_ - before));
        }
        return true;
    }

    const qint64 largest_;
    QByteArray bytes_;
    qint64 position_ = 0;
    Reason error_;
};

EncodedFile& FileOf(fi_handle handle) {
    return *static_cast<EncodedFile*>(handle);
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
Reason Encode(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags, EncodedFile& file) {
    const LibraryMessages messages;
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
        EncodedFile file(largest);
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

BitmapHandle MetadataSample(const Bitmap* bitmap) {
    constexpr PixelSize side{8, 8};
    BitmapHandle sample = NewBitmap(side);
    sample->metadata = bitmap->metadata;
    return sample;
}

}  // namespace varnel
