// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Fills a gear from its camera's and its lens's names.
#pragma once

#include <QString>

#include "state/records/gear_record.h"

namespace varnel {

struct GearNames {
    QString cameraBrand;
    QString cameraModel;
    QString lensBrand;
    QString lensModel;

    bool operator==(const GearNames&) const = default;
};

GearNames NamesOf(const GearRecord& gear);
GearRecord GearNamed(const GearNames& names);  // without a number

// What the gear editor's sliders stand for: a moved one for its whole number, one that was not
// moved for the gear's own number. A gear that the user adjusted takes these values in place of the
// catalogue's.
struct EditorSliders {
    float ratio = 0.0F;   // percent
    float xOfset = 0.0F;  // thousandths of the picture's width
    float yOfset = 0.0F;  // thousandths of the picture's height
};

// Writes the names, the catalogue's numbers and the angles of view and the ratio that follow from
// them. A camera or lens that is not in its catalogue leaves its numbers as they are; an angle
// whose numbers are still zero stays, too.
void FillGearFromCatalogue(const GearNames& names, GearRecord& gear,
                           const EditorSliders& sliders = {});

// Whether the gear's circle (ratio and offsets) or its horizontal angle is another than the
// catalogue's, by more than a number changes that is stored as text.
bool HasOwnCircle(const GearRecord& gear);
bool HasOwnAngle(const GearRecord& gear);

// "Canon EOS 5D + Samyang 8 mm f/3.5"
QString BuiltGearName(const GearNames& names);

// The name with " 2" added whenever a gear of the table, visited once in order, has the name as it
// then stands. A clash of the longer name with an earlier gear is not looked for.
QString UniqueGearName(const GearTable& table, QString name);

}  // namespace varnel
