// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether two names lead to the same file. Throws nothing.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace varnel {

// A key of the file that a path leads to, the same through links and on file systems that ignore
// case; empty when the file does not exist.
QString FileIdentity(const QString& path);

// Whether both names lead to one file that exists.
bool SameFile(const QString& a, const QString& b);

// Whether both names may lead to one file, whether it exists or not: the same folder, and names
// that differ in case or in how Unicode composes their letters at most.
bool MayBeSameFile(const QString& a, const QString& b);

// A set of files, some of which need not exist yet.
class FileIdentities {
  public:
    explicit FileIdentities(QStringList paths) : unknown_(std::move(paths)) {}
    // Asks the system once for each of the paths that exist, however often it is called.
    bool Contains(const QString& path);

  private:
    QStringList unknown_;  // not looked up yet, or missing when last looked up
    QSet<QString> known_;
};

}  // namespace varnel
