// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One measuring of the straighten dialog, for any thread. Throws std::bad_alloc.
#pragma once

#include <memory>
#include <vector>

#include "remap/analysis/straighten/measure_lens.h"

namespace varnel {

// Two places near the ends of an edge that is to be added.
struct EdgeClicks {
    int photo = 0;
    EdgePoint from, to;
    double slack = 0.0;  // how far they may be off, pixels
};

struct MeasureJob {
    struct Photo {
        std::shared_ptr<const Bitmap> bitmap;
        QString name;
    };
    std::vector<Photo> photos;
    MeasureOptions options;               // its edges are those that count so far
    std::optional<LensView> lens = {};    // to find and trace more edges by; none the first time
    bool solved = false;                  // it is no mere guess
    std::vector<int> unsearched = {};     // photos in which edges are to be found
    std::vector<EdgeClicks> clicks = {};  // not the first time
};

struct MeasureOutcome {
    Measurement measured;  // its edges: those of the job, then what was found, then what was traced
    int traced = 0;        // of the clicks
};

MeasureOutcome Measure(const MeasureJob& job);

}  // namespace varnel
