// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The cameras that Varnel knows, with their sensors in landscape orientation. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

namespace varnel {

struct CameraRow {
    std::string_view brand;
    std::string_view model;
    float sensorWidth = 0.0F;   // millimetres, the longer side
    float sensorHeight = 0.0F;  // millimetres
};

// In the order in which they are offered.
QStringList FillCameraBrands();
// In catalogue order; none for an unknown brand.
QStringList FillCameraModels(const QString& brand);

std::optional<CameraRow> FindCamera(const QString& brand, const QString& model);

}  // namespace varnel
