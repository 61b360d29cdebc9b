// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a photo's file says about the camera and the lens that took it, as the camera spelled it.
// Throws nothing.
#pragma once

#include <QString>

namespace varnel {

struct CameraInfo {
    QString Make;
    QString Model;
    QString LensMake;
    QString LensModel;
    float FocalLength = 0.0F;  // millimetres; 0 when not known
    float FNumber = 0.0F;      // 0 when not known

    bool operator==(const CameraInfo&) const = default;
    bool IsKnown() const { return !Make.isEmpty() || !Model.isEmpty() || !LensModel.isEmpty(); }
};

}  // namespace varnel
