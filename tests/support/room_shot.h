// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The sample room through a lens that is not the typical one.
#pragma once

#include "samples/fisheye_shot.h"
#include "samples/room.h"

namespace varnel::testing {

// 1200 pixels wide; r = 14 mm sin(0.6 theta), the circle's radius 550 pixels.
inline BitmapHandle RoomShot() {
    FisheyeShot shot;
    shot.size = {1200, 1200};
    shot.pixelsPerMillimetre = 50.0;
    shot.centreX = shot.centreY = 600.0;
    shot.circleRadius = 11.0;
    shot.curve = {14.0F, 0.6F};
    shot.samples = 2;
    return TakeFisheye(LookAt, shot);
}

}  // namespace varnel::testing
