// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The catalogue's name of the camera that took a photo. Throws nothing.
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

// The entry for maker and model as spelled in EXIF; empty when the catalogue has none. A model that
// starts with its maker's name needs no maker.
CatalogueEntry CameraFromExif(const QString& make, const QString& model);

// A form that is equal for all spellings of one camera.
QString CameraNormalForm(const QString& brand, const QString& model);

}  // namespace varnel
