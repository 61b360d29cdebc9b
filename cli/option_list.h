// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of varnel-convert by name, with what --help says of them.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <array>
#include <span>

namespace varnel {

// Options that set numbers of the record.
struct NumberOption {
    const char16_t* name;
    const char16_t* value;
    const char16_t* help;
    std::array<const char16_t*, 2> fields;
};

std::span<const NumberOption> NumberOptions();

void DeclareOptions(QCommandLineParser& parser);

inline QString OptionText(const char16_t* text) {
    return QString::fromUtf16(text);
}

}  // namespace varnel
