// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/gears/first_gear.h"

#include "gear/from_photo/photo_gear.h"
#include "pipeline/photos/add_images.h"
#include "state/settings/setting_names.h"

namespace varnel {

void ProposeFirstGear(const QStringList& given, const FirstGearPorts& ports, GearTable& table) {
    constexpr qsizetype most = 100;  // files, which are looked into for a few milliseconds each
    if (!ports.store.Get(setting::Gear, setting::DefaultGearName, {}).isEmpty()) {
        return;
    }
    const auto busy = ports.activity.Occupy();
    PhotoLoader::Together together(ports.photos);
    const auto goesOn = [&together] { return together.Continue(); };
    for (const QString& file : PhotosOf(given, goesOn).files.mid(0, most)) {
        const CameraInfo origin = ports.photos.Facts(file).metadata.origin;
        if (const auto gear = CertainGear(GearOfPhoto(origin, {}), {})) {
            table(0) = *gear;
            return;
        }
    }
}

}  // namespace varnel
