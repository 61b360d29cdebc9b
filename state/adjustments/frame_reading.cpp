// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/frame_reading.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/from_photo/gear_offer.h"
#include "gear/from_photo/photo_camera.h"
#include "remap/projection/record_maps.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

double LongerSide(const ImageRecord& image) {
    return std::max(image.Width, image.Height);
}

PixelSize SizeOf(const ImageRecord& image) {
    return {image.Width, image.Height};
}

struct Share {
    double across = 0.5;
    double down = 0.5;
};

// Where on a picture of that size offsets of 0 mean: its middle, or the axis that its lens states.
Share AxisOf(const ImageRecord& image, PixelSize picture) {
    if (!image.Lens || !HasCentreFor(*image.Lens, picture)) {
        return {};
    }
    const LensCentre& centre = *image.Lens->centre;
    return {centre.x / centre.size.width, 1.0 - centre.y / centre.size.height};
}

// The angles of view of the piece of sensor that the record has now.
void RenewAngles(ImageRecord& image) {
    const GearRecord gear = WholeGearOf(image);
    image.InputAOV = image.Landscape ? gear.hAOV : gear.vAOV;
    image.OutputAOV = UsualOutputAov(image);
}

void TakePiece(double millimetresPerPixel, ImageRecord& image) {
    const auto [shorter, longer] = std::minmax(image.Width, image.Height);
    image.SensorWidth = static_cast<float>(longer * millimetresPerPixel);
    image.SensorHeight = static_cast<float>(shorter * millimetresPerPixel);
    RenewAngles(image);
}

// Millimetres per pixel of the largest piece of the sensor that has the picture's shape. Of a gear
// that keeps a piece of its own the camera's sensor is larger than the record says.
double LargestPiece(const ImageRecord& image) {
    const auto [shorter, longer] = std::minmax(image.Width, image.Height);
    const auto camera = FindCamera(image.CameraBrand, image.CameraModel);
    const float width = std::max(image.SensorWidth, camera ? camera->sensorWidth : 0.0F);
    const float height = std::max(image.SensorHeight, camera ? camera->sensorHeight : 0.0F);
    return std::min(static_cast<double>(width) / longer, static_cast<double>(height) / shorter);
}

void TakeLargestPiece(ImageRecord& image) {
    TakePiece(LargestPiece(image), image);
    if (image.ImageCircleRadius > 0.0F) {
        image.Ratio = 50.0F * image.SensorWidth / image.ImageCircleRadius;
    }
}

bool IsOff(const FoundCircle& found, const ImageCircle& expected) {
    const double off = std::max(std::fabs(found.radius - expected.radius),
                                std::hypot(found.x - expected.x, found.y - expected.y));
    return off > 0.01 * expected.radius && off > 3.0 * found.error;
}

GearRecord GuessedGear(const CameraInfo& origin, double radius, const ImageRecord& image) {
    GearRecord gear = CameraGear(origin, image);
    gear.GearName = GuessedGearName();
    const double millimetres = radius * static_cast<double>(gear.SensorWidth) / LongerSide(image);
    gear.ImageCircleRadius = static_cast<float>(millimetres);
    gear.LensFieldAngle = 180.0F;
    // r = 2 f sin(theta / 2), with the circle at 90 degrees.
    gear.LensMapScale = static_cast<float>(millimetres * std::numbers::sqrt2);
    gear.LensMapFactor = 0.5F;
    FillAngles(gear);
    return gear;
}

}  // namespace

GearRecord WholeGearOf(const ImageRecord& image) {
    GearRecord gear = GearOf(image);
    gear.SensorWidth = image.SensorWidth;
    gear.SensorHeight = image.SensorHeight;
    gear.ImageCircleRadius = image.ImageCircleRadius;
    gear.LensMapScale = image.LensMapScale;
    gear.LensMapFactor = image.LensMapFactor;
    FillAngles(gear);
    gear.GearRatio = image.Ratio;
    return gear;
}

QString ToText(GearSource source) {
    constexpr const char16_t* texts[] = {u"given", u"exif", u"circle", u"measured", u"guess"};
    return QString::fromUtf16(texts[static_cast<std::size_t>(source)]);
}

QStringList Doubts::Names() const {
    QStringList names;
    for (const auto& [doubted, name] :
         {std::pair{scale, u"scale"}, {centre, u"centre"}, {curve, u"curve"}}) {
        if (doubted) {
            names.append(QString::fromUtf16(name));
        }
    }
    return names;
}

