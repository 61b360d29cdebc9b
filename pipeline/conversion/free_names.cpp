// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/free_names.h"

#include <QFileInfo>

namespace varnel {

namespace {

QString Numbered(const QFileInfo& wanted, int number) {
    const QString name = wanted.fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    const qsizetype end = dot > 0 ? dot : name.size();
    return wanted.path() + u'/' + name.first(end) + u'-' + QString::number(number) +
           name.sliced(end);
}

}  // namespace

QString FreeNames::Take(const QString& wanted) {
    const QFileInfo first(wanted);
    QString path = wanted;
    for (int number = 2;; ++number) {
        const QFileInfo file(path);
        const QString key = file.absoluteFilePath().toCaseFolded();
        // A link that leads nowhere has the name, too.
        if (!file.exists() && !file.isSymLink() && !given_.contains(key)) {
            given_.insert(key);
            return path;
        }
        path = Numbered(first, number);
    }
}

QString FreeNames::For(int result, const QString& wanted) {
    QString& name = results_[result];
    if (name.isEmpty()) {
        name = Take(wanted);
    }
    return name;
}

}  // namespace varnel
