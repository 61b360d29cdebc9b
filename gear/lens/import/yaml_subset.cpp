// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/yaml_subset.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <cmath>
#include <vector>

namespace varnel {

namespace {

constexpr int deepest = 20;

struct Line {
    qint64 number = 0;  // from 1
    qsizetype indent = 0;
    QString text;  // without indentation, comment and white space at the end
};

// Without a comment, which begins at the line's start or after white space and not within quotes.
QString WithoutComment(const QString& text) {
    QChar quote;
    for (qsizetype n = 0; n < text.size(); ++n) {
        const QChar character = text[n];
        if (quote.isNull() && character == u'#' && (n == 0 || text[n - 1].isSpace())) {
            return text.left(n);
        }
        if (quote.isNull() ? character == u'"' || character == u'\'' : character == quote) {
            quote = quote.isNull() ? character : QChar();
        }
    }
    return text;
}

std::vector<Line> LinesOf(const QByteArray& bytes) {
    std::vector<Line> lines;
    qint64 number = 0;
    for (const QString& whole : QString::fromUtf8(bytes).split(u'\n')) {
        ++number;
        const QString text = WithoutComment(whole);
        const QString trimmed = text.trimmed();
        const bool mark = trimmed == u"---" || trimmed == u"..." || text.startsWith(u'%');
        if (!trimmed.isEmpty() && !mark) {
            lines.push_back({number, text.indexOf(trimmed[0]), trimmed});
        }
    }
    return lines;
}

// Where a key ends: at a colon before white space, the end or, as in OpenCV's files, a bracket.
qsizetype ColonIn(const QString& text) {
    const bool quoted = text.startsWith(u'"') || text.startsWith(u'\'');
    qsizetype at = quoted ? text.indexOf(text[0], 1) + 1 : 0;
    for (at = text.indexOf(u':', at); at >= 0; at = text.indexOf(u':', at + 1)) {
        if (at + 1 == text.size() || text[at + 1].isSpace() || text[at + 1] == u'[') {
            return at;
        }
    }
    return -1;
}

QString Unquoted(const QString& text) {
    const bool quoted =
        text.size() >= 2 && (text[0] == u'"' || text[0] == u'\'') && text.back() == text[0];
    return quoted ? text.mid(1, text.size() - 2) : text;
}

QJsonValue Scalar(const QString& text) {
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number)) {
        return number;
    }
    return text.isEmpty() ? QJsonValue() : QJsonValue(Unquoted(text));
}

class Reader {
  public:
    explicit Reader(std::vector<Line> lines) : lines_(std::move(lines)) {}

    JsonReading Read() {
        const QJsonValue value = lines_.empty() ? QJsonValue() : Block(lines_[0].indent, 0);
        if (at_ < lines_.size()) {
            Fail();
        }
        if (failedLine_ > 0) {
            return {{}, {ReasonCode::AtLine, failedLine_, failed_}};
        }
        return {value.toObject(), {}};
    }

  private:
    bool Failed() const { return failedLine_ > 0; }

    void Fail() {
        if (!Failed()) {
            const Line& line = lines_[std::min(at_, lines_.size() - 1)];
            failedLine_ = line.number;
            failed_ = Reason(ReasonCode::KeyUnusable, TidyLensName(line.text.left(40)));
        }
    }

    bool IsItem() const { return lines_[at_].text == u"-" || lines_[at_].text.startsWith(u"- "); }

    // All lines from here on that have this indentation, with those below them.
    QJsonValue Block(qsizetype indent, int depth) {
        if (depth > deepest) {
            Fail();
            return {};
        }
        QJsonObject object;
        QJsonArray array;
        const bool list = IsItem();
        while (!Failed() && at_ < lines_.size() && lines_[at_].indent == indent &&
               IsItem() == list) {
            list ? array.append(Item(depth)) : Entry(object, depth);
        }
        return list ? QJsonValue(array) : QJsonValue(object);
    }

