// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The reasons that the rooms without translations give, in the language of the window. The decoder
// is a process of its own, the geometry and the files know no user, and the settings are read
// before the language is known: they all speak English, and programs for the console leave it so.
#pragma once

#include <QString>

namespace varnel {

// The same text, word for word, when no translation is installed, and for anything that none of
// those rooms says. Several reasons stand with "; " between them.
QString ToldReason(const QString& reason);

// As an exception tells it.
QString ToldReason(const char* what);

}  // namespace varnel
