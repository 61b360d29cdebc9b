// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Fills a gear from its camera's and its lens's names.
#pragma once

#include <QString>

#include "gear/gear_record.h"

namespace varnel {

struct GearNames {
    QString cameraBrand;
    QString cameraModel;
    QString lensBrand;
    QString lensModel;

    bool operator==(const GearNames&) const = default;
};

GearNames NamesOf(const GearRecord& gear);

// Where the gear editor's sliders stand. A gear that the user adjusted takes these values in place
// of the catalogue's.
struct EditorSliders {
    int ratio = 0;   // percent
    int xOfset = 0;  // thousandths of the picture's width
    int yOfset = 0;  // thousandths of the picture's height
};

// Writes the names, the catalogue's numbers and the angles of view and the ratio that follow from
// them. A camera or lens that is not in its catalogue leaves its numbers as they are; an angle
// whose numbers are still zero stays, too.
void FillGearFromCatalogue(const GearNames& names, GearRecord& gear,
                           const EditorSliders& sliders = {});

// "Canon EOS 5D + Samyang 8 mm f/3.5"
QString BuiltGearName(const GearNames& names);

// The name with " 2" added whenever a gear of the table, visited once in order, has the name as it
// then stands. A clash of the longer name with an earlier gear is not looked for.
QString UniqueGearName(const GearTable& table, QString name);

}  // namespace varnel
