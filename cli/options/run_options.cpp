// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/run_options.h"

#include <QFile>
#include <cstdio>

#include "cli/options/option_values.h"

namespace varnel {

void TakeRun(const QCommandLineParser& parser, Options& options) {
    options.force = parser.isSet(QStringLiteral("force"));
    options.skipExisting = parser.isSet(QStringLiteral("skip-existing"));
    options.keepBoth = parser.isSet(QStringLiteral("keep-both"));
    if (const QString jobs = QStringLiteral("jobs"); parser.isSet(jobs)) {
        options.jobs = WholeBetween(jobs, parser.value(jobs), 1, 256);
    }
    if (const QString shard = QStringLiteral("shard"); parser.isSet(shard)) {
        if (parser.values(shard).size() > 1) {
            throw UsageError{QStringLiteral("--shard is there twice; give one K/N")};
        }
        options.shard = ShardOf(parser.value(shard));
    }
    for (const QString& list : parser.values(QStringLiteral("files-from"))) {
        options.files += NamesInList(list);
    }
    options.quiet = parser.isSet(QStringLiteral("quiet"));
    options.json = parser.isSet(QStringLiteral("json"));
}

Shard ShardOf(const QString& text) {
    const QStringList parts = text.split(u'/');
    Shard shard;
    bool isNumber = parts.size() == 2;
    if (isNumber) {
        shard.number = parts.front().toInt(&isNumber);
    }
    if (isNumber) {
        shard.count = parts.back().toInt(&isNumber);
    }
    if (!isNumber || shard.number < 1 || shard.number > shard.count) {
        throw UsageError{
            QStringLiteral("--shard needs K/N, the K-th of N shares with K from 1 to N, "
                           "not \"%1\"; for example --shard 1/4")
                .arg(text)};
    }
    return shard;
}

QStringList NamesInList(const QString& list) {
    QFile file(list);
    const bool isOpen =
        list == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        throw UsageError{QStringLiteral("--files-from %1: %2").arg(list, file.errorString())};
    }
    QStringList names;
    for (const QByteArray& name : bytes.split(bytes.contains('\0') ? '\0' : '\n')) {
        if (!name.isEmpty()) {
            names.append(QFile::decodeName(name));
        }
    }
    if (names.isEmpty()) {
        throw UsageError{
            QStringLiteral("--files-from %1: no photo is named there; put one path on each line")
                .arg(list)};
    }
    return names;
}

}  // namespace varnel
