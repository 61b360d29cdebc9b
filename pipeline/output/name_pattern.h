// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Patterns for the names of written files: text with tokens in braces, {name} for the photo's own
// name and so on. Throws nothing but OverflowError where it says so.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "pipeline/output/output_name.h"

namespace varnel {

// Gives the names that a batch has always written: {tags} and {suffix} bring their own "_".
inline constexpr QLatin1StringView usualPattern("{name}.{projection}{suffix}{tags}");

// What of a name does not come from the record.
struct NameFacts {
    int number = 1;   // of the result in its run, from 1 on
    int results = 1;  // of the run: their digits are the number's
    QDate day = {};   // on which the photo was taken
};

// How files are called.
struct NameRules {
    QString pattern = usualPattern;
    NameAdditions additions = {};
    PhotoEnding ending = PhotoEnding::Cut;
};

// What is wrong with a pattern, in words; empty when nothing is.
QString PatternError(const QString& pattern);

// All tokens with their braces.
QStringList PatternTokens();

// Whether the name depends on the day, which has to be looked up in the photo.
bool NamesDay(const QString& pattern);

// The name without folder and extension. "{name}.{projection}" keeps the rule by which the last
// three letters of a photo's name are its ending; {name} elsewhere is what stands before the last
// dot. A pattern that has errors, or gives nothing at all, counts as the usual one. Throws
// OverflowError for a number of the record that cannot stand in a name.
QString NameByPattern(const ImageRecord& image, const NameRules& rules, const NameFacts& facts);

// The full path in a folder.
QString PathByPattern(const ImageRecord& image, const QString& folder, const NameRules& rules,
                      OutputType type, const NameFacts& facts);

}  // namespace varnel
