// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_text.h"

#include <QStringDecoder>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>

namespace varnel {

namespace {

constexpr QStringView firstLine =
    u"; Varnel's settings, down to the line that says: end of settings";
constexpr QStringView lastLine = u"; end of settings";
constexpr QStringView unnamed = u"General";  // QSettings' title of the section without a name

bool IsPlain(QChar character) {
    return character.unicode() < 128 &&
           (character.isLetterOrNumber() || QStringView(u"_-.").contains(character));
}

bool IsControl(QChar character) {
    return character.unicode() < 32 && character != u'\t';
}

// Other spaces belong to the text: QSettings writes them without quotes.
bool IsSpace(QChar character) {
    return QStringView(u" \t\r").contains(character);
}

QStringView Trimmed(QStringView text) {
    while (!text.isEmpty() && IsSpace(text.front())) {
        text = text.sliced(1);
    }
    while (!text.isEmpty() && IsSpace(text.back())) {
        text.chop(1);
    }
    return text;
}

bool IsHexDigit(QChar character) {
    return QStringView(u"0123456789abcdefABCDEF").contains(character);
}

// Names of sections and keys: what is not plain stands as %20 or %U20AC.
QString EscapedName(const QString& name) {
    QString text;
    for (const QChar character : name) {
        if (IsPlain(character)) {
            text += character;
        } else {
            const bool isLong = character.unicode() > 255;
            text += QStringLiteral("%%1%2")
                        .arg(isLong ? QStringLiteral("U") : QString())
                        .arg(character.unicode(), isLong ? 4 : 2, 16, QChar(u'0'));
        }
    }
    return text;
}

QString PlainName(QStringView text) {
    QString name;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'%') {
            const bool isLong = text.sliced(at + 1).startsWith(u'U');
            const QStringView digits = text.mid(at + (isLong ? 2 : 1), isLong ? 4 : 2);
            bool isNumber = false;
            const ushort code = digits.toUShort(&isNumber, 16);
            if (isNumber && digits.size() == (isLong ? 4 : 2)) {
                name += QChar(code);
                at += digits.size() + (isLong ? 1 : 0);
                continue;
            }
        }
        name += text[at] == u'\\' ? QChar(u'/') : text[at];
    }
    return name;
}

// Half of a character of 32 bits, which UTF-8 cannot hold.
bool IsHalfCharacter(const QString& text, qsizetype at) {
    const QChar character = text[at];
    return (character.isHighSurrogate() &&
            !(at + 1 < text.size() && text[at + 1].isLowSurrogate())) ||
           (character.isLowSurrogate() && !(at > 0 && text[at - 1].isHighSurrogate()));
}

QString EscapedText(const QString& value) {
    QString text = value.startsWith(u'@') ? QStringLiteral("@") : QString();
    const bool quoted = value.startsWith(u' ') || value.endsWith(u' ') ||
                        std::any_of(value.begin(), value.end(), [](QChar character) {
                            return QStringView(u";,=\"\t").contains(character);
                        });
    bool afterCode = false;  // a hexadecimal digit would count as a part of the code before it
    for (qsizetype at = 0; at < value.size(); ++at) {
        const QChar character = value[at];
        const bool needsCode = IsControl(character) || IsHalfCharacter(value, at) ||
                               (afterCode && IsHexDigit(character));
        if (needsCode) {
            text += QStringLiteral("\\x%1").arg(character.unicode(), 0, 16);
        } else if (character == u'"' || character == u'\\') {
            text += u'\\';
            text += character;
        } else {
            text += character;
        }
        afterCode = needsCode;
    }
    return quoted ? u'"' + text + u'"' : text;
}

// The character of an escape sequence; at is behind the backslash and moves behind the sequence.
QChar Escaped(QStringView text, qsizetype& at) {
    static constexpr QStringView letters = u"abfnrtv";
    static constexpr char codes[] = "\a\b\f\n\r\t\v";
    const QChar letter = text[at++];
    const bool isHex = letter == u'x';
    if (isHex || (letter >= u'0' && letter <= u'7')) {
        qsizetype end = at;
        while (end < text.size() && IsHexDigit(text[end]) && (isHex || text[end] < u'8')) {
            ++end;
        }
        const qsizetype start = isHex ? at : at - 1;
        at = end;
        return QChar(text.sliced(start, end - start).toUShort(nullptr, isHex ? 16 : 8));
    }
    const qsizetype which = letters.indexOf(letter);
    return which < 0 ? letter : QChar(QLatin1Char(codes[which]));
}

void DropTrailingSpaces(QString& text, qsizetype from) {
    while (text.size() > from && (text.back() == u' ' || text.back() == u'\t')) {
        text.chop(1);
    }
}

// Empty when a quote is left open. Spaces around unquoted text and comments are dropped; an
// unquoted comma, which makes a list for QSettings, is a part of the text.
std::optional<QString> PlainText(QStringView text) {
    QString value;
    qsizetype kept = 0;  // quoted or escaped text keeps its spaces
    bool quoted = false;
    bool begun = false;  // spaces before the text are dropped
    for (qsizetype at = 0; at < text.size();) {
        const QChar character = text[at++];
        if (character == u';' && !quoted) {
            break;
        }
        begun = begun || !IsSpace(character);
        if (character == u'"') {
            quoted = !quoted;
            kept = value.size();
        } else if (character == u'\\' && at < text.size()) {
            value += Escaped(text, at);
            kept = value.size();
        } else if (character == u',' && !quoted) {
            DropTrailingSpaces(value, kept);
            value += character;
            kept = value.size();
            begun = false;
        } else if (begun) {
            value += character;
        }
    }
    if (quoted) {
        return std::nullopt;
    }
    DropTrailingSpaces(value, kept);
    return value.startsWith(u"@@") ? value.sliced(1) : value;
}

