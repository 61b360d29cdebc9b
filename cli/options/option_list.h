// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of varnel-convert by name, in the groups in which --help shows them. Throws
// std::bad_alloc only.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace varnel {

struct OptionRow {
    const char16_t* name;
    const char16_t* value;  // what is to be given; null: the option takes nothing
    const char16_t* help;
};

struct OptionGroup {
    const char16_t* heading;
    std::span<const OptionRow> rows;
};

std::span<const OptionGroup> OptionGroups();

// On the command line.
QStringList ProjectionKeys();
// "varnel, rectilinear, ...".
QString ProjectionNames();
// Without its dashes; null when there is none.
const OptionRow* FindOption(QStringView name);

// Names without dashes.
QStringList OptionNames();

// Options that set numbers of the record.
struct NumberOption {
    const char16_t* name;
    std::array<const char16_t*, 2> fields;
    std::optional<std::pair<float, float>> range{};  // the least and the most; none: any number
};

// Options that set a word of the record, as --set does.
struct WordOption {
    const char16_t* name;
    const char16_t* field;
    const char16_t* words;  // what is taken, for errors; empty: the option alone means True
};

std::span<const WordOption> WordOptions();

std::span<const NumberOption> NumberOptions();

void DeclareOptions(QCommandLineParser& parser);

inline QString OptionText(const char16_t* text) {
    return QString::fromUtf16(text);
}

}  // namespace varnel
