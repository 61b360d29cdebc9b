// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/taken_with.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>

namespace varnel {

namespace {

// Tags and types of the EXIF standard.
constexpr quint16 makeTag = 0x010F;
constexpr quint16 modelTag = 0x0110;
constexpr quint16 exifTag = 0x8769;  // where the second directory is
constexpr quint16 lensTag = 0xA434;
constexpr quint16 asciiType = 2;
constexpr quint16 longType = 4;

constexpr quint32 headerSize = 8;
constexpr quint32 entrySize = 12;

quint32 DirectorySize(quint32 entries) {
    return 2 + entries * entrySize + 4;
}

// Texts follow the directories, each with its closing zero; short ones are made longer with zeros,
// because up to four bytes would stand in the entry itself.
class Texts {
  public:
    explicit Texts(quint32 place) : place_(place) {}
    void Write(QDataStream& directory, quint16 tag, QByteArray text) {
        text += QByteArray(text.size() < 4 ? 4 - text.size() + 1 : 1, '\0');
        const auto size = static_cast<quint32>(text.size());
        directory << tag << asciiType << size << place_ + static_cast<quint32>(bytes_.size());
        bytes_ += text;
        bytes_ += QByteArray(bytes_.size() % 2, '\0');
    }
    const QByteArray& Bytes() const { return bytes_; }

  private:
    quint32 place_;
    QByteArray bytes_;
};

}  // namespace

QByteArray ExifTakenWith(const QByteArray& make, const QByteArray& model, const QByteArray& lens) {
    constexpr quint32 noMore = 0;
    const quint32 second = headerSize + DirectorySize(3);
    Texts texts(second + DirectorySize(1));
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);  // the high byte first: "MM"
    out.writeRawData("MM", 2);
    out << quint16{42} << headerSize;
    out << quint16{3};
    texts.Write(out, makeTag, make);
    texts.Write(out, modelTag, model);
    out << exifTag << longType << quint32{1} << second << noMore;
    out << quint16{1};
    texts.Write(out, lensTag, lens);
    out << noMore;
    return block + texts.Bytes();
}

}  // namespace varnel
