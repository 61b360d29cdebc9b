// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/frame_solver.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/run_time_error.h"

namespace varnel {

namespace {

// The index of the line; nothing when a border line is black. A translation may leave the outermost
// line out.
std::optional<std::size_t> LineAt(double share, const std::vector<int>& shown, int count) {
    if (shown.empty() || (share == 0.0 && shown.front() > 1) ||
        (share == 1.0 && shown.back() < count - 2)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(std::round(share * static_cast<double>(shown.size() - 1)));
}

// How far from the wanted position the point is with these controls.
double Miss(const FrameSetting& setting, const ControlValues& controls, const FramePoint& point,
            const SourcePosition& wanted) {
    ImageRecord trial = setting.image;
    StoreControls(controls, trial);
    try {
        const InverseMapping places(ProjectionFromIndex(controls.projection), trial, setting.size);
        if (const auto place = PlaceOf(point, places)) {
            return std::hypot(place->x - wanted.x, place->y - wanted.y);
        }
    } catch (const RunTimeError&) {
        // No conversion with these numbers.
    }
    return std::numeric_limits<double>::infinity();
}

}  // namespace

std::optional<SliderId> FrameSlider(Projection projection) {
    return InfoOf(projection).frame.width;
}

bool FrameTurns(Projection projection) {
    return InfoOf(projection).frame.turns;
}

std::span<const FramePoint> FrameHandles(Projection projection) {
    return InfoOf(projection).frame.handles;
}

std::optional<SourcePosition> PlaceOf(const FramePoint& point, const InverseMapping& places) {
    const auto column = LineAt(point.across, places.Columns(), places.ResultSize().width);
    const auto row = LineAt(point.up, places.Rows(), places.ResultSize().height);
    if (!column || !row) {
        return std::nullopt;
    }
    return places.ReadAt(places.Columns()[*column], places.Rows()[*row]);
}

double WidthNearest(const FrameSetting& setting, const FramePoint& handle,
                    const SourcePosition& wanted) {
    const Projection projection = ProjectionFromIndex(setting.controls.projection);
    const auto slider = FrameSlider(projection);
    if (!slider) {
        return 0.0;
    }
    ControlValues controls = setting.controls;
    double best = ValueOf(*slider, controls).value_or(0.0);
    double least = Miss(setting, controls, handle, wanted);
    const ControlRange range = ReachOf(*slider, projection);
    for (int value = range.minimum; value <= range.maximum; ++value) {
        SetValueOf(*slider, value, controls);
        if (const double miss = Miss(setting, controls, handle, wanted); miss < least) {
            least = miss;
            best = value;
        }
    }
    return best;
}

ControlValues TurnedNearest(const FrameSetting& setting, const SourcePosition& wanted) {
    ControlValues best = setting.controls;
    const Projection projection = ProjectionFromIndex(best.projection);
    if (!FrameTurns(projection)) {
        return best;
    }
    const FramePoint middle;
    double least = Miss(setting, best, middle, wanted);
    const auto tried = [&](int down, int right) {
        ControlValues controls = best;
        controls.rotateX = WithinReach(SliderId::X, projection, best.rotateX + down);
        controls.rotateY = WithinReach(SliderId::Y, projection, best.rotateY + right);
        const double miss = Miss(setting, controls, middle, wanted);
        const bool nearer = miss < least;
        if (nearer) {
            least = miss;
            best = controls;
        }
        return nearer;
    };
    for (int step = 8; step >= 1; step /= 2) {
        bool moved = true;
        while (moved) {
            moved = false;
            for (const int down : {-step, 0, step}) {
                for (const int right : {-step, 0, step}) {
                    moved = ((down != 0 || right != 0) && tried(down, right)) || moved;
                }
            }
        }
    }
    return best;
}

}  // namespace varnel
