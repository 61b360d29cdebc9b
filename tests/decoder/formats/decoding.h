// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files in memory through the decoder's own code, in this process.
#pragma once

#include "decoder/formats/decode_picture.h"

namespace varnel::testing {

inline LoadedPicture Decode(QByteArray file, const ReadRequest& request = {},
                            std::uint64_t memory = std::uint64_t{16} << 30) {
    const FileHandle opened(fmemopen(file.data(), static_cast<std::size_t>(file.size()), "rb"));
    return DecodePicture(opened.get(), request, memory);
}

}  // namespace varnel::testing
