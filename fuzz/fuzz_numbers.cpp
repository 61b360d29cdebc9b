// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any text as a number: what is read is finite and reads the same once it was written again.
#include <QLocale>
#include <cmath>
#include <cstdlib>

#include "state/settings/number_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const auto read : {varnel::FloatFromText, varnel::FloatFromPointText}) {
        const std::optional<float> number = read(text);
        if (!number) {
            continue;
        }
        for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::German)}) {
            const QString written = varnel::FloatText(*number, locale);
            const std::optional<float> again = varnel::FloatFromText(written);
            // Seven digits: not every last bit.
            if (!std::isfinite(*number) || !again ||
                std::fabs(*again - *number) > std::fabs(*number) * 1e-6F) {
                std::abort();
            }
        }
    }
    varnel::WholeFromText(text);
    return 0;
}
