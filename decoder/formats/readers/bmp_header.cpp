// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/bmp_header.h"

#include <QtEndian>
#include <algorithm>

namespace varnel {

namespace {

constexpr std::int64_t fileHeaderBytes = 14;
constexpr std::int64_t oldHeaderBytes = 12;
constexpr std::int64_t plainHeaderBytes = 40;

std::uint32_t U32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

std::uint16_t U16(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

BmpHeader OldHeader(const QByteArray& bytes) {
    BmpHeader header;
    header.width = U16(bytes, 18);
    header.height = U16(bytes, 20);
    header.depth = U16(bytes, 24);
    return header;
}

BmpHeader NewHeader(const QByteArray& bytes) {
    BmpHeader header;
    header.width = static_cast<std::int32_t>(U32(bytes, 18));
    header.height = qAbs<std::int64_t>(static_cast<std::int32_t>(U32(bytes, 22)));
    header.depth = U16(bytes, 28);
    header.coding = static_cast<BmpCoding>(U32(bytes, 30));
    header.perMeterX = static_cast<std::int32_t>(U32(bytes, 38));
    header.perMeterY = static_cast<std::int32_t>(U32(bytes, 42));
    return header;
}

// Where pixels begin at the earliest: behind headers, masks and colour table.
std::int64_t EarliestPixels(const BmpHeader& header, std::uint32_t statedColours) {
    const bool old = header.headerBytes == oldHeaderBytes;
    std::int64_t colours = 0;
    if (header.depth <= 8) {
        const std::int64_t most = std::int64_t{1} << header.depth;
        colours = old || statedColours == 0 || statedColours > most ? most : statedColours;
    }
    const bool masks = header.headerBytes == plainHeaderBytes && header.coding == BmpCoding::Masks;
    return fileHeaderBytes + header.headerBytes + colours * (old ? 3 : 4) + (masks ? 12 : 0);
}

// Reads run-length codes as far as the picture's end.
class RunWalk {
  public:
    RunWalk(const QByteArray& codes, const BmpHeader& header) : codes_(codes), header_(header) {}

    // Whether the codes reach the end mark or the end of the last row.
    bool ReachesEnd() {
        while (at_ + 2 <= codes_.size()) {
            const int first = Code(at_);
            const int second = Code(at_ + 1);
            at_ += 2;
            if (first > 0) {
                column_ += first;
            } else if (second > 2) {
                const int bytes = header_.coding == BmpCoding::Rle8 ? second : (second + 1) / 2;
                at_ += (bytes + 1) / 2 * 2;
                column_ += second;
            } else if (!Escape(second)) {
                return true;
            }
        }
        // Some writers leave out the last marks, and a last filler byte.
        return at_ <= codes_.size() + 1 &&
               (row_ >= header_.height || (row_ == header_.height - 1 && column_ >= header_.width));
    }

  private:
    int Code(qsizetype at) const { return static_cast<unsigned char>(codes_.at(at)); }
    // False at the end mark.
    bool Escape(int code) {
        if (code == 0) {
            ++row_;
            column_ = 0;
        } else if (code == 2 && at_ + 2 <= codes_.size()) {
            column_ += Code(at_);
            row_ += Code(at_ + 1);
            at_ += 2;
        }
        return code != 1;
    }

    const QByteArray& codes_;
    const BmpHeader& header_;
    qsizetype at_ = 0;
    std::int64_t column_ = 0;
    std::int64_t row_ = 0;
};

bool IsRunLength(const BmpHeader& header) {
    return header.coding == BmpCoding::Rle8 || header.coding == BmpCoding::Rle4;
}

}  // namespace

std::optional<BmpHeader> ReadBmpHeader(const PictureFile& file) {
    const QByteArray bytes = file.Read(0, fileHeaderBytes + plainHeaderBytes);
    if (bytes.size() < fileHeaderBytes + oldHeaderBytes || !bytes.startsWith("BM")) {
        return std::nullopt;
    }
    const std::int64_t headerBytes = U32(bytes, fileHeaderBytes);
    const bool old = headerBytes == oldHeaderBytes;
    if (!old &&
        (headerBytes < plainHeaderBytes || bytes.size() < fileHeaderBytes + plainHeaderBytes)) {
        return std::nullopt;
    }
    BmpHeader header = old ? OldHeader(bytes) : NewHeader(bytes);
    header.headerBytes = headerBytes;
    header.pixelPlace =
        std::max<std::int64_t>(U32(bytes, 10), EarliestPixels(header, old ? 0 : U32(bytes, 46)));
    return header;
}

bool BmpIsCut(const PictureFile& file, const BmpHeader& header) {
    if (IsRunLength(header)) {
        const QByteArray codes = file.Read(header.pixelPlace, file.Length());
        return !RunWalk(codes, header).ReachesEnd();
    }
    const std::int64_t rowBits = header.width * header.depth;
    // The last row may do without its fill bytes.
    const std::int64_t pixelBytes =
        (rowBits + 31) / 32 * 4 * (header.height - 1) + (rowBits + 7) / 8;
    return file.Length() < header.pixelPlace + pixelBytes;
}

bool NeedsBmpReader(const BmpHeader& header) {
    return header.headerBytes > plainHeaderBytes || IsRunLength(header);
}

}  // namespace varnel
