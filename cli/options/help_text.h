// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What varnel-convert --help shows. Throws std::bad_alloc only.
#pragma once

#include <QString>

namespace varnel {

// Usage, the options in their groups as lines "  --name <VALUE>  what it does" of at most 80
// columns, examples, exit codes.
QString HelpText();

}  // namespace varnel