ImageCircle CircleOf(const ImageRecord& image, PixelSize picture) {
    const double ratio = static_cast<double>(image.Ratio);
    const Share axis = AxisOf(image, picture);
    return {picture.width * (axis.across + static_cast<double>(image.OfsetX) / 1000.0),
            picture.height * (axis.down + static_cast<double>(image.OfsetY) / 1000.0),
            ratio > 0.0 ? 50.0 * std::max(picture.width, picture.height) / ratio : 0.0};
}

void TakeCircle(const ImageCircle& circle, ImageRecord& image) {
    const Share axis = AxisOf(image, SizeOf(image));
    image.OfsetX = static_cast<float>(1000.0 * (circle.x / image.Width - axis.across));
    image.OfsetY = static_cast<float>(1000.0 * (circle.y / image.Height - axis.down));
    image.Ratio = static_cast<float>(50.0 * LongerSide(image) / circle.radius);
    if (image.ImageCircleRadius > 0.0F) {
        // Nominal circles are some percent too large or small, and no piece is larger than the
        // sensor: what is nearly as large as it can be is that large.
        constexpr double nearly = 0.95;
        const double largest = LargestPiece(image);
        const double byCircle = static_cast<double>(image.ImageCircleRadius) / circle.radius;
        TakePiece(largest > 0.0 && byCircle > nearly * largest ? largest : byCircle, image);
    }
}

FrameReading ReadFrame(const std::optional<FoundCircle>& found, ImageRecord& image) {
    FrameReading reading;
    reading.cropped = !ShapeError(image).isEmpty();
    if (found &&
        (reading.cropped || (!found->rough && IsOff(*found, CircleOf(image, SizeOf(image)))))) {
        TakeCircle(*found, image);
        reading.source = GearSource::Circle;
        reading.doubts.scale = reading.doubts.centre =
            found->rough || found->error > 0.01 * found->radius;
    } else if (reading.cropped) {
        TakeLargestPiece(image);
        reading.doubts.scale = reading.doubts.centre = true;
    }
    return reading;
}

bool TakeLensScale(ImageRecord& image) {
    const PixelSize size = SizeOf(image);
    if (!image.Lens || !image.Lens->pixelsPerUnit || !HasCentreFor(*image.Lens, size)) {
        return false;
    }
    const bool inMillimetres = image.Lens->unit == SampledLens::Unit::Millimetres;
    const double unit = inMillimetres ? 1.0 : static_cast<double>(image.ImageCircleRadius);
    const double reduced = static_cast<double>(image.Lens->centre->size.width) / size.width;
    TakePiece(unit / *image.Lens->pixelsPerUnit * reduced, image);
    if (image.ImageCircleRadius > 0.0F) {
        image.Ratio = 50.0F * image.SensorWidth / image.ImageCircleRadius;
    }
    return true;
}

GearRecord CameraGear(const CameraInfo& origin, const ImageRecord& image) {
    constexpr float usualLongerSide = 36.0F;  // millimetres
    GearRecord gear;
    const CatalogueEntry camera = CameraFromExif(origin.Make, origin.Model);
    if (camera.IsKnown()) {
        FillGearFromCatalogue({camera.brand, camera.model, {}, {}}, gear);
    } else {
        gear.CameraBrand = origin.Make;
        gear.CameraModel = origin.Model;
    }
    gear.SensorWidth = gear.SensorWidth > 0.0F ? gear.SensorWidth : usualLongerSide;
    const auto [shorter, longer] = std::minmax(image.Width, image.Height);
    gear.SensorHeight = gear.SensorWidth * shorter / longer;
    return gear;
}

QString GuessedGearName() {
    return QStringLiteral("Typical fisheye (guess)");
}

FrameReading GuessFrame(const CameraInfo& origin, const std::optional<FoundCircle>& found,
                        ImageRecord& image) {
    const ImageCircle around{image.Width / 2.0, image.Height / 2.0,
                             std::hypot(image.Width, image.Height) / 2.0};
    const ImageCircle& circle = found ? *found : around;
    AssignGear(GuessedGear(origin, circle.radius, image), image);
    TakeCircle(circle, image);
    const bool uncertain = !found || found->rough;
    return {GearSource::Guess, {.scale = uncertain, .centre = uncertain, .curve = true}};
}

}  // namespace varnel
