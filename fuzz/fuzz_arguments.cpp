// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any lines as the arguments of either program: they are taken, or refused with one line.
#include <cstdlib>

#include "app/start/start_arguments.h"
#include "cli/options/options.h"

namespace {

void CheckRefusal(const QString* refusal) {
    if (refusal != nullptr && refusal->isEmpty()) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QStringList arguments = QStringList(QStringLiteral("varnel")) + text.split(u'\n');
    const auto options = varnel::ParseOptions(arguments);
    CheckRefusal(std::get_if<QString>(&options));
    const auto start = varnel::ParseStartArguments(arguments);
    CheckRefusal(std::get_if<QString>(&start));
    return 0;
}
