// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/lens_name.h"

#include <QRegularExpression>
#include <algorithm>

namespace varnel {

namespace {

QStringList WordsOf(const QString& text) {
    static const QRegularExpression letters(QStringLiteral("[A-Z]+"));
    QStringList words;
    const QString upper = text.toUpper();
    for (auto found = letters.globalMatch(upper); found.hasNext();) {
        words.append(found.next().captured());
    }
    return words;
}

QRegularExpression Pattern(const char16_t* text) {
    return QRegularExpression(QString::fromUtf16(text), QRegularExpression::CaseInsensitiveOption);
}

void TakeFocalLengths(const QRegularExpressionMatch& match, LensName& name) {
    name.shortest = match.captured(1).toFloat();
    name.longest = std::max(name.shortest, match.captured(2).toFloat());
}

}  // namespace

LensName ParseLensName(const QString& text) {
    static const QRegularExpression focal =
        Pattern(uR"((\d+(?:\.\d+)?)(?:\s*(?:mm)?\s*-\s*(\d+(?:\.\d+)?))?\s*mm)");
    static const QRegularExpression aperture = Pattern(uR"((?:\bf\s*[/:]?\s*|1:)(\d+(?:\.\d+)?))");
    // Some makers separate focal length and aperture by a slash only.
    static const QRegularExpression slashed =
        Pattern(uR"((\d+(?:\.\d+)?)(?:-(\d+(?:\.\d+)?))?/f(\d+(?:\.\d+)?))");
    LensName name;
    name.words = WordsOf(text);
    if (const auto match = focal.match(text); match.hasMatch()) {
        TakeFocalLengths(match, name);
        name.aperture = aperture.match(text).captured(1).toFloat();
    } else if (const auto both = slashed.match(text); both.hasMatch()) {
        TakeFocalLengths(both, name);
        name.aperture = both.captured(3).toFloat();
    }
    return name;
}

}  // namespace varnel
