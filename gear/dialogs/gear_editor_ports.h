// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the gear editor works with besides the table of gears. What is not there is not offered.
// Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "pipeline/photos/photo_loader.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

struct GearEditorPorts {
    SettingsStore* store = nullptr;  // the user's own lenses lie beside it, if it is a file
    QStringList lensfun = {};        // folders of lensfun's data
    // Paths that the user chooses; empty when cancelled.
    std::function<QString()> chooseLensFile = nullptr;
    std::function<QString(const QString& proposal)> chooseExportFile = nullptr;
    std::function<QString()> choosePhoto = nullptr;
    // When a lens has another name now; the table and the store have it.
    std::function<void(const QString& name, const LensReference& renamed)> renamed = nullptr;
    PhotoLoader* photos = nullptr;
    // The current photo at preview size and its record; both or none.
    const Bitmap* photo = nullptr;
    const ImageRecord* image = nullptr;
};

}  // namespace varnel
