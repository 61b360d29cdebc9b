// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/name_pattern.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLatin1StringView>
#include <algorithm>
#include <array>

#include "remap/projection/projection_info.h"
#include "state/adjustments/sampling_text.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(NamePattern)
};

struct Naming {
    const ImageRecord& image;
    const NameRules& rules;
    const NameFacts& facts;
};

QString Addition(const Naming& naming) {
    return naming.rules.additions.For(ProjectionFromIndex(naming.image.Projection));
}

QString SpecialName(const Naming& naming) {
    return ProposedName(naming.image.FileName, Addition(naming), naming.rules.ending);
}

// A name that is nothing but an ending is a name.
QString OwnName(const Naming& naming) {
    const QString& file = naming.image.FileName;
    const QString name = QFileInfo(file).completeBaseName();
    return naming.rules.ending == PhotoEnding::Kept || name.isEmpty() ? file : name;
}

QString Ending(const Naming& naming) {
    return QFileInfo(naming.image.FileName).suffix();
}

QString Tags(const Naming& naming) {
    return SettingsTags(naming.image);
}

QString Sampling(const Naming& naming) {
    return ToText(naming.image.Sampling);
}

QString Suffix(const Naming& naming) {
    const QString& suffix = naming.image.NameSuffix;
    return suffix.isEmpty() ? suffix : u'_' + suffix;
}

QString Number(const Naming& naming) {
    const qsizetype digits = QString::number(naming.facts.results).size();
    return QString::number(naming.facts.number).rightJustified(digits, u'0');
}

QString Day(const Naming& naming) {
    return naming.facts.day.toString(Qt::ISODate);
}

struct Token {
    QLatin1StringView text;
    QString (*value)(const Naming&);
};

// The longest first.
constexpr std::array tokens{
    Token{QLatin1StringView("{name}.{projection}"), &SpecialName},
    Token{QLatin1StringView("{name}"), &OwnName},
    Token{QLatin1StringView("{ending}"), &Ending},
    Token{QLatin1StringView("{projection}"), &Addition},
    Token{QLatin1StringView("{tags}"), &Tags},
    Token{QLatin1StringView("{suffix}"), &Suffix},
    Token{QLatin1StringView("{sampling}"), &Sampling},
    Token{QLatin1StringView("{n}"), &Number},
    Token{QLatin1StringView("{date}"), &Day},
};

const Token* TokenAt(QStringView pattern) {
    const auto* const found = std::ranges::find_if(
        tokens, [pattern](const Token& token) { return pattern.startsWith(token.text); });
    return found == tokens.end() ? nullptr : found;
}

// The first brace that opens no token, with what it seems to enclose.
QString UnknownToken(QStringView pattern) {
    for (qsizetype place = pattern.indexOf(u'{'); place >= 0;
         place = pattern.indexOf(u'{', place + 1)) {
        const QStringView rest = pattern.mid(place);
        if (TokenAt(rest) == nullptr) {
            const qsizetype end = rest.indexOf(u'}');
            return rest.left(end < 0 ? rest.size() : end + 1).toString();
        }
    }
    return {};
}

QString Filled(QStringView pattern, const Naming& naming) {
    QString name;
    while (!pattern.isEmpty()) {
        const Token* const token = TokenAt(pattern);
        name += token == nullptr ? QString(pattern.front()) : token->value(naming);
        pattern = pattern.mid(token == nullptr ? 1 : token->text.size());
    }
    return name;
}

}  // namespace

QString PatternError(const QString& pattern) {
    if (pattern.trimmed().isEmpty()) {
        return Texts::tr("a name needs at least one token or letter");
    }
    if (pattern.contains(u'/') || pattern.contains(u'\\')) {
        return Texts::tr("a name cannot hold / or \\");
    }
    const QString unknown = UnknownToken(pattern);
    return unknown.isEmpty() ? QString()
                             : Texts::tr("there is no token %1; there are %2")
                                   .arg(unknown, PatternTokens().join(u' '));
}

QStringList PatternTokens() {
    QStringList names;
    for (const Token& token : tokens) {
        if (token.value != &SpecialName) {
            names.append(token.text);
        }
    }
    return names;
}

bool NamesDay(const QString& pattern) {
    return pattern.contains(u"{date}");
}

QString NameByPattern(const ImageRecord& image, const NameRules& rules, const NameFacts& facts) {
    const Naming naming{image, rules, facts};
    const QString name =
        PatternError(rules.pattern).isEmpty() ? Filled(rules.pattern, naming) : QString();
    return name.isEmpty() ? Filled(QString(usualPattern), naming) : name;
}

QString PathByPattern(const ImageRecord& image, const QString& folder, const NameRules& rules,
                      OutputType type, const NameFacts& facts) {
    const QString place = folder.endsWith(u'/') ? folder : folder + u'/';
    return place + NameByPattern(image, rules, facts) + ExtensionOf(type);
}

}  // namespace varnel
