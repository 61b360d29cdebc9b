// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Fills a gear from its camera's and its lens's names. Throws nothing.
#pragma once

#include <QLatin1StringView>
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

// The values of the gear editor's sliders: a slider that was moved gives its whole number, any
// other the gear's own number. A gear that the user adjusted gets these values instead of the
// catalogue's.
struct EditorSliders {
    float ratio = 0.0F;   // percent
    float xOfset = 0.0F;  // thousandths of the picture's width
    float yOfset = 0.0F;  // thousandths of the picture's height
};

// Writes the names, the catalogue's numbers and the angles of view and the ratio that follow from
// them. A camera or lens that is not in its catalogue leaves its numbers as they are; an angle
// whose numbers are still zero is left, too. Numbers that the gear has of its own take the place of
// the catalogue's. A sampled lens stays where it has the lens's name and no catalogue has it.
void FillGearFromCatalogue(const GearNames& names, GearRecord& gear,
                           const EditorSliders& sliders = {});

// The angles of view and the ratio that follow from the gear's other numbers; what their zeros
// leave open stays.
void FillAngles(GearRecord& gear);

// The brand under which lenses of one's own are listed.
inline constexpr QLatin1StringView ownLensBrand("My lenses");
// Whether the gear names such a lens, but its file was not there.
bool LacksLens(const GearRecord& gear);

// What stands in for a lens that nobody lists: equisolid, 180 degrees across a circle that is as
// high as the sensor, or that goes through its corners. Kept in settings.
inline constexpr QLatin1StringView typicalLensBrand("Typical fisheye");
inline constexpr QLatin1StringView typicalLensModels[] = {
    QLatin1StringView("Whole circle in the photo"),
    QLatin1StringView("Photo filled to its corners")};

// Puts a sampled lens, which must be there, in the place of the gear's lens: its image circle ends
// at 90 degrees or at the limit of its field; a lens in units of the circle says how large that is
// on the gear's sensor, or else has the gear's circle, or one as high as the sensor. Throws
// RunTimeError for a curve that LensSpline does not take.
void GiveLens(const LensReference& lens, GearRecord& gear);

// Whether the gear's circle (ratio and offsets) or its horizontal angle differs from the
// catalogue's by more than storing a number as text changes it.
bool HasOwnCircle(const GearRecord& gear);
bool HasOwnAngle(const GearRecord& gear);

// "Canon EOS 5D + Samyang 8 mm f/3.5"
QString BuiltGearName(const GearNames& names);
// The catalogue's gear of these names, named so.
GearRecord BuiltGear(const GearNames& names);

// The name with " 2" added whenever a gear of the table, visited once in order, has the name as it
// then stands. Whether an earlier gear has the longer name is not checked.
QString UniqueGearName(const GearTable& table, QString name);

}  // namespace varnel
