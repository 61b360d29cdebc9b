// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear of a first start, where photos were given that tell it. Throws std::bad_alloc only.
#pragma once

#include <QStringList>

#include "app/workspace/activity.h"
#include "pipeline/photos/photo_loader.h"
#include "state/records/gear_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

struct FirstGearPorts {
    const SettingsStore& store;
    PhotoLoader& photos;
    Activity& activity;  // occupied while files are looked into
};

// While the settings hold no gear, the first one that the given files or folders name with
// certainty becomes the scratch gear, so that nothing has to be asked.
void ProposeFirstGear(const QStringList& given, const FirstGearPorts& ports, GearTable& table);

}  // namespace varnel
