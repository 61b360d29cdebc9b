// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/picture_damage.h"

#include <QFile>
#include <QtEndian>
#include <array>

namespace varnel {

namespace {

// Beginnings or pieces of libjpeg's and libtiff's messages about missing or wrong pixel data.
constexpr std::array damageMessages{
    u"Premature end of", u"Corrupt JPEG data",     u"Inconsistent progression",
    u"Read error",       u"Not enough data",       u"Not enough decoded bytes",
    u"Decoding error",   u"Corrupted LZW table",   u"Using code not yet in table",
    u"Bogus encoding",   u"Incompatible type for", u"Error while reading"};

// A cut BMP loads without a word; its header tells where its rows begin and how many there are.
// Only uncompressed files have rows of a known length.
bool BmpIsCut(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray header = file.read(54);
    if (header.size() < 54 || qFromLittleEndian<quint32>(header.constData() + 14) < 40 ||
        qFromLittleEndian<quint32>(header.constData() + 30) != 0) {
        return false;
    }
    const qint64 offset = qFromLittleEndian<quint32>(header.constData() + 10);
    const qint64 width = qFromLittleEndian<qint32>(header.constData() + 18);
    const qint64 height = qAbs<qint64>(qFromLittleEndian<qint32>(header.constData() + 22));
    const qint64 depth = qFromLittleEndian<quint16>(header.constData() + 28);
    const qint64 rowBytes = (width * depth + 31) / 32 * 4;
    return file.size() < offset + rowBytes * height;
}

}  // namespace

QString DamageOf(FREE_IMAGE_FORMAT format, const QString& path, const QStringList& messages) {
    for (const QString& message : messages) {
        for (const char16_t* sign : damageMessages) {
            if (message.contains(QStringView(sign), Qt::CaseInsensitive)) {
                return QStringLiteral("damaged: %1").arg(message);
            }
        }
    }
    if (format == FIF_BMP && BmpIsCut(path)) {
        return QStringLiteral("damaged: the file is cut short");
    }
    return {};
}

}  // namespace varnel
