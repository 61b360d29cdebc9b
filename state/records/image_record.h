// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Everything that Varnel knows of one photo: where it is, which gear took it and how it is to be
// converted. A record owns copies of the gear's numbers; the projections read nothing else. Throws
// nothing.
#pragma once

#include <QMap>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/bool16.h"
#include "state/records/camera_pose.h"
#include "state/records/face_ellipse.h"
#include "state/records/film_course.h"
#include "state/records/outside_fill.h"
#include "state/records/projection.h"
#include "state/records/sampled_lens.h"
#include "state/records/sampling_kind.h"

namespace varnel {

// Angles in degrees, effects and translations in percent, lengths on the sensor in millimetres,
// circle-centre offsets in thousandths of the picture's width and height.
struct ImageRecord {
    std::int16_t Width = 0;   // pixels, as loaded
    std::int16_t Height = 0;  // pixels, as loaded
    Bool16 Landscape;         // Width >= Height
    QString GearName;
    QString CameraBrand;
    QString CameraModel;
    float SensorWidth = 0.0F;
    float SensorHeight = 0.0F;
    float CameraData1 = 0.0F;
    float CameraData2 = 0.0F;
    QString LensBrand;
    QString LensModel;
    float ImageCircleRadius = 0.0F;
    float LensShift = 0.0F;
    float LensData3 = 0.0F;
    float LensMapScale = 0.0F;
    float LensMapFactor = 0.0F;
    std::int16_t Projection = 0;  // see ProjectionFromIndex
    Bool16 SettingsApplied;       // while false, assigning a gear resets the adjustments
    float OfsetX = 0.0F;          // spelled as in the settings; positive = right
    float OfsetY = 0.0F;          // positive = toward the bottom of the picture
    float Ratio = 0.0F;           // sensor width in percent of the circle's diameter
    float InputAOV = 0.0F;
    float OutputAOV = 0.0F;
    float EffectVarnel = 0.0F;       // never below 0.1 when set from the controls
    float EffectRectilinear = 0.0F;  // likewise
    float RotateX = 0.0F;            // positive = down
    float RotateY = 0.0F;            // positive = right
    float RotateZ = 0.0F;            // positive = counter-clockwise
    float TranslateX = 0.0F;         // positive = right
    float TranslateY = 0.0F;         // positive = up
    QString Folder;                  // without a trailing separator; the root is the empty text
    QString FileName;                // with extension
    QString NameSuffix;              // tells the frames of a morph sequence apart
    std::int16_t Orientation = 1;    // EXIF orientation that was undone on loading

    // The result's size in pixels, after the crop; 0: as the photo, or by the shape from the other.
    std::int32_t OutputWidth = 0;
    std::int32_t OutputHeight = 0;
    // What is cut out of the frame, in parts of 1 of it; without width and height all of it.
    float CropLeft = 0.0F;
    float CropTop = 0.0F;
    float CropWidth = 0.0F;
    float CropHeight = 0.0F;
    OutsideFill Outside;

    float PaniniD = 1.0F;              // 0 (rectilinear) to 1 (cylindrical stereographic)
    float PaniniSqueeze = 0.0F;        // percent to which lines across are kept straight
    float UnrollStart = 0.0F;          // azimuth of the left border, degrees
    std::int16_t UnrollDirection = 1;  // 1 clockwise as seen, -1 the other way
    float UnrollFrom = 0.0F;           // angles from the axis, degrees
    float UnrollTo = 90.0F;
    Bool16 Marks;  // N, E, S, W and angles on an unrolled result
    CameraPose Pose = CameraPose::Level;
    Bool16 Tunnel;                   // a little planet that looks the other way
    std::vector<FaceEllipse> Faces;  // parts that keep their shape in the straight view
    SamplingKind Sampling = SamplingKind::Classic;

    // Of a film: which part of it is converted and what moves along it. None for a photo.
    std::optional<FilmCourse> Film;

    // Takes the place of the lens's two numbers where it is there.
    LensReference Lens;

    // Settings of later versions, as they were found in a picture: written back as they are.
    QMap<QString, QString> FurtherSettings;

    bool operator==(const ImageRecord&) const = default;
};

// Folder and file name joined by "/".
QString SourcePath(const ImageRecord& image);

}  // namespace varnel
