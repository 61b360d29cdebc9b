// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The catalogue's name of the camera that took a photo.
#pragma once

#include <QString>

namespace varnel {

// A row of the camera or the lens catalogue; empty for none.
struct CatalogueEntry {
    QString brand;
    QString model;

    bool operator==(const CatalogueEntry&) const = default;
    bool IsKnown() const { return !model.isEmpty(); }
};

// For the names of maker and model as EXIF spells them. A model that begins with its maker's name
// needs no maker.
CatalogueEntry CameraFromExif(const QString& make, const QString& model);

// What the spellings of one camera have in common.
QString CameraNormalForm(const QString& brand, const QString& model);

}  // namespace varnel
