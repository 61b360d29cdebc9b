// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of varnel-convert by name, in the groups in which --help shows them. Throws
// std::bad_alloc only.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <array>
#include <span>

namespace varnel {

struct OptionRow {
    const char16_t* name;
    const char16_t* value;  // what is to be given; null: the option takes nothing
    const char16_t* help;   // see HelpOf
};

struct OptionGroup {
    const char16_t* heading;
    std::span<const OptionRow> rows;
};

std::span<const OptionGroup> OptionGroups();

// "varnel, rectilinear, ...".
QString ProjectionNames();
// The help with the projections' names in the place of "%1".
QString HelpOf(const OptionRow& row);

// Without its dashes; null when there is none.
const OptionRow* FindOption(QStringView name);

// Names without dashes.
QStringList OptionNames();

// Options that set numbers of the record.
struct NumberOption {
    const char16_t* name;
    std::array<const char16_t*, 2> fields;
};

std::span<const NumberOption> NumberOptions();

void DeclareOptions(QCommandLineParser& parser);

inline QString OptionText(const char16_t* text) {
    return QString::fromUtf16(text);
}

}  // namespace varnel
