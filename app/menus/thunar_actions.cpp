// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/thunar_actions.h"

#include <QStringList>
#include <QUrl>
#include <QXmlStreamReader>
#include <algorithm>
#include <cstring>
#include <vector>

namespace varnel {

namespace {

constexpr QByteArrayView ownId("varnel-");  // the beginning of a unique-id
constexpr QByteArrayView emptyList(
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<actions>\n</actions>\n");

struct Range {
    qsizetype from = 0;
    qsizetype to = 0;  // behind its last byte
};

// Where things stand in the bytes of a list that is well-formed.
struct ListPlaces {
    std::vector<Range> actions;
    Range close;  // "</actions>", or "<actions/>" as a whole
};

bool IsTag(QByteArrayView text, QByteArrayView tag) {
    return text.startsWith(tag) && text.size() > tag.size() &&
           std::strchr(" \t\r\n/>", text[tag.size()]) != nullptr;
}

qsizetype After(const QByteArray& text, const char* end, qsizetype from) {
    const qsizetype at = text.indexOf(end, from);
    return at < 0 ? text.size() : at + static_cast<qsizetype>(std::strlen(end));
}

ListPlaces PlacesIn(const QByteArray& list) {
    ListPlaces places;
    Range action;
    for (qsizetype at = list.indexOf('<'); at >= 0 && at < list.size();
         at = list.indexOf('<', at)) {
        const QByteArrayView rest = QByteArrayView(list).sliced(at);
        const qsizetype tagEnd = After(list, ">", at);
        const bool whole = list[tagEnd - 2] == '/';
        if (rest.startsWith("<!--")) {
            at = After(list, "-->", at);
            continue;
        }
        if (rest.startsWith("<![CDATA[")) {
            at = After(list, "]]>", at);
            continue;
        }
        if (IsTag(rest, "<action")) {
            action.from = at;
        }
        if (IsTag(rest, "</action") || (IsTag(rest, "<action") && whole)) {
            action.to = tagEnd;
            places.actions.push_back(action);
        } else if (IsTag(rest, "</actions") || (IsTag(rest, "<actions") && whole)) {
            places.close = {at, tagEnd};
        }
        at = rest.startsWith("<?") ? After(list, "?>", at) : at + 1;
    }
    return places;
}

// All that a reader sees of the list but Varnel's own actions, and what is wrong with it.
struct ListRead {
    QStringList others;
    QString error;
};

QString TokenText(const QXmlStreamReader& reader) {
    QStringList text{reader.tokenString(), reader.name().toString(), reader.text().toString()};
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        text += {attribute.qualifiedName().toString(), attribute.value().toString()};
    }
    return text.join(u' ');
}

ListRead ReadList(const QByteArray& list) {
    ListRead read;
    QXmlStreamReader reader(list);
    QStringList action;
    bool own = false;
    bool inId = false;
    int depth = 0;
    while (!reader.atEnd() && !reader.hasError()) {
        reader.readNext();
        depth += reader.isStartElement() ? 1 : 0;
        if (reader.isStartElement() && depth == 1 && reader.name() != u"actions") {
            reader.raiseError(QStringLiteral("it begins with <%1>").arg(reader.name()));
        }
        inId = reader.isStartElement() ? reader.name() == u"unique-id"
                                       : inId && !reader.isEndElement();
        own = own || (inId && reader.text().trimmed().startsWith(QLatin1StringView(ownId)));
        if (depth >= 2) {
            action.append(TokenText(reader));
        } else if (!reader.isWhitespace() && !reader.isComment()) {
            read.others.append(TokenText(reader));
        }
        depth -= reader.isEndElement() ? 1 : 0;
        if (reader.isEndElement() && depth == 1) {
            read.others += own ? QStringList() : action;
            action.clear();
            own = false;
        }
    }
    if (reader.hasError()) {
        read.error =
            QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
    }
    return read;
}

bool IsOwn(const QByteArray& list, const Range& action) {
    const QByteArray text = list.mid(action.from, action.to - action.from);
    const qsizetype id = text.indexOf("<unique-id>");
    return id >= 0 && text.sliced(After(text, ">", id)).trimmed().startsWith(ownId);
}

// Of its line, if there is nothing but spaces before it.
qsizetype LineStart(const QByteArray& list, qsizetype at) {
    qsizetype from = at;
    while (from > 0 && (list[from - 1] == ' ' || list[from - 1] == '\t')) {
        --from;
    }
    return from > 0 && list[from - 1] == '\n' ? from : at;
}

// Together with the rest of its line, if nothing else stands there.
Range WholeLines(const QByteArray& list, Range range) {
    const qsizetype from = LineStart(list, range.from);
    const bool alone =
        from > 0 && list[from - 1] == '\n' && range.to < list.size() && list[range.to] == '\n';
    return alone ? Range{from, range.to + 1} : range;
}

QByteArray WithoutOwn(QByteArray list) {
    std::vector<Range> actions = PlacesIn(list).actions;
    std::ranges::reverse(actions);
    for (const Range& action : actions) {
        if (IsOwn(list, action)) {
            const Range lines = WholeLines(list, action);
            list.remove(lines.from, lines.to - lines.from);
        }
    }
    return list;
}

QString Element(const QString& name, const QString& text, const QString& language = {}) {
    const QString attribute =
        language.isEmpty() ? QString() : QStringLiteral(" xml:lang=\"%1\"").arg(language);
    return QStringLiteral("\t<") + name + attribute + u'>' + text.toHtmlEscaped() +
           QStringLiteral("</") + name + QStringLiteral(">\n");
}

QString Elements(const QString& name, const MenuText& text) {
    QString elements = Element(name, text.text);
    for (const auto& [code, translated] : text.translated) {
        elements += Element(name, translated, code);
    }
    return elements;
}

// In the order in which Thunar writes them.
QString ActionText(const PhotoMenu& menu, const MenuEntry& entry, const QString& language) {
    const auto title = menu.title.translated.find(language);
    const QByteArray id = ownId.toByteArray() + QUrl::toPercentEncoding(entry.preset);
    return QStringLiteral("<action>\n\t<icon>varnel</icon>\n") +
           Elements(QStringLiteral("name"), entry.name) +
           Element(QStringLiteral("submenu"),
                   title == menu.title.translated.end() ? menu.title.text : title->second) +
           Element(QStringLiteral("unique-id"), QString::fromLatin1(id)) +
           Element(QStringLiteral("command"), ShellCommand(menu.program, entry.preset)) +
           Elements(QStringLiteral("description"), menu.comment) +
           QStringLiteral(
               "\t<range></range>\n\t<patterns>*</patterns>\n\t<image-files/>\n</action>\n");
}

QByteArray WithEntries(QByteArray list, const QByteArray& entries) {
    if (entries.isEmpty()) {
        return list;
    }
    const Range close = PlacesIn(list).close;
    if (list[close.from + 1] != '/') {
        return list.replace(close.from, close.to - close.from,
                            "<actions>\n" + entries + "</actions>");
    }
    return list.insert(LineStart(list, close.from), entries);
}

}  // namespace

std::variant<QByteArray, QString> ThunarActions(const QByteArray& list, const PhotoMenu& menu,
                                                const QString& language) {
    const QByteArray before = list.isEmpty() ? emptyList.toByteArray() : list;
    const ListRead read = ReadList(before);
    if (!read.error.isEmpty()) {
        return QStringLiteral("this is no list of Thunar's actions (%1)").arg(read.error);
    }
    QByteArray entries;
    for (const MenuEntry& entry : menu.entries) {
        entries += ActionText(menu, entry, language).toUtf8();
    }
    const QByteArray after = WithEntries(WithoutOwn(before), entries);
    // Another encoding or an oddity that was overlooked: rather no entry than a lost action.
    const ListRead readAfter = ReadList(after);
    if (!readAfter.error.isEmpty() || readAfter.others != read.others) {
        return QStringLiteral("the list is written in an unusual way and cannot be changed safely");
    }
    return after;
}

}  // namespace varnel
