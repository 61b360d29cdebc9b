// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/unfinished_file.h"

#include <chrono>
#include <cstdio>

namespace varnel {

void UnfinishedFile::RemoveForEver() {
    constexpr std::chrono::milliseconds longest(100);
    if (mutex_.try_lock_for(longest)) {
        for (const QByteArray& name : names_) {
            std::remove(name.constData());
        }
    }
}

}  // namespace varnel
