// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small files that declare gigantic pictures.
#pragma once

#include <QByteArray>
#include <string>
#include <vector>

namespace varnel::testing {

struct BombFile {
    std::string name;
    QByteArray bytes;
};

// Every type that can declare it, with that many pixels on each side (65535 at most; PSD has
// 30,000 at most, WebP pixels 16,383).
std::vector<BombFile> BombFiles(int side);

}  // namespace varnel::testing
