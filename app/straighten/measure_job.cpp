// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/measure_job.h"

#include <algorithm>

#include "remap/analysis/straighten/edge_finder.h"
#include "remap/analysis/straighten/edge_tracer.h"

namespace varnel {

namespace {

constexpr std::size_t leastTraced = 10;  // points of an edge
constexpr double slackOfFound = 0.0015;  // as in EdgeSearch, for a lens that is solved already

void FindMore(const MeasureJob& job, std::vector<EdgeTrace>& edges) {
    for (const int photo : job.unsearched) {
        const MeasureJob::Photo& where = job.photos[static_cast<std::size_t>(photo)];
        for (EdgeTrace& edge : FindEdges(*where.bitmap, *job.lens,
                                         {.reach = ReachOf(job.options.circle),
                                         .slack = slackOfFound,
                                         .stop = job.options.stop})) {
            edge.photo = photo;
            edges.push_back(std::move(edge));
        }
    }
}

int TraceMore(const MeasureJob& job, std::vector<EdgeTrace>& edges) {
    int traced = 0;
    for (const EdgeClicks& clicks : job.clicks) {
        job.options.stop();
        const MeasureJob::Photo& where = job.photos[static_cast<std::size_t>(clicks.photo)];
        EdgeTrace edge = TraceEdge(*where.bitmap, clicks.from, clicks.to, *job.lens,
                                   {clicks.slack, job.solved ? 0.004 : 0.03});
        if (edge.points.size() >= leastTraced) {
            edge.photo = clicks.photo;
            edges.push_back(std::move(edge));
            ++traced;
        }
    }
    return traced;
}

}  // namespace

MeasureOutcome Measure(const MeasureJob& job) {
    MeasureOutcome outcome;
    MeasureOptions options = job.options;
    try {
        if (job.lens) {
            FindMore(job, options.edges);
            outcome.traced = TraceMore(job, options.edges);
        }
    } catch (const MeasuringStopped&) {
        outcome.measured.error = MeasureError::Stopped;
        return outcome;
    }
    if (job.lens && options.edges.empty()) {  // not to be found anew
        outcome.measured.error = MeasureError::TooFewEdges;
        outcome.measured.start = job.lens;
        return outcome;
    }
    std::vector<MeasuredPhoto> photos;
    for (const MeasureJob::Photo& photo : job.photos) {
        photos.push_back({photo.bitmap.get(), photo.name});
    }
    outcome.measured = MeasureLens(photos, options);
    return outcome;
}

}  // namespace varnel
