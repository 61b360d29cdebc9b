// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The hidden files beside a target, under which files are written before they get their names.
//
// There are a few fixed names, taken in order, rather than one by chance for every file: what a
// killed run left is then found by asking for these names, while names by chance would have to be
// looked for among all files of the folder, which holds tens of thousands or lies on a network. Who
// writes such a file keeps it locked; a lock goes with its process, so a file without one is a
// stray. Whether a file is whole is never told by its name, so it does not matter that names
// are used again.
#pragma once

#include <QByteArray>

#ifdef Q_OS_UNIX

#include <sys/stat.h>

namespace varnel {

inline constexpr int fixedSavingNames = 32;

// The names in the order in which they are tried, n = 0 to fixedSavingNames. The last one is by
// chance, for when all others are taken: by as many writers, or by strays on a file system without
// locks.
QByteArray SavingName(const QByteArray& folder, int n);

// Removes the regular files of the fixed names that nobody is writing.
void RemoveStrays(const QByteArray& folder);

// Whether the name still leads to that very file.
bool IsNamed(const struct stat& file, const QByteArray& name);

}  // namespace varnel

#endif
