// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/photo_gear.h"

#include <QCoreApplication>
#include <algorithm>
#include <vector>

#include "gear/from_photo/photo_lens.h"

namespace varnel {

namespace {

// The maker's name is left out where the model has it, too.
QString CameraText(const CameraInfo& origin) {
    const QString make = origin.Make.simplified();
    const QString model = origin.Model.simplified();
    const bool repeated = model.startsWith(make.section(u' ', 0, 0), Qt::CaseInsensitive);
    return repeated ? model : QString(make + u' ' + model).simplified();
}

QString LensText(const CameraInfo& origin, const PhotoLenses& lenses) {
    QString name = origin.LensModel.simplified();
    if (lenses.isNamed && !name.isEmpty()) {
        return name;
    }
    if (lenses.lens.IsKnown()) {
        return lenses.lens.brand + u' ' + lenses.lens.model;
    }
    return origin.FocalLength > 0.0F
               ? QStringLiteral("%1 mm").arg(static_cast<double>(origin.FocalLength))
               : QString();
}

CatalogueEntry CameraOf(const GearRecord& gear) {
    return {gear.CameraBrand, gear.CameraModel};
}

CatalogueEntry LensOf(const GearRecord& gear) {
    return {gear.LensBrand, gear.LensModel};
}

// Gears of the camera with a lens that may have taken the photo.
std::vector<int> FittingGears(const CatalogueEntry& camera, const PhotoLenses& lenses,
                              const GearTable& table) {
    std::vector<int> gears;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        const CatalogueEntry lens = LensOf(table(n));
        const bool fits = lenses.lens.IsKnown()
                              ? lens == lenses.lens
                              : std::ranges::find(lenses.fitting, lens) != lenses.fitting.end();
        if (fits && CameraOf(table(n)) == camera) {
            gears.push_back(n);
        }
    }
    return gears;
}

void FindGear(const CatalogueEntry& camera, const PhotoLenses& lenses, const GearTable& table,
              PhotoGear& found) {
    const std::vector<int> gears = FittingGears(camera, lenses, table);
    if (gears.size() == 1 || (!gears.empty() && lenses.lens.IsKnown())) {
        const int byDefault = table.Find(table.DefaultGearName);
        const bool hasDefault = std::ranges::find(gears, byDefault) != gears.end();
        found.gear = hasDefault ? byDefault : gears.front();
    } else if (!gears.empty()) {
        found.lack = GearLack::OneGear;
    } else if (lenses.lens.IsKnown()) {
        found.lack = GearLack::DefinedGear;
    } else {
        found.lack =
            lenses.isNamed && lenses.fitting.empty() ? GearLack::KnownLens : GearLack::DefiniteLens;
    }
}

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PhotoGear)
};

QString ReasonFor(GearLack lack, const QString& camera, const QString& lens) {
    switch (lack) {
        case GearLack::None:
            break;
        case GearLack::Origin:
            return Texts::tr("the file does not tell what took it");
        case GearLack::KnownCamera:
            return Texts::tr("the camera %1 is not in the catalogue").arg(camera);
        case GearLack::KnownLens:
            return Texts::tr("the lens %1 is not in the catalogue").arg(lens);
        case GearLack::DefiniteLens:
            return Texts::tr("the file does not tell well enough which lens took it");
        case GearLack::OneGear:
            return Texts::tr("the file does not tell which gear of its camera took it");
        case GearLack::DefinedGear:
            return Texts::tr("no gear has this camera and this lens");
    }
    return {};
}

}  // namespace

PhotoGear GearOfPhoto(const CameraInfo& origin, const GearTable& table) {
    PhotoGear found;
    const CatalogueEntry camera = CameraFromExif(origin.Make, origin.Model);
    const PhotoLenses lenses = LensesFromExif(origin, camera);
    const QString lens = LensText(origin, lenses);
    if (!origin.IsKnown()) {
        found.lack = GearLack::Origin;
    } else {
        found.takenWith =
            CameraText(origin) + (lens.isEmpty() ? lens : QStringLiteral(", ") + lens);
        found.names = {camera.brand, camera.model, lenses.lens.brand, lenses.lens.model};
    }
    if (found.lack == GearLack::None && !camera.IsKnown()) {
        found.lack = GearLack::KnownCamera;
    } else if (camera.IsKnown()) {
        FindGear(camera, lenses, table, found);
    }
    found.said = ReasonFor(found.lack, CameraText(origin), lens);
    return found;
}

std::optional<GearRecord> CertainGear(const PhotoGear& found, const GearTable& table) {
    if (found.gear > 0) {
        return table(found.gear);
    }
    return found.IsWhole() ? std::optional(BuiltGear(found.names)) : std::nullopt;
}

bool SpeaksFor(const CameraInfo& origin, const GearRecord& gear) {
    const CatalogueEntry camera = CameraFromExif(origin.Make, origin.Model);
    const PhotoLenses lenses = LensesFromExif(origin, camera);
    const CatalogueEntry lens = LensOf(gear);
    if (!origin.IsKnown() || !camera.IsKnown()) {
        return lens.IsKnown() && lens == lenses.lens;
    }
    if (gear.Lens) {  // the user's own, whose name no file has
        return camera == CameraOf(gear) && !lenses.lens.IsKnown();
    }
    return camera == CameraOf(gear) &&
           (lenses.lens.IsKnown()
                ? lens == lenses.lens
                : std::ranges::find(lenses.fitting, lens) != lenses.fitting.end());
}

}  // namespace varnel