// A title without its closing bracket still names its section.
bool ReadSection(QStringView line, QString& section) {
    const qsizetype end = line.indexOf(u']');
    const QStringView name = Trimmed(line.sliced(1, (end < 0 ? line.size() : end) - 1));
    if (name.compare(unnamed, Qt::CaseInsensitive) == 0) {
        section.clear();
    } else {
        section = name == u"%General" ? unnamed.toString() : PlainName(name);
    }
    return end >= 0;
}

// False for a line that is no setting, no section, no comment and not empty.
bool ReadLine(QStringView line, QString& section, SettingsValues& values) {
    line = Trimmed(line);
    if (line.isEmpty() || line.startsWith(u';')) {
        return true;
    }
    if (std::any_of(line.begin(), line.end(), &IsControl)) {
        return false;
    }
    if (line.startsWith(u'[')) {
        return ReadSection(line, section);
    }
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 1) {
        return false;
    }
    const std::optional<QString> value = PlainText(line.sliced(equals + 1));
    if (value) {
        values.Set(section, PlainName(Trimmed(line.first(equals))), *value);
    }
    return value.has_value();
}

bool IsCut(const QStringList& lines) {
    const auto holds = [&](QStringView wanted) {
        return std::any_of(lines.begin(), lines.end(),
                           [&](const QString& line) { return Trimmed(line) == wanted; });
    };
    // Files of older releases have no such line; they end with the end of a line.
    return holds(firstLine) ? !holds(lastLine) : !Trimmed(lines.constLast()).isEmpty();
}

}  // namespace

const QString* SettingsValues::Find(const QString& section, const QString& key) const {
    const auto found = values_.find({section, key});
    return found == values_.end() ? nullptr : &found->second.text;
}

void SettingsValues::Set(const QString& section, const QString& key, const QString& text) {
    const auto [entry, isNew] = values_.try_emplace({section, key});
    entry->second.text = text;
    if (isNew) {
        entry->second.position = nextPosition_++;
    }
}

void SettingsValues::Merge(const SettingsValues& newer) {
    for (const auto& [name, text] : newer.InOrder()) {
        Set(name.first, name.second, text);
    }
}

std::vector<std::pair<SettingsValues::Name, QString>> SettingsValues::InOrder() const {
    std::map<QString, std::size_t> sections;  // the lowest position in each
    for (const auto& [name, held] : values_) {
        const auto section = sections.try_emplace(name.first, held.position).first;
        section->second = std::min(section->second, held.position);
    }
    std::vector<std::tuple<std::size_t, std::size_t, const Name*>> order;
    for (const auto& [name, held] : values_) {
        order.emplace_back(sections[name.first], held.position, &name);
    }
    std::sort(order.begin(), order.end());
    std::vector<std::pair<Name, QString>> rows;
    for (const auto& [first, position, name] : order) {
        rows.emplace_back(*name, values_.at(*name).text);
    }
    return rows;
}

SettingsReading ReadSettingsText(const QByteArray& bytes) {
    QStringDecoder decoder(
        QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    const QString text = decoder.decode(bytes);
    const bool isText = !decoder.hasError();
    const bool isUtf8 = decoder.name() == QStringConverter::nameForEncoding(QStringConverter::Utf8);
    const QStringList lines = text.split(u'\n');
    SettingsReading reading;
    QString section;
    qsizetype badLine = 0;
    for (qsizetype n = 0; n < lines.size(); ++n) {
        const bool isBroken = !isText && lines[n].contains(QChar::ReplacementCharacter);
        if ((isBroken || !ReadLine(lines[n], section, reading.values)) && badLine == 0) {
            badLine = n + 1;
        }
    }
    if (!isText || !isUtf8) {
        reading.damage = ReasonCode::NotUtf8;
        // NOLINTNEXTLINE(bugprone-branch-clone): the order of the questions matters
    } else if (badLine > 1 && badLine == lines.size()) {
        reading.damage = ReasonCode::TextCutShort;  // within a line
    } else if (badLine != 0) {
        reading.damage = {ReasonCode::LineIsNoSetting, badLine};
    } else if (reading.values.Empty()) {
        reading.damage = ReasonCode::SettingsEmpty;
    } else if (IsCut(lines)) {
        reading.damage = ReasonCode::TextCutShort;
    }
    return reading;
}

QByteArray SettingsText(const SettingsValues& values) {
    QString text = firstLine.toString() + u'\n';
    const QString* section = nullptr;
    const auto rows = values.InOrder();
    for (const auto& [name, value] : rows) {
        if (section == nullptr || *section != name.first) {
            section = &name.first;
            const QString title = section->isEmpty()    ? unnamed.toString()
                                  : *section == unnamed ? u'%' + *section
                                                        : EscapedName(*section);
            text += QStringLiteral("\n[%1]\n").arg(title);
        }
        text += EscapedName(name.second) + u'=' + EscapedText(value) + u'\n';
    }
    return (text + u'\n' + lastLine.toString() + u'\n').toUtf8();
}

}  // namespace varnel
