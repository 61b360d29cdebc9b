// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A sampling as text, "classic" or "fine", for fields, settings and the command line; read in
// letters of any case. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <optional>

#include "state/records/sampling_kind.h"

namespace varnel {

inline QString ToText(SamplingKind kind) {
    return kind == SamplingKind::Fine ? QStringLiteral("fine") : QStringLiteral("classic");
}

inline std::optional<SamplingKind> SamplingFromText(const QString& text) {
    for (const SamplingKind kind : {SamplingKind::Classic, SamplingKind::Fine}) {
        if (text.compare(ToText(kind), Qt::CaseInsensitive) == 0) {
            return kind;
        }
    }
    return std::nullopt;
}

}  // namespace varnel
