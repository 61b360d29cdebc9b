// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A lens with its camera, and the records that it makes.
#pragma once

#include <optional>
#include <string>

#include "gear/catalogue/gear_catalogue.h"
#include "library/view.h"
#include "remap/analysis/circle_finder.h"
#include "varnel/varnel.h"

struct varnel_lens {
    struct Circle {
        varnel::ImageCircle place;  // as circle_finder.h has it
        varnel::PixelSize size;     // of the pictures
    };

    varnel::GearNames names;  // of the catalogues; empty parts are not known
    varnel::LensReference curve;
    std::optional<Circle> circle;
    std::string name;  // of both, for people
};

namespace varnel {

// The catalogue's camera "BRAND/MODEL"; for a null pointer none. Throws CallError.
GearNames CameraNamed(const char* camera);

// A handle of these, named. Throws std::bad_alloc.
std::unique_ptr<varnel_lens> NewLens(const GearNames& names, const LensReference& curve = {});

// The record of a picture of that size that the lens took, as the view has it; without a view as a
// gear gives it. Throws CallError for sizes, RunTimeError and std::bad_alloc.
ImageRecord RecordOf(const varnel_lens& lens, int32_t width, int32_t height,
                     const varnel_view* view = nullptr);

}  // namespace varnel
