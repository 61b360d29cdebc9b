// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// By which a written file is known again. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QString>

#include "cli/options/options.h"

namespace varnel {

// SHA-256 of a file's bytes, 64 hexadecimal digits in small letters; empty where it cannot be read.
// Any thread may call it. Not by Qt, whose own takes eight times as long: nettle has the
// processor's instructions for it.
QByteArray Sha256Of(const QString& path);

// Only where the options report it.
QByteArray DigestFor(const Options& options, const QString& path);

}  // namespace varnel
