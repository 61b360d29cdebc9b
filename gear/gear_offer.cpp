// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/gear_offer.h"

#include <QCoreApplication>

namespace varnel {

namespace {

bool HasCameraOf(const GearNames& one, const GearNames& other) {
    return one.cameraBrand == other.cameraBrand && one.cameraModel == other.cameraModel;
}

}  // namespace

GearOffer OfferFor(const PhotoOrigin& origin, const GearTable& table, const GearNames& current) {
    GearOffer offer;
    const PhotoGear photo = GearOfPhoto(origin, table);
    if (photo.lack == GearLack::Origin) {
        return offer;
    }
    offer.line = QCoreApplication::translate("GearOffer", "Taken with %1").arg(photo.takenWith);
    offer.reason = photo.said;
    offer.names = photo.names;
    if (photo.gear > 0) {
        offer.gear = NamesOf(table(photo.gear)) == current ? 0 : photo.gear;
    } else if (photo.lack == GearLack::DefinedGear) {
        offer.define = !(photo.names == current);
    } else if (photo.lack == GearLack::ToldLens) {
        offer.define = !HasCameraOf(photo.names, current);
    }
    return offer;
}

}  // namespace varnel
