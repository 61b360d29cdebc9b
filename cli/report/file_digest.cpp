// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/file_digest.h"

#include <nettle/sha2.h>

#include <QFile>
#include <array>
#include <cstdint>

namespace varnel {

QByteArray Sha256Of(const QString& path) {
    constexpr qint64 atOnce = 256 << 10;  // bytes, which stay in the processor's cache
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    sha256_ctx state{};
    sha256_init(&state);
    QByteArray piece(atOnce, Qt::Uninitialized);
    qint64 length = 0;
    while ((length = file.read(piece.data(), atOnce)) > 0) {
        sha256_update(&state, static_cast<std::size_t>(length),
                      reinterpret_cast<const std::uint8_t*>(piece.constData()));
    }
    if (length < 0) {
        return {};
    }
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
    sha256_digest(&state, digest.size(), digest.data());
    return QByteArray(reinterpret_cast<const char*>(digest.data()), SHA256_DIGEST_SIZE).toHex();
}

QByteArray DigestFor(const Options& options, const QString& path) {
    return options.json ? Sha256Of(path) : QByteArray();
}

}  // namespace varnel
