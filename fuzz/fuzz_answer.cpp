// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as a decoder's answer, and as what comes with the pixels. What is kept can be packed
// and taken again.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "decoder/process/protocol.h"
#include "remap/encode/encode_bitmap.h"
#include "tests/support/seeds/seed_files.h"

namespace {

void CheckAnswer(const std::uint8_t* data, std::size_t size) {
    varnel::DecoderAnswer answer;
    std::memcpy(&answer, data, std::min(size, sizeof answer));
    const varnel::DecoderRequest request{
        .number = answer.number, .memory = std::uint64_t{4} << 30, .depth = varnel::ReadDepth::Own};
    constexpr std::uint64_t length = std::uint64_t{1} << 20;
    if (varnel::IsConsistent(answer, request, length)) {
        const std::uint64_t rows = varnel::RowBytes(answer);
        if (rows > length || answer.attributesLength > length - rows) {
            std::abort();
        }
        if (!varnel::ReasonOf(answer)) {
            std::abort();
        }
    }
}

// What a described photo brings.
const QByteArray& SoundBlock() {
    static const QByteArray block =
        varnel::PackAttributes(varnel::LibraryMetadata(varnel::testing::DescribedPicture().get()));
    return block;
}

// What is said of such a photo besides.
const QByteArray& SoundMetadata() {
    static const QByteArray block = [] {
        varnel::FileMetadata photo;
        photo.metadata.exif.bytes = varnel::testing::ExifBlock(true).mid(6);
        photo.metadata.xmp = varnel::testing::XmpPacket();
        photo.metadata.iptc = varnel::testing::IptcBlock();
        photo.metadata.settings[QStringLiteral("Ratio")] = QStringLiteral("150");
        photo.metadata.notes.append(varnel::ReasonCode::MetadataUnreadable);
        photo.colourProfile = varnel::testing::ColourProfile();
        return varnel::PackFileMetadata(photo);
    }();
    return block;
}

// Bytes by bytes over a sound block: place, place, value, ...
QByteArray Damaged(QByteArray block, const std::uint8_t* data, std::size_t size) {
    for (std::size_t i = 0; i + 3 <= size; i += 3) {
        block[(data[i] << 8 | data[i + 1]) % block.size()] = static_cast<char>(data[i + 2]);
    }
    return block;
}

void CheckAttributes(const QByteArray& block) {
    const QByteArray packed = varnel::PackAttributes(varnel::UnpackAttributes(block));
    if (varnel::PackAttributes(varnel::UnpackAttributes(packed)) != packed) {
        std::abort();
    }
}

// What is taken can be given to a bitmap and be written.
void CheckMetadata(const QByteArray& block) {
    const varnel::FileMetadata taken = varnel::UnpackFileMetadata(block);
    const QByteArray packed = varnel::PackFileMetadata(taken);
    if (varnel::PackFileMetadata(varnel::UnpackFileMetadata(packed)) != packed) {
        std::abort();
    }
    const varnel::BitmapHandle bitmap = varnel::NewBitmap({8, 8});
    varnel::GiveMetadata(taken, *bitmap);
    for (const varnel::OutputType type : varnel::AllOutputTypes()) {
        varnel::EncodeBitmap(type, bitmap.get());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckAnswer(data, size);
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CheckAttributes(bytes);
    CheckAttributes(Damaged(SoundBlock(), data, size));
    CheckMetadata(bytes);
    CheckMetadata(Damaged(SoundMetadata(), data, size));
    return 0;
}