    QJsonValue Item(int depth) {
        Line& line = lines_[at_];
        const QString rest = line.text.mid(1).trimmed();
        if (rest.isEmpty() || rest.startsWith(u'[') || ColonIn(rest) < 0) {
            return Value(rest, line.indent, depth);
        }
        // A mapping that begins in the item's own line.
        line.indent += line.text.indexOf(rest[0], 1);
        line.text = rest;
        return Block(line.indent, depth + 1);
    }

    void Entry(QJsonObject& object, int depth) {
        const Line& line = lines_[at_];
        const qsizetype colon = ColonIn(line.text);
        if (colon < 0) {
            Fail();
            return;
        }
        const QString key = Unquoted(line.text.left(colon).trimmed());
        object[key] = Value(line.text.mid(colon + 1).trimmed(), line.indent, depth);
    }

    // What follows a key or a dash: in its line, or in the lines below.
    QJsonValue Value(QString text, qsizetype indent, int depth) {
        while (text.startsWith(u'!')) {
            const qsizetype space = text.indexOf(u' ');
            text = space < 0 ? QString() : text.mid(space).trimmed();
        }
        if (text.startsWith(u'[') || text.startsWith(u'{')) {
            return Brackets(std::move(text), depth);
        }
        ++at_;
        if (!text.isEmpty()) {
            return Scalar(text);
        }
        const bool below = at_ < lines_.size() && (lines_[at_].indent > indent ||
                                                   (lines_[at_].indent == indent && IsItem()));
        return below ? Block(lines_[at_].indent, depth + 1) : QJsonValue();
    }

    // A list or mapping in brackets, over as many lines as it takes.
    QJsonValue Brackets(QString text, int depth) {
        flow_ = std::move(text);
        place_ = 0;
        QJsonValue value = Flow(depth + 1);
        if (!Failed() && !flow_.mid(place_).trimmed().isEmpty()) {
            Fail();
        }
        ++at_;
        return value;
    }

    // The next character that is no white space, from the next line where this one ends.
    QChar Next() {
        for (;;) {
            while (place_ < flow_.size() && flow_[place_].isSpace()) {
                ++place_;
            }
            if (place_ < flow_.size()) {
                return flow_[place_];
            }
            if (at_ + 1 >= lines_.size()) {
                Fail();
                return {};
            }
            flow_ = lines_[++at_].text;
            place_ = 0;
        }
    }

    QString FlowText() {
        const qsizetype start = place_;
        const QChar first = flow_[place_];
        if (first == u'"' || first == u'\'') {
            const qsizetype end = flow_.indexOf(first, start + 1);
            place_ = end < 0 ? flow_.size() : end + 1;
        }
        while (place_ < flow_.size() && !QStringLiteral(",]}").contains(flow_[place_]) &&
               !(flow_[place_] == u':' && ColonIn(flow_.mid(place_)) == 0)) {
            ++place_;
        }
        return flow_.mid(start, place_ - start).trimmed();
    }

    QJsonValue Flow(int depth) {
        const QChar open = Next();
        if (open != u'[' && open != u'{') {
            return Scalar(FlowText());
        }
        if (depth > deepest) {
            Fail();
            return {};
        }
        ++place_;
        QJsonArray array;
        QJsonObject object;
        const QChar close = open == u'[' ? u']' : u'}';
        while (!Failed() && Next() != close) {
            QString key;
            if (open == u'{') {
                key = Unquoted(FlowText());
                Expect(u':');
            }
            const QJsonValue value = Failed() ? QJsonValue() : Flow(depth + 1);
            open == u'[' ? array.append(value) : static_cast<void>(object[key] = value);
            if (!Failed() && Next() != close) {
                Expect(u',');
            }
        }
        ++place_;
        return open == u'[' ? QJsonValue(array) : QJsonValue(object);
    }

    void Expect(QChar character) {
        if (Failed() || Next() != character) {
            Fail();
            return;
        }
        ++place_;
    }

    std::vector<Line> lines_;
    std::size_t at_ = 0;  // the line that is read
    QString flow_;        // the text of that line within brackets
    qsizetype place_ = 0;
    qint64 failedLine_ = 0;  // 0: none has failed
    Reason failed_;
};

}  // namespace

JsonReading ReadYaml(const QByteArray& bytes) {
    return Reader(LinesOf(bytes)).Read();
}

}  // namespace varnel
