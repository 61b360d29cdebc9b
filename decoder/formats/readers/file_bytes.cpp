// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/file_bytes.h"

#include "decoder/formats/picture_file.h"

namespace varnel {

FileBytes::FileBytes(std::FILE* file) {
    // Not by its name or state, of which the decoder may not ask.
    const PictureFile picture(file);
    length_ = picture.Length();
    const bool isInMemory = fileno(file) == -1;  // already
    if (!isInMemory && file_.open(file, QIODevice::ReadOnly)) {
        bytes_ = file_.map(0, length_);
    }
    if (bytes_ == nullptr && length_ > 0) {
        read_ = picture.Read(0, length_);
        length_ = read_.size();
        bytes_ = reinterpret_cast<const uchar*>(read_.constData());
    }
}

}  // namespace varnel
