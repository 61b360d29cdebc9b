// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/mutate.h"

#include <QtEndian>
#include <algorithm>

#include "tests/support/seeds/file_bytes.h"

namespace varnel::testing {

namespace {

constexpr std::uint64_t tellingNumbers[] = {
    0,         1,         2,          0x7f,        0x80,        0xff,
    0x7fff,    0x8000,    0xffff,     0x10000,     0x7fffff,    0x800000,
    0xffffffU, 0x1000001, 0x7fffffff, 0x80000000U, 0xfffffffeU, 0xffffffffU};

const QByteArray pngMark("\x89PNG\r\n\x1a\n");

// Chunks whose length still fits get a right checksum.
void RepairPng(QByteArray& file) {
    if (!file.startsWith(pngMark)) {
        return;
    }
    for (qint64 place = 8; place + 12 <= file.size();) {
        const qint64 length = qFromBigEndian<quint32>(file.constData() + place);
        if (place + 12 + length > file.size()) {
            return;
        }
        const std::uint32_t sum = PngChecksum(file.mid(place + 4, length + 4));
        file.replace(place + 8 + length, 4, Number(sum, 4, Order::Big));
        place += 12 + length;
    }
}

}  // namespace

qint64 Mutator::Below(qint64 limit) {
    return static_cast<qint64>(random_() % static_cast<std::uint64_t>(limit));
}

qint64 Mutator::Place(const QByteArray& file) {
    const qint64 nearest[] = {64, 512, file.size()};
    return Below(std::min<qint64>(nearest[Below(3)], file.size()));
}

void Mutator::TurnBits(QByteArray& file) {
    for (qint64 count = 1 + Below(12); count > 0; --count) {
        const qint64 place = Place(file);
        file[place] = static_cast<char>(file[place] ^ 1 << Below(8));
    }
}

void Mutator::SetFields(QByteArray& file) {
    for (qint64 count = 1 + Below(3); count > 0; --count) {
        const int bytes = 1 << Below(3);
        const Order order = Below(2) == 0 ? Order::Little : Order::Big;
        const std::uint64_t value = tellingNumbers[Below(std::size(tellingNumbers))];
        const qint64 place = Place(file);
        file.replace(place, std::min<qint64>(bytes, file.size() - place),
                     Number(value, bytes, order));
    }
}

QByteArray Mutator::Spliced(const QByteArray& file, const QByteArray& other) {
    if (Below(2) == 0) {  // the header only
        const qint64 length = 1 + Below(64);
        return other.left(length) + file.mid(length);
    }
    return file.left(1 + Below(file.size())) + other.mid(Below(other.size()));
}

void Mutator::AddOrLeaveOut(QByteArray& file) {
    const qint64 place = Place(file);
    const qint64 length = 1 + Below(Below(4) == 0 ? 1000 : 8);
    switch (Below(3)) {
        case 0:
            file.remove(place, std::min(length, file.size() - 1));
            break;
        case 1:
            file.insert(place, file.mid(Below(file.size()), length));
            break;
        default:
            file.insert(place, QByteArray(length, static_cast<char>(Below(256))));
    }
}

QByteArray Mutator::Damaged(const QByteArray& file, const QByteArray& other) {
    QByteArray damaged = file;
    const qint64 kind = Below(100);
    if (kind < 30) {
        TurnBits(damaged);
    } else if (kind < 45) {
        damaged.truncate(1 + Below(file.size() - 1));
    } else if (kind < 75) {
        SetFields(damaged);
    } else if (kind < 88) {
        damaged = Spliced(file, other);
    } else {
        AddOrLeaveOut(damaged);
    }
    RepairPng(damaged);
    return damaged;
}

DamagedFile MakeDamagedFile(const std::vector<SeedFile>& seeds, std::uint64_t run,
                            std::uint64_t number) {
    const SeedFile& seed = seeds[number % seeds.size()];
    const std::vector<SeedFile>& all = SeedFiles();
    Mutator mutator(run * 1'000'000'007 + number);
    const QByteArray& other = all[mutator.Below(static_cast<qint64>(all.size()))].bytes;
    return {seed, mutator.Damaged(seed.bytes, other)};
}

}  // namespace varnel::testing
