// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as a decoder's answer, and as what comes with the pixels. What is kept can be packed
// and taken again.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "decoder/protocol.h"
#include "tests/support/seed_files.h"

namespace {

void CheckAnswer(const std::uint8_t* data, std::size_t size) {
    varnel::DecoderAnswer answer;
    std::memcpy(&answer, data, std::min(size, sizeof answer));
    const varnel::DecoderRequest request{.number = answer.number, .memory = std::uint64_t{4} << 30};
    constexpr std::uint64_t length = std::uint64_t{1} << 20;
    if (varnel::Believable(answer, request, length)) {
        const std::uint64_t rows = varnel::RowBytes(answer);
        if (rows > length || answer.extrasLength > length - rows) {
            std::abort();
        }
        varnel::ReasonOf(answer);
    }
}

// What a described photo brings.
const QByteArray& SoundBlock() {
    static const QByteArray block = varnel::PackExtras(varnel::testing::DescribedPicture().get());
    return block;
}

// Bytes by bytes over a sound block: place, place, value, ...
QByteArray Damaged(const std::uint8_t* data, std::size_t size) {
    QByteArray block = SoundBlock();
    for (std::size_t i = 0; i + 3 <= size; i += 3) {
        block[(data[i] << 8 | data[i + 1]) % block.size()] = static_cast<char>(data[i + 2]);
    }
    return block;
}

void CheckExtras(const QByteArray& block) {
    const varnel::BitmapHandle bitmap(FreeImage_Allocate(1, 1, 24));
    varnel::TakeExtras(block, bitmap.get());
    const QByteArray packed = varnel::PackExtras(bitmap.get());
    const varnel::BitmapHandle again(FreeImage_Allocate(1, 1, 24));
    varnel::TakeExtras(packed, again.get());
    if (varnel::PackExtras(again.get()) != packed) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckAnswer(data, size);
    CheckExtras(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    CheckExtras(Damaged(data, size));
    return 0;
}
