// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <string>
#include <vector>

#include "varnel/varnel.h"

struct varnel_names {
    std::vector<std::string> all;
};

namespace varnel {

// Throws std::bad_alloc.
varnel_names* NewNames(const QStringList& names);

}  // namespace varnel
