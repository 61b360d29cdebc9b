// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Damaged files through the reader: does every one of them get a proper answer, and which?
#pragma once

#include <QTemporaryDir>
#include <array>
#include <map>
#include <string>

#include "decoder/process/picture_reader.h"
#include "tests/support/seeds/mutate.h"

namespace varnel::testing {

enum class Verdict { Loaded, Damaged, Refused, Died, TooLong };

class DamageTally {
  public:
    void Add(const std::string& type, Verdict verdict, qint64 milliseconds);
    void Add(const DamageTally& other);
    // A line for each type and one for all: files, verdicts, the slowest answer.
    std::string Table() const;

  private:
    struct Row {
        std::array<int, 5> counts{};
        qint64 slowest = 0;
    };
    std::map<std::string, Row> rows_;
};

class DamageTrial {
  public:
    explicit DamageTrial(int secondsPerPhoto);

    // What is wrong with the answer to this file, or with writing the picture that came; empty
    // when it is as it has to be.
    QString Try(const DamagedFile& file);
    LoadedPicture Read(const QByteArray& file, ReadDepth depth = ReadDepth::Eight);
    const DamageTally& Tally() const { return tally_; }

  private:
    int secondsPerPhoto_;
    QTemporaryDir folder_;
    std::unique_ptr<PictureReader> reader_;
    DamageTally tally_;
    bool isDeep_ = false;  // whether the last file was read in its own depth
};

}  // namespace varnel::testing
