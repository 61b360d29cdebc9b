// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/convert_arguments.h"

#include "app/start/revision_age.h"
#include "cli/choose_gear.h"
#include "cli/convert_photos.h"
#include "gear/store/gear_store.h"
#include "state/settings/autosaving_store.h"

namespace varnel {

int ConvertArguments(const QStringList& files, SettingsStore& store, QDate today,
                     const Console& console) {
    ConsoleNotices notices(console);
    TellOf(store, notices);
    if (const auto reminder = CheckRevisionAge(store, today)) {
        console.err << LocalText(*reminder) << std::endl;
    }
    TellOf(store, notices);
    const GeneralSettings settings = LoadSettings(store);
    const auto gear = DefaultGear(StoredGears(store));
    if (!gear) {
        return Refuse(console, NoGearText());
    }
    Options options;
    options.files = files;
    options.force = true;  // files named on the command line are meant
    options.advises = false;
    return ConvertPhotos(options, {*gear, {}}, settings, console);
}

}  // namespace varnel
