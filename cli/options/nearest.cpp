// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/nearest.h"

namespace varnel {

QString AskIfMeant(const QString& what, const QString& nearest, const QString& rest) {
    const QString question =
        nearest.isEmpty() ? QString() : QStringLiteral("did you mean \"%1\"? ").arg(nearest);
    return what + QStringLiteral("; ") + question + rest;
}

}  // namespace varnel
