// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Damaging files, the same way on every machine.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <random>

#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

class Mutator {
  public:
    explicit Mutator(std::uint64_t seed) : random_(seed) {}

    // The file with one kind of damage: bits turned (30 of 100), cut short (15), fields set to
    // telling numbers (30), its beginning or end taken from the other file (13), bytes added or
    // left out (12). Never empty. Checksums of PNG chunks are made good again.
    QByteArray Damaged(const QByteArray& file, const QByteArray& other);

    // A number below the limit.
    qint64 Below(qint64 limit);

  private:
    void TurnBits(QByteArray& file);
    void SetFields(QByteArray& file);
    QByteArray Spliced(const QByteArray& file, const QByteArray& other);
    void AddOrLeaveOut(QByteArray& file);
    // A place in the file; often near its beginning, where the headers are.
    qint64 Place(const QByteArray& file);

    std::mt19937_64 random_;
};

// The damaged file of that number in a run: made from one of these seeds in turn, and at times
// pieces of any other.
struct DamagedFile {
    const SeedFile& seed;
    QByteArray bytes;
};
DamagedFile MakeDamagedFile(const std::vector<SeedFile>& seeds, std::uint64_t run,
                            std::uint64_t number);

}  // namespace varnel::testing
