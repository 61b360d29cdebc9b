// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of how a run goes and which photos it has.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include "cli/options/options.h"

namespace varnel {

// Throws UsageError.
void TakeRun(const QCommandLineParser& parser, Options& options);

// K/N with 1 <= K <= N. Throws UsageError.
Shard ShardOf(const QString& text);

// The names that a list holds: one a line, or each ended by a zero byte where there is one. "-" is
// standard input. Throws UsageError where it cannot be read or names nothing.
QStringList NamesInList(const QString& list);

}  // namespace varnel
