// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Sampled lenses for tests.
#pragma once

#include "remap/projection/geometry.h"
#include "remap/projection/lens_spline.h"
#include "state/records/image_record.h"

namespace varnel::testing {

// The two-number lens of a record, which must be a Sin lens, as a sampled one in millimetres.
inline SampledLens SampledLensOf(const ImageRecord& record) {
    const LensCurve curve{record.LensMapScale, record.LensMapFactor};
    SampledLens lens;
    lens.name = QStringLiteral("Sampled \"ä\"");
    lens.knots =
        SampledFrom([&](double angle) { return LensRadius(LensKind::Sin, angle, curve); }, 2.5)
            .knots;
    return lens;
}

// With its axis 0.3 pixels right of and 0.4 above a whole pixel of a picture of that size.
inline LensReference OffCentreLensOf(const ImageRecord& record, PixelSize size) {
    SampledLens lens = SampledLensOf(record);
    lens.centre = {size.width / 2 + 7 + 0.8, size.height / 2 - 4 + 0.9, size};
    return std::make_shared<const SampledLens>(lens);
}

}  // namespace varnel::testing
