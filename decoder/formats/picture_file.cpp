// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/picture_file.h"

#include <algorithm>

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

std::int64_t LengthOf(std::FILE* file) {
    return std::fseek(file, 0, SEEK_END) == 0 ? std::max<std::int64_t>(std::ftell(file), 0) : 0;
}

}  // namespace

PictureFile::PictureFile(std::FILE* file) : file_(file), length_(LengthOf(file)) {}

QByteArray PictureFile::Read(std::int64_t offset, std::int64_t most) const {
    const std::int64_t count = std::min(most, length_ - offset);
    if (offset < 0 || count <= 0 || std::fseek(file_, offset, SEEK_SET) != 0) {
        return {};
    }
    QByteArray bytes(count, Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(std::fread(bytes.data(), 1, bytes.size(), file_)));
    return bytes;
}

unsigned PictureFile::Fill(void* buffer, unsigned size, unsigned count) const {
    const std::int64_t start = replaced_.empty() ? 0 : std::ftell(file_);
    const std::size_t items = std::fread(buffer, size, count, file_);
    const std::int64_t end = start + static_cast<std::int64_t>(items * size);
    for (const Replaced& replaced : replaced_) {
        if (replaced.place >= start && replaced.place < end) {
            static_cast<char*>(buffer)[replaced.place - start] = replaced.byte;
        }
    }
    return static_cast<unsigned>(items);
}

FREE_IMAGE_FORMAT PictureFile::Format() const {
    FreeImageIO io = OpenFile();
    std::rewind(file_);
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileTypeFromHandle(&io, HandleOf(*this), 0);
    return format != FIF_UNKNOWN && FreeImage_FIFSupportsReading(format) == TRUE ? format
                                                                                 : FIF_UNKNOWN;
}

LibraryBitmap PictureFile::Load(FREE_IMAGE_FORMAT format, int flags) const {
    FreeImageIO io = OpenFile();
    std::rewind(file_);
    return LibraryBitmap(FreeImage_LoadFromHandle(format, &io, HandleOf(*this), flags));
}

}  // namespace varnel
