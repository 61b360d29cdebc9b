// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lenses and circles from the caller's photos.

#include <QDate>
#include <algorithm>
#include <vector>

#include "library/caller_image.h"
#include "library/guard.h"
#include "library/lens.h"
#include "remap/analysis/photo_circle.h"
#include "remap/analysis/straighten/measure_lens.h"
#include "state/adjustments/measured_lens.h"

namespace varnel {

namespace {

constexpr size_t mostPhotos = 4;

const char* WhyNot(const Measurement& measured) {
    switch (measured.error) {
        case MeasureError::SizesDiffer:
            return "the photos have not one size";
        case MeasureError::TooFewEdges:
            return "too few straight edges were found";
        case MeasureError::NoPhoto:
        case MeasureError::Stopped:
        case MeasureError::None:
            break;
    }
    return "the edges tell of no better lens than the one that is known";
}

MeasureOptions OptionsFor(const varnel_lens* known, const varnel_image& photo) {
    MeasureOptions options;
    options.lensName = QStringLiteral("measured");
    options.date = QDate::currentDate();
    if (known == nullptr) {
        return options;
    }
    if (const auto lens = KnownLensOf(RecordOf(*known, photo.width, photo.height))) {
        options.present = lens->view;
        if (!known->names.cameraModel.isEmpty()) {
            options.pixelsPerMillimetre = lens->pixelsPerMillimetre;
        }
    }
    return options;
}

void Report(const Measurement& measured, varnel_measurement* report) {
    if (report == nullptr) {
        return;
    }
    *report = {};
    report->edges_found = measured.edges.size();
    if (measured.solved) {
        const auto& edges = measured.solved->edges;
        report->edges_used =
            static_cast<size_t>(std::ranges::count(edges, true, &EdgeResult::used));
        report->before = measured.solved->heldOutBefore;
        report->after = measured.solved->heldOutAfter;
        report->angle_error = measured.solved->angleErrorDegrees;
    }
}

std::unique_ptr<varnel_lens> Measured(std::span<const varnel_image> photos,
                                      const varnel_lens* known, varnel_measurement* report) {
    if (photos.empty() || photos.size() > mostPhotos) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("a lens is measured on one to %1 photos").arg(mostPhotos));
    }
    std::vector<BitmapHandle> copies;
    std::vector<MeasuredPhoto> measuredPhotos;
    for (const varnel_image& photo : photos) {
        Check(&photo, "photos");
        copies.push_back(ByteCopy(photo));
        measuredPhotos.push_back({copies.back().get(), {}});
    }
    const Measurement measured = MeasureLens(measuredPhotos, OptionsFor(known, photos.front()));
    Report(measured, report);
    if (measured.error != MeasureError::None || !measured.solved->improved) {
        throw CallError(VARNEL_NOT_MEASURED, QString::fromLatin1(WhyNot(measured)));
    }
    const GearNames camera =
        known == nullptr ? GearNames()
                         : GearNames{known->names.cameraBrand, known->names.cameraModel, {}, {}};
    return NewLens(camera, std::make_shared<const SampledLens>(measured.lens));
}

}  // namespace

}  // namespace varnel

varnel_status varnel_lens_measure(const varnel_image* photos, size_t count,
                                  const varnel_lens* known, varnel_lens** out,
                                  varnel_measurement* measurement, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel_lens*& place = varnel::Place(out, "out");
        place = varnel::Measured({varnel::Given(photos, "photos"), count}, known, measurement)
                    .release();
    });
}

varnel_status varnel_lens_find_circle(varnel_lens* lens, const varnel_image* photo,
                                      varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::Given(lens, "lens");
        varnel::Check(photo, "photo");
        const varnel::BitmapHandle copy = varnel::ByteCopy(*photo);
        const auto found = varnel::FindPhotoCircle(copy.get());
        if (!found) {
            throw varnel::CallError(VARNEL_NOT_FOUND,
                                    QStringLiteral("the photo shows no rim of a circle"));
        }
        lens->circle = {*found, copy->Size()};
    });
}
