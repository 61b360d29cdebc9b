// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/picture_file.h"

#include <algorithm>

namespace varnel {

namespace {

// The library's way to a file of ours. Its handle is the open file.
unsigned ReadItems(void* buffer, unsigned size, unsigned count, fi_handle handle) {
    return static_cast<unsigned>(std::fread(buffer, size, count, static_cast<std::FILE*>(handle)));
}

unsigned WriteNothing(void* /*buffer*/, unsigned /*size*/, unsigned /*count*/,
                      fi_handle /*handle*/) {
    return 0;
}

int Seek(fi_handle handle, long offset, int origin) {
    return std::fseek(static_cast<std::FILE*>(handle), offset, origin);
}

long Tell(fi_handle handle) {
    return std::ftell(static_cast<std::FILE*>(handle));
}

FreeImageIO OpenFile() {
    return {&ReadItems, &WriteNothing, &Seek, &Tell};
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

FREE_IMAGE_FORMAT PictureFile::Format() const {
    FreeImageIO io = OpenFile();
    std::rewind(file_);
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileTypeFromHandle(&io, file_, 0);
    return format != FIF_UNKNOWN && FreeImage_FIFSupportsReading(format) == TRUE ? format
                                                                                 : FIF_UNKNOWN;
}

BitmapHandle PictureFile::Load(FREE_IMAGE_FORMAT format, int flags) const {
    FreeImageIO io = OpenFile();
    std::rewind(file_);
    return BitmapHandle(FreeImage_LoadFromHandle(format, &io, file_, flags));
}

}  // namespace varnel
