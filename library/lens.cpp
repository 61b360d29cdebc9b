// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/lens.h"

#include <algorithm>
#include <memory>
#include <numbers>

#include "gear/lens/export/export_lens.h"
#include "library/guard.h"
#include "state/adjustments/frame_reading.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

ImageCircle Scaled(const varnel_lens::Circle& circle, const ImageRecord& image) {
    const double across = static_cast<double>(image.Width) / circle.size.width;
    const double down = static_cast<double>(image.Height) / circle.size.height;
    const double longer = image.Landscape ? across : down;
    return {circle.place.x * across, circle.place.y * down, circle.place.radius * longer};
}

GearRecord GearFor(const varnel_lens& lens, const ImageRecord& image) {
    const bool knowsCamera = !lens.names.cameraModel.isEmpty();
    GearRecord gear = knowsCamera ? GearRecord() : CameraGear({}, image);
    FillGearFromCatalogue(lens.names, gear);
    if (lens.curve) {
        const bool inRadii = lens.curve->unit == SampledLens::Unit::CircleRadii;
        if (inRadii && lens.circle && !knowsCamera) {
            // The sensor is made up: then so is the size of the circle on it.
            gear.ImageCircleRadius = static_cast<float>(Scaled(*lens.circle, image).radius *
                                                        static_cast<double>(gear.SensorWidth) /
                                                        std::max(image.Width, image.Height));
        }
        GiveLens(lens.curve, gear);
    }
    gear.GearName = QString::fromStdString(lens.name);
    return gear;
}

void SetCircle(varnel_lens& lens, const varnel_lens::Circle& circle) {
    const ImageRecord checked = RecordFor(circle.size.width, circle.size.height);
    const auto [x, y, radius] = circle.place;
    const double most = 4.0 * std::max(checked.Width, checked.Height);
    if (!(radius >= 1.0 && radius <= most && x >= -most && x <= most && y >= -most && y <= most)) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("the circle is not on a picture of that size"));
    }
    lens.circle = circle;
}

}  // namespace

ImageRecord RecordOf(const varnel_lens& lens, int32_t width, int32_t height,
                     const varnel_view* view) {
    ImageRecord image = RecordFor(width, height);
    AssignGear(GearFor(lens, image), image);
    if (image.Lens) {
        TakeLensScale(image);
    } else if (!lens.circle) {
        ReadFrame(std::nullopt, image);
    }
    if (lens.circle) {
        TakeCircle(Scaled(*lens.circle, image), image);
    }
    if (view != nullptr) {
        Apply(*view, image);
    }
    return image;
}

}  // namespace varnel

varnel_status varnel_lens_copy(const varnel_lens* lens, varnel_lens** out, varnel_error** error) {
    return varnel::Guarded(
        error, [&] { varnel::Place(out, "out") = new varnel_lens(*varnel::Given(lens, "lens")); });
}

void varnel_lens_free(varnel_lens* lens) {
    delete lens;
}

varnel_status varnel_lens_set_circle(varnel_lens* lens, double x, double y, double radius,
                                     int32_t width, int32_t height, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        // From the middle of the first pixel to its corner.
        varnel::SetCircle(*varnel::Given(lens, "lens"),
                          {{x + 0.5, y + 0.5, radius}, {width, height}});
    });
}

const char* varnel_lens_name(const varnel_lens* lens) {
    return lens == nullptr ? "" : lens->name.c_str();
}

varnel_status varnel_lens_field(const varnel_lens* lens, double* degrees, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        const varnel_lens& known = *varnel::Given(lens, "lens");
        constexpr int32_t width = 3600;
        constexpr int32_t height = 2400;
        *varnel::Given(degrees, "degrees") =
            known.curve
                ? known.curve->FieldLimit() * 180.0 / std::numbers::pi
                : static_cast<double>(
                      varnel::GearFor(known, varnel::RecordFor(width, height)).LensFieldAngle) /
                      2.0;
    });
}

varnel_status varnel_lens_write(const varnel_lens* lens, const char* path, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        const varnel_lens& known = *varnel::Given(lens, "lens");
        const QString file = varnel::TextOf(path, "path");
        if (!known.curve) {
            throw varnel::CallError(
                VARNEL_BAD_ARGUMENT,
                QStringLiteral("a lens of the catalogue has no curve to be written"));
        }
        if (!varnel::LensFormatOf(file)) {
            throw varnel::CallError(
                VARNEL_BAD_ARGUMENT,
                QStringLiteral("%1: lenses are written as .json, .yaml or .xml").arg(file));
        }
        varnel::GearRecord camera;
        varnel::FillGearFromCatalogue({known.names.cameraBrand, known.names.cameraModel, {}, {}},
                                      camera);
        const varnel::LensExport written =
            varnel::ExportLensTo(file, *known.curve, static_cast<double>(camera.SensorWidth),
                                 static_cast<double>(camera.SensorHeight));
        if (!written.reason.isEmpty()) {
            throw varnel::CallError(VARNEL_NOT_WRITTEN, written.reason);
        }
    });
}
