// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of which is only asked whether another name leads to one of them.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace varnel {

// The file that a path leads to, through links and on cards that do not tell small from capital
// letters; empty when there is none.
QString FileIdentity(const QString& path);

// Whether both names lead to one file, which is there.
bool SameFile(const QString& a, const QString& b);

// Whether both names may lead to one file, be it there or not: the same folder, and names that some
// cards do not tell apart.
bool MayBeSameFile(const QString& a, const QString& b);

class FileIdentities {
  public:
    explicit FileIdentities(QStringList paths) : unknown_(std::move(paths)) {}
    // Asks the system once for each of the paths that is there, however often it is called.
    bool Contains(const QString& path);

  private:
    QStringList unknown_;  // not asked for yet, or not there when last asked
    QSet<QString> known_;
};

}  // namespace varnel
