// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/json_line.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace varnel {

namespace {

QByteArray Written(const QJsonValue& value) {
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

}  // namespace

QByteArray JsonLine(std::initializer_list<std::pair<const char16_t*, QJsonValue>> fields) {
    QByteArrayList parts;
    for (const auto& [name, value] : fields) {
        parts.append(Written(QString::fromUtf16(name)) + ':' + Written(value));
    }
    return '{' + parts.join(',') + '}';
}

}  // namespace varnel
