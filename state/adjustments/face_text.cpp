// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/face_text.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace varnel {

namespace {

constexpr double farthest = 4.0;  // frames
constexpr double mostTurned = 3600.0;

QString TextOfFace(const FaceEllipse& face) {
    QStringList numbers;
    for (const double number : {face.x, face.y, face.width, face.height, face.angle}) {
        numbers.append(QString::number(number, 'g', QLocale::FloatingPointShortest));
    }
    return numbers.join(u',');
}

bool IsSize(double size) {
    return size > 0.0 && size <= farthest;
}

std::optional<FaceEllipse> FaceFromText(const QString& text) {
    const QStringList parts = text.split(u',');
    if (parts.size() < 4 || parts.size() > 5) {
        return std::nullopt;
    }
    std::array<double, 5> number{};
    for (qsizetype n = 0; n < parts.size(); ++n) {
        bool ok = false;
        number[static_cast<std::size_t>(n)] = parts[n].trimmed().toDouble(&ok);
        if (!ok) {
            return std::nullopt;
        }
    }
    const auto [x, y, width, height, angle] = number;
    if (!(std::fabs(x) <= farthest && std::fabs(y) <= farthest && std::fabs(angle) <= mostTurned) ||
        !IsSize(width) || !IsSize(height)) {
        return std::nullopt;
    }
    return FaceEllipse{x, y, width, height, angle};
}

}  // namespace

QString TextOfFaces(const std::vector<FaceEllipse>& faces) {
    QStringList texts;
    std::ranges::transform(faces, std::back_inserter(texts), TextOfFace);
    return texts.join(u';');
}

std::optional<std::vector<FaceEllipse>> FacesFromText(const QString& text) {
    std::vector<FaceEllipse> faces;
    if (text.isEmpty()) {
        return faces;
    }
    for (const QString& part : text.split(u';')) {
        const std::optional<FaceEllipse> face = FaceFromText(part);
        if (!face || faces.size() == mostFaces) {
            return std::nullopt;
        }
        faces.push_back(*face);
    }
    return faces;
}

}  // namespace varnel
