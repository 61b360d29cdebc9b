// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/nearest_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace varnel {

namespace {

// Letters to put in, take out or replace.
qsizetype LettersBetween(const QString& a, const QString& b) {
    std::vector<qsizetype> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), qsizetype{0});
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool same = a[i] == b[static_cast<qsizetype>(j) - 1];
            const qsizetype replaced = diagonal + (same ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

QString Nearest(const QString& given, const QStringList& names) {
    const QString lower = given.toLower();
    QString nearest;
    qsizetype least = std::max<qsizetype>(1, given.size() / 3) + 1;
    for (const QString& name : names) {
        const qsizetype letters = LettersBetween(lower, name.toLower());
        if (letters < least) {
            least = letters;
            nearest = name;
        }
    }
    if (!nearest.isEmpty() || given.isEmpty()) {
        return nearest;
    }
    for (const QString& name : names) {
        const bool shorter = nearest.isEmpty() || name.size() < nearest.size();
        if (shorter && name.startsWith(given, Qt::CaseInsensitive)) {
            nearest = name;
        }
    }
    return nearest;
}

}  // namespace varnel
