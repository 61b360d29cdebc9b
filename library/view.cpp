// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/view.h"

#include <QLatin1StringView>
#include <QSet>
#include <algorithm>

#include "library/guard.h"
#include "library/names.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/gear_assignment.h"
#include "state/adjustments/record_fields.h"

namespace varnel {

namespace {

constexpr QLatin1StringView projectionField("Projection");

void Set(varnel_view& view, const QString& name, const QString& value) {
    if (!ViewSettings().contains(name)) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        NotAmong(ViewSettings(), QStringLiteral("a view has no setting"), name));
    }
    ImageRecord trial;
    if (SetField(trial, name, value) != FieldResult::Ok) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        NotAmong(name == projectionField ? ViewProjections() : QStringList(),
                                 QStringLiteral("%1 does not take").arg(name), value));
    }
    std::erase_if(view.settings, [&](const auto& setting) { return setting.first == name; });
    view.settings.emplace_back(name, value);
}

}  // namespace

QStringList ViewSettings() {
    const QSet<QString> ofPhotoAndLens{
        QStringLiteral("Width"),         QStringLiteral("Height"),
        QStringLiteral("Landscape"),     QStringLiteral("GearName"),
        QStringLiteral("CameraBrand"),   QStringLiteral("CameraModel"),
        QStringLiteral("SensorWidth"),   QStringLiteral("SensorHeight"),
        QStringLiteral("CameraData1"),   QStringLiteral("CameraData2"),
        QStringLiteral("LensBrand"),     QStringLiteral("LensModel"),
        QStringLiteral("LensShift"),     QStringLiteral("ImageCircleRadius"),
        QStringLiteral("LensData3"),     QStringLiteral("LensMapScale"),
        QStringLiteral("LensMapFactor"), QStringLiteral("SettingsApplied"),
        QStringLiteral("Folder"),        QStringLiteral("FileName"),
        QStringLiteral("NameSuffix"),    QStringLiteral("Orientation")};
    QStringList names = FieldNames();
    names.removeIf([&](const QString& name) { return ofPhotoAndLens.contains(name); });
    return names;
}

Projection ProjectionOf(const varnel_view& view) {
    ImageRecord image;
    for (const auto& [name, value] : view.settings) {
        if (name == projectionField) {
            SetField(image, name, value);
        }
    }
    return ProjectionFromIndex(image.Projection);
}

void Apply(const varnel_view& view, ImageRecord& image) {
    TakeProjection(ProjectionOf(view), image);
    for (const auto& [name, value] : view.settings) {
        SetField(image, name, value);
    }
}

ImageRecord RecordFor(int32_t width, int32_t height) {
    if (width < 1 || height < 1 || width > largestResultSide || height > largestResultSide) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("pictures have sides of 1 to %1 pixels, not %2 x %3")
                            .arg(largestResultSide)
                            .arg(width)
                            .arg(height));
    }
    ImageRecord image;
    TakeSize({{width, height}}, image);
    return image;
}

}  // namespace varnel

varnel_status varnel_view_new(varnel_view** view, varnel_error** error) {
    return varnel::Guarded(error, [&] { varnel::Place(view, "view") = new varnel_view; });
}

varnel_status varnel_view_copy(const varnel_view* view, varnel_view** out, varnel_error** error) {
    return varnel::Guarded(
        error, [&] { varnel::Place(out, "out") = new varnel_view(*varnel::Given(view, "view")); });
}

void varnel_view_free(varnel_view* view) {
    delete view;
}

varnel_status varnel_view_set(varnel_view* view, const char* name, const char* value,
                              varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::Set(*varnel::Given(view, "view"), varnel::TextOf(name, "name"),
                    varnel::TextOf(value, "value"));
    });
}

varnel_status varnel_view_size(const varnel_view* view, int32_t width, int32_t height,
                               int32_t* result_width, int32_t* result_height,
                               varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::ImageRecord image = varnel::RecordFor(width, height);
        varnel::Apply(*varnel::Given(view, "view"), image);
        const varnel::PixelSize size = varnel::ResultSizeOf(image, {width, height});
        *varnel::Given(result_width, "result_width") = size.width;
        *varnel::Given(result_height, "result_height") = size.height;
    });
}
