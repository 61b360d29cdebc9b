// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The names of the hidden files beside a target, in which files are written before they are
// renamed. Throws nothing.
//
// A few fixed names, taken in order, rather than a random one for every file: what a killed run
// left is then found by these names, while random ones would have to be searched for among all
// files of the folder, which may hold tens of thousands or lie on a network. The writer of such a
// file keeps it locked; the lock ends with the process, so a file without one is a stray. A name
// says nothing about whether its file is whole, so names can be used again.
#pragma once

#include <QByteArray>

#ifdef Q_OS_UNIX

#include <sys/stat.h>

namespace varnel {

inline constexpr int fixedTempNames = 32;

// The names in the order in which they are tried, n = 0 to fixedTempNames. The last one is random,
// for when all others are taken: by as many writers, or by strays on a file system without locks.
QByteArray TempName(const QByteArray& folder, int n);

// Removes the regular files of the fixed names that no process holds locked.
void RemoveStrays(const QByteArray& folder);

// Whether the name still leads to that file.
bool IsNamed(const struct stat& file, const QByteArray& name);

}  // namespace varnel

#endif
