// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/file_report.h"

#include <QJsonArray>
#include <cmath>

#include "cli/report/json_line.h"

namespace varnel {

namespace {

QString NameOf(FileStatus status) {
    switch (status) {
        case FileStatus::Converted:
            return QStringLiteral("converted");
        case FileStatus::Damaged:
            return QStringLiteral("damaged");
        case FileStatus::Skipped:
            return QStringLiteral("skipped");
        case FileStatus::Failed:
            break;
    }
    return QStringLiteral("failed");
}

QJsonValue KnownText(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

}  // namespace

QByteArray ToJson(const FileReport& report) {
    const bool written = report.bytes >= 0;
    return JsonLine({
        {u"file", report.photo},
        {u"result", KnownText(report.result)},
        {u"status", NameOf(report.status)},
        {u"reason", KnownText(report.reason)},
        {u"projection", KnownText(report.projection)},
        {u"gear", KnownText(report.gear)},
        {u"gear_source", KnownText(report.gearSource)},
        {u"uncertain", QJsonArray::fromStringList(report.uncertain)},
        {u"width", written ? report.size.width : QJsonValue()},
        {u"height", written ? report.size.height : QJsonValue()},
        {u"depth", KnownText(report.depth)},
        {u"bytes", written ? report.bytes : QJsonValue()},
        {u"sha256", KnownText(QString::fromLatin1(report.sha256))},
        {u"seconds", std::round(report.seconds * 1000.0) / 1000.0},
        {u"frames", report.frames >= 0 ? report.frames : QJsonValue()},
        {u"notes", QJsonArray::fromStringList(report.notes)},
    });
}

}  // namespace varnel
