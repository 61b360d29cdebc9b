// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/names/other_shards.h"

#include <QFileInfo>
#include <algorithm>

#include "cli/names/existing_results.h"

namespace varnel {

Namesakes::Namesakes(const Options& options) : options_(options) {
    if (!options.shard || options.namePattern.contains(u"{n}")) {
        return;
    }
    for (qsizetype n = 0; n < options.files.size(); ++n) {
        if (!IsInShard(options, n)) {
            for (const QString& key : KeysOf(options.files[n])) {
                others_[key].append(n);
            }
        }
    }
}

QList<qsizetype> Namesakes::Before(qsizetype file) const {
    QList<qsizetype> before;
    if (others_.isEmpty()) {
        return before;
    }
    for (const QString& key : KeysOf(options_.files[file])) {
        const QList<qsizetype> same = others_.value(key);
        before.append({same.begin(), std::ranges::lower_bound(same, file)});
    }
    std::ranges::sort(before);
    before.erase(std::unique(before.begin(), before.end()), before.end());
    return before;
}

// In small letters, as some disks do not tell them from capital ones.
QStringList Namesakes::KeysOf(const QString& path) const {
    const QString& pattern = options_.namePattern;
    const QFileInfo file(path);
    const QString folder = options_.outputDir.isEmpty() ? file.path() + u'/' : QString();
    if (!pattern.isEmpty() && !pattern.contains(u"{name}")) {
        return {folder};
    }
    const QString name = file.fileName().toLower();
    return {folder + name.chopped(std::min<qsizetype>(name.size(), 3)) + u'*',
            folder + file.completeBaseName().toLower()};
}

void NamesOfOthers::LookUp(qsizetype photo, PhotoLoader& photos) {
    const QStringList& files = request_.options.files;
    const qsizetype each = RecordsOfEach(request_.options);
    for (const qsizetype other : namesakes_.Before(photo)) {
        const auto results = NamedResults(request_, photos,
                                          {files[other], static_cast<int>(other * each) + 1,
                                           static_cast<int>(files.size() * each)});
        auto& before = before_[photo];
        before.insert(before.end(), results.begin(), results.end());
    }
}

void NamesOfOthers::Take(qsizetype photo, const QString& name, ConversionTargets& targets) const {
    if (const auto before = before_.find(photo); before != before_.end()) {
        for (const FileReport& result : before->second) {
            if (result.result.compare(name, Qt::CaseInsensitive) == 0) {
                targets.Take(result.photo, result.result);
            }
        }
    }
}

}  // namespace varnel
