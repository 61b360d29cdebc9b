// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which known name a misspelt one may stand for. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>

namespace varnel {

// The name that is the fewest letters away, as long as that is no more than a third of what was
// given, else the shortest that begins with it; small and capital letters are the same. Empty when
// nothing is near.
QString Nearest(const QString& given, const QStringList& names);

}  // namespace varnel
