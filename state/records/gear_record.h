// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One camera + lens combination, and the table of them. Throws nothing but std::out_of_range by
// GearTable for a number beyond the table.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "base/bool16.h"
#include "state/records/sampled_lens.h"

namespace varnel {

// What a gear has instead of its catalogues' numbers; 0 where it has theirs. The sides are those of
// the piece of sensor that its photos show.
struct OwnNumbers {
    float SensorWidth = 0.0F;
    float SensorHeight = 0.0F;
    float LensMapScale = 0.0F;
    float LensMapFactor = 0.0F;

    bool HasSensor() const { return SensorWidth > 0.0F && SensorHeight > 0.0F; }
    bool HasLens() const { return LensMapScale > 0.0F && LensMapFactor > 0.0F; }
    bool operator==(const OwnNumbers&) const = default;
};

// Lengths in millimetres, angles in degrees, offsets in thousandths of the picture's width and
// height, the ratio in percent.
struct GearRecord {
    std::int32_t Reserved = 0;
    QString GearName;
    QString CameraBrand;
    QString CameraModel;
    float SensorWidth = 0.0F;
    float SensorHeight = 0.0F;
    float CameraData1 = 0.0F;
    float CameraData2 = 0.0F;
    QString LensBrand;
    QString LensModel;
    std::int16_t LensDataVersion = 0;
    float ImageCircleRadius = 0.0F;
    float LensShift = 0.0F;
    float LensData3 = 0.0F;
    float LensFieldAngle = 0.0F;
    float hAOV = 0.0F;
    float vAOV = 0.0F;
    float LensMapScale = 0.0F;
    float LensMapFactor = 0.0F;
    Bool16 UserAdjusted;
    float OfsetX = 0.0F;
    float OfsetY = 0.0F;
    float GearRatio = 0.0F;
    LensReference Lens;      // takes the place of the lens's two numbers where it is there
    bool SetByHand = false;  // angle, ratio or offsets are the user's, not the catalogue's
    OwnNumbers Own;

    bool operator==(const GearRecord&) const = default;
};

// One gear before and after it was changed.
struct GearChange {
    GearRecord from, to;
};

// The gears are elements 1 to UpperBound(); element 0 is the editor's scratch slot and always
// exists.
class GearTable {
  public:
    GearTable() : gears_(1) {}
    int UpperBound() const { return static_cast<int>(gears_.size()) - 1; }
    // 0 <= n <= UpperBound().
    GearRecord& operator()(int n) { return gears_.at(static_cast<std::size_t>(n)); }
    const GearRecord& operator()(int n) const { return gears_.at(static_cast<std::size_t>(n)); }
    // Keeps the existing gears; new ones are empty.
    void Resize(int upperBound) { gears_.resize(static_cast<std::size_t>(upperBound) + 1); }
    void Remove(int n) { gears_.erase(gears_.begin() + n); }
    // The number of the first gear of that name, 0 when there is none.
    int Find(const QString& gearName) const {
        for (int n = 1; n <= UpperBound(); ++n) {
            if ((*this)(n).GearName == gearName) {
                return n;
            }
        }
        return 0;
    }
    // The number of the gear that new photos get: the first one when none has the default's name, 0
    // when there is no gear at all.
    int Default() const {
        const int byName = Find(DefaultGearName);
        return byName > 0 || UpperBound() == 0 ? byName : 1;
    }

    QString DefaultGearName;

  private:
    std::vector<GearRecord> gears_;
};

}  // namespace varnel
