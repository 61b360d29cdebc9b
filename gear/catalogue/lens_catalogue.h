// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fisheye lenses that Varnel knows, each with the curve that maps the angle of a ray to its
// distance from the centre. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

namespace varnel {

struct LensRow {
    std::string_view brand;
    std::string_view model;
    float imageCircleRadius = 0.0F;  // millimetres
    float shift = 0.0F;
    float fieldAngle = 0.0F;  // degrees across the whole image circle
    float mapScale = 0.0F;    // millimetres
    float mapFactor = 0.0F;   // multiplies the angle of a Sin lens, divides that of a Tan lens
};

// In the order in which they are offered.
QStringList FillLensBrands();
// In catalogue order; none for an unknown brand.
QStringList FillLensModels(const QString& brand);

std::optional<LensRow> FindLens(const QString& brand, const QString& model);

}  // namespace varnel
