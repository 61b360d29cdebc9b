// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which piece of the sensor a picture shows and where its image circle is: by its gear, by the
// circle that was found on it, or by a guess. Circles are as circle_finder.h says. Throws
// std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "remap/analysis/circle_finder.h"
#include "remap/image/camera_info.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

// Where a record's numbers come from.
enum class GearSource { Given, Exif, Circle, Measured, Guess };
// "given", "exif", "circle", "measured", "guess"
QString ToText(GearSource source);

// What of a record's numbers is not certain.
struct Doubts {
    bool scale = false;   // pixels per millimetre
    bool centre = false;  // of the image circle
    bool curve = false;   // the lens

    // "scale", "centre", "curve": those that are not.
    QStringList Names() const;
    bool operator==(const Doubts&) const = default;
};

struct FrameReading {
    GearSource source = GearSource::Exif;
    Doubts doubts;
    bool cropped = false;  // the picture does not show the whole sensor
};

// Where the record's numbers put the circle on its picture of that size. The radius is 0 without a
// ratio.
ImageCircle CircleOf(const ImageRecord& image, PixelSize picture);

// The gear that has all of the record's numbers, its angles of view from these.
GearRecord WholeGearOf(const ImageRecord& image);

// Puts the circle there, which is measured on the record's picture: OfsetX, OfsetY, Ratio, and,
// where the record knows its lens's circle in millimetres, the sensor's sides as the piece of it
// that the picture shows, which is not larger than the sensor.
void TakeCircle(const ImageCircle& circle, ImageRecord& image);

// Lets the circle that was found on the picture act on a record that has its gear's numbers and no
// adjustments. A picture of another shape than its sensor is a piece of it, and perhaps reduced:
// its scale and centre come from the circle, or without one from the largest piece of that shape.
// On a whole picture the circle counts if it is off the gear's by more than one percent of the
// radius and three times its error.
FrameReading ReadFrame(const std::optional<FoundCircle>& found, ImageRecord& image);

// Where the record's sampled lens states its scale for pictures of that shape, the sensor's sides
// are made to agree with it. True when they were.
bool TakeLensScale(ImageRecord& image);

// A gear without a lens: the camera that the file names, with its sensor's longer side where the
// catalogue knows it, else 36 mm; the shorter side follows the record's picture.
GearRecord CameraGear(const CameraInfo& origin, const ImageRecord& image);

// The name of the gear that stands in for an unknown lens: "Typical fisheye (guess)".
QString GuessedGearName();

// Gives the record such a gear: equisolid, 180 degrees across the circle, or, without a circle,
// across the picture's diagonal. The camera's names are those of the file.
FrameReading GuessFrame(const CameraInfo& origin, const std::optional<FoundCircle>& found,
                        ImageRecord& image);

}  // namespace varnel
