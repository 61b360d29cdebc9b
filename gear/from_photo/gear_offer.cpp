// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/gear_offer.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "gear/catalogue/camera_catalogue.h"

namespace varnel {

namespace {

bool HasCameraOf(const GearNames& one, const GearNames& other) {
    return one.cameraBrand == other.cameraBrand && one.cameraModel == other.cameraModel;
}

// Whether the record's gear differs from the photo's in the camera's name alone: of the camera only
// the size of its sensor matters.
bool ServesAsWell(const GearNames& photo, const ImageRecord& image) {
    constexpr float tolerance = 0.01F;
    const auto near = [](float a, float b) { return std::fabs(a - b) <= tolerance * b; };
    const auto camera = FindCamera(photo.cameraBrand, photo.cameraModel);
    return camera && near(image.SensorWidth, camera->sensorWidth) &&
           near(image.SensorHeight, camera->sensorHeight) &&
           (photo.lensModel.isEmpty() ||
            (photo.lensBrand == image.LensBrand && photo.lensModel == image.LensModel));
}

QString Text(const char* text) {
    return QCoreApplication::translate("GearOffer", text);
}

// Pictures of an unlisted camera may well have another shape without any cropping.
void AddDoubts(const ImageRecord& image, bool isUnlisted, GearOffer& offer) {
    const QString doubt = ShapeError(image);
    if (isUnlisted) {
        offer.line += Text(QT_TRANSLATE_NOOP("GearOffer", " (camera not in the list)"));
    } else if (!doubt.isEmpty()) {
        offer.line += Text(QT_TRANSLATE_NOOP("GearOffer", " (cropped?)"));
    }
    const bool hasBoth = !offer.reason.isEmpty() && !doubt.isEmpty();
    offer.reason += (hasBoth ? QStringLiteral("\n") : QString()) + doubt;
}

GearOffer OfferOfPhoto(const CameraInfo& origin, const GearTable& table, const ImageRecord& image,
                       const GearNames& current) {
    GearOffer offer;
    const PhotoGear photo = GearOfPhoto(origin, table);
    if (photo.lack == GearLack::Origin) {
        return offer;
    }
    offer.line = Text(QT_TRANSLATE_NOOP("GearOffer", "Taken with %1")).arg(photo.takenWith);
    offer.reason = photo.said;
    offer.names = photo.names;
    if (image.Lens) {  // chosen or measured: no camera names such a lens
        return offer;
    }
    if (photo.gear > 0) {
        offer.gear = NamesOf(table(photo.gear)) == current ? 0 : photo.gear;
    } else if (photo.lack == GearLack::DefinedGear) {
        offer.define = !(photo.names == current);
    } else if (photo.lack == GearLack::DefiniteLens) {
        offer.define = !HasCameraOf(photo.names, current);
    }
    const bool otherCamera =
        !photo.names.cameraModel.isEmpty() && !HasCameraOf(photo.names, current);
    const bool isOther = offer.gear > 0 || offer.define || otherCamera;
    if (isOther && !ServesAsWell(photo.names, image)) {
        if (!current.cameraModel.isEmpty()) {
            offer.error = Text(QT_TRANSLATE_NOOP("GearOffer", "Not this photo's gear"));
        }
    } else {
        AddDoubts(image, photo.lack == GearLack::KnownCamera, offer);
    }
    return offer;
}

}  // namespace

GearOffer OfferFor(const CameraInfo& origin, const GearTable& table, const ImageRecord& image) {
    const GearNames current{image.CameraBrand, image.CameraModel, image.LensBrand, image.LensModel};
    GearOffer offer = OfferOfPhoto(origin, table, image, current);
    if (!image.GearName.isEmpty() && table.Find(image.GearName) == 0) {
        offer.lost = offer.define = true;
        offer.gear = 0;
        offer.names = current;
    }
    if (image.LensBrand == ownLensBrand && !image.Lens) {
        offer.error = Text(QT_TRANSLATE_NOOP("GearOffer", "The lens \"%1\" is not there"))
                          .arg(image.LensModel);
    }
    return offer;
}

QString ShapeError(const ImageRecord& image) {
    constexpr double tolerance = 0.03;
    const auto longToShort = [](double a, double b) { return std::max(a, b) / std::min(a, b); };
    const double sides[] = {static_cast<double>(image.Width), static_cast<double>(image.Height),
                            static_cast<double>(image.SensorWidth),
                            static_cast<double>(image.SensorHeight)};
    if (!std::ranges::all_of(sides, [](double side) { return side > 0.0; })) {
        return {};
    }
    const double picture = longToShort(sides[0], sides[1]);
    const double sensor = longToShort(sides[2], sides[3]);
    if (std::fabs(picture / sensor - 1.0) <= tolerance) {
        return {};
    }
    return QCoreApplication::translate(
               "GearOffer",
               "its shape, %1 : 1, is not the sensor's, %2 : 1; if it was cropped, the gear's "
               "numbers do not fit")
        .arg(picture, 0, 'f', 2)
        .arg(sensor, 0, 'f', 2);
}

}  // namespace varnel
