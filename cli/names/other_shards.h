// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Names that the results of other shards' files have before those of this one's, so that of two
// results of one name the same fails as in one run of all. Throws std::bad_alloc only.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <map>
#include <vector>

#include "cli/conversion_records.h"
#include "cli/report/file_report.h"

namespace varnel {

// By paths alone, without looking at the files.
class Namesakes {
  public:
    // Of the options' files; without a shard there are none.
    explicit Namesakes(const Options& options);
    // The numbers of those of other shards before the file of that number, in ascending order,
    // that may have a result of the same name.
    QList<qsizetype> Before(qsizetype file) const;

  private:
    // What of a photo's path its results' names tell. There are two rules for where its ending
    // begins; a result's name follows one of them.
    QStringList KeysOf(const QString& path) const;

    const Options& options_;
    QHash<QString, QList<qsizetype>> others_;  // by their keys
};

// Of photos.
class NamesOfOthers {
  public:
    explicit NamesOfOthers(const ConvertRequest& request)
        : request_(request), namesakes_(request.options) {}
    // Looks up what the photo of that number may find taken.
    void LookUp(qsizetype photo, PhotoLoader& photos);
    // Before a result of that photo takes its name.
    void Take(qsizetype photo, const QString& name, ConversionTargets& targets) const;

  private:
    const ConvertRequest& request_;
    const Namesakes namesakes_;
    std::map<qsizetype, std::vector<FileReport>> before_;
};

}  // namespace varnel
