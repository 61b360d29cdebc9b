// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is in files and folders.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

namespace varnel::testing {

inline QByteArray Contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void WriteFile(const QString& path, const QByteArray& contents) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(contents);
}

// Everything in the folder by name, hidden files and links to nowhere as well.
inline QStringList NamesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

}  // namespace varnel::testing
