// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Smooth maps, by polynomials between nodes. Near edges and corners of a map each pixel is a node.

#include <algorithm>
#include <array>
#include <cmath>

#include "remap/render/engine/control_points.h"
#include "remap/render/engine/fine/fine_kernels.h"
#include "remap/render/engine/fine/places.h"
#include "remap/render/engine/node_checks.h"

namespace varnel {

namespace {

// The polynomial of the fifth degree through six nodes, p[0] to p[5], over the pixels from p[2] on.
std::array<double, 6> QuinticThrough(const double* p, int step) {
    const double outer = p[1] + p[3];
    std::array<double, 6> c{
        120.0 * p[2],
        6.0 * p[0] - 60.0 * p[1] - 40.0 * p[2] + 120.0 * p[3] - 30.0 * p[4] + 4.0 * p[5],
        80.0 * outer - 5.0 * (p[0] + p[4]) - 150.0 * p[2],
        5.0 * (10.0 * p[2] - p[0] - p[1] - 14.0 * p[3] + 7.0 * p[4] - p[5]),
        5.0 * (p[0] + p[4]) - 20.0 * outer + 30.0 * p[2],
        p[5] - p[0] + 5.0 * (p[1] - p[4]) + 10.0 * (p[3] - p[2])};
    double unit = 1.0 / 120.0;
    for (double& factor : c) {
        factor *= unit;
        unit /= step;
    }
    return c;
}

// How far the way between p[2] and p[3] leaves the straight one, at most.
double BendOf(const double* p) {
    return std::max(std::fabs(p[1] - 2.0 * p[2] + p[3]), std::fabs(p[2] - 2.0 * p[3] + p[4]));
}

float Length(double a, double b) {
    return static_cast<float>(std::sqrt(a * a + b * b));
}

// The smaller of two steps to both sides: at a corner of the map the other goes across it.
double StepOf(double before, double at, double after) {
    const double back = at - before;
    const double on = after - at;
    return !(std::fabs(back) > std::fabs(on)) ? (std::isfinite(back) ? back : on)
                                              : (std::isfinite(on) ? on : back);
}

// A row of nodes with its neighbours, one position below and above.
struct NodeRows {
    const ControlPointLine *below, *row, *above;
    double height;  // positions for a pixel

    // By the nodes around, i from the first of them.
    float Scale(std::vector<double> ControlPointLine::*offset, std::size_t i) const {
        const std::vector<double>& along = row->*offset;
        // The fourth-order difference: nodes may be far apart for how the map bends.
        const double slope =
            (8.0 * (along[i + 1] - along[i - 1]) - along[i + 2] + along[i - 2]) / 12.0;
        return Length(slope / row->step,
                      ((above->*offset)[i] - (below->*offset)[i]) / 2.0 * height);
    }
    // Where each pixel is a node.
    float CloseScale(std::vector<double> ControlPointLine::*offset, std::size_t i) const {
        const std::vector<double>& along = row->*offset;
        return Length(StepOf(along[i - 1], along[i], along[i + 1]),
                      height * StepOf((below->*offset)[i], along[i], (above->*offset)[i]));
    }
    // What of a pixel lies within the edge of the map.
    float ShareWithin(std::size_t i) const {
        if (row->inside.empty()) {
            return 1.0F;
        }
        const double inside = row->inside[i];
        const double slope = std::hypot((row->inside[i + 1] - row->inside[i - 1]) / 2.0,
                                        (above->inside[i] - below->inside[i]) / 2.0 * height);
        return slope > 0.0 ? static_cast<float>(std::clamp(inside / slope + 0.5, 0.0, 1.0))
                           : (inside >= 0.0 ? 1.0F : 0.0F);
    }
};

class SmoothFinder : public PlaceFinder {
  public:
    SmoothFinder(const SmoothMap& map, PixelSize photo, PixelSize result)
        : map_(map), nodes_(map.Nodes()), photo_(photo), step_(NodeStepFor(result)) {}

    std::unique_ptr<PlaceRows> RowsOf(LineRange across, LineRange up) const override;

    const SmoothMap& Map() const { return map_; }
    const SmoothNodes& Nodes() const { return *nodes_; }
    PixelSize Photo() const { return photo_; }
    int Step() const { return step_; }

  private:
    const SmoothMap& map_;
    std::unique_ptr<SmoothNodes> nodes_;
    PixelSize photo_;
    int step_;
};

// Whether pixels between two values lie wholly on a side of the photo, or none of them.
struct OnSide {
    bool all, none;

    static OnSide Of(double from, double to, double margin, std::int32_t side) {
        const double low = std::min(from, to) - margin;
        const double high = std::max(from, to) + margin;
        return {low > -0.5 && high < side - 0.5, high < -0.5 || low > side - 0.5};
    }
};

class SmoothRows : public PlaceRows {
  public:
    SmoothRows(const SmoothFinder& finder, LineRange across, LineRange up)
        : finder_(finder),
          first_{across.first, up.first - 1},
          centre_(finder.Map().SourceCentre()),
          lines_(static_cast<std::size_t>(up.Count() + 2)) {
        for (std::size_t n = 0; n < lines_.size(); ++n) {
            lines_[n] =
                Line({across.first, first_.y + static_cast<int>(n)}, across.Count(), finder.Step());
        }
    }

    void Fill(const PlaceRun& run, Places& into) override {
        const auto row = static_cast<std::size_t>(run.y - first_.y);
        const NodeRows nodes{&lines_[row - 1], &lines_[row], &lines_[row + 1],
                             static_cast<double>(run.height)};
        const int step = finder_.Step();
        for (int done = 0; done < run.count; done += step) {
            const PlaceRun part{run.x + done, run.y, std::min(step, run.count - done), run.height,
                                run.at + static_cast<std::size_t>(done)};
            FillPart(part, nodes, static_cast<std::size_t>((part.x - first_.x) / step), into);
        }
    }

  private:
    ControlPointLine Line(PixelPosition from, int count, int step) const {
        ControlPointLine line{from.x, from.y, count, step};
        WorkOutNodes(finder_.Nodes(), line);
        return line;
    }

    // Pixels between the nodes n + 2 and n + 3 of the row.
    void FillPart(const PlaceRun& part, const NodeRows& nodes, std::size_t n, Places& into) const {
        const bool hasEdge = !nodes.row->inside.empty();
        const Shown shown = hasEdge ? ShownBetween(&nodes.row->inside[n]) : Shown::All;
        if (shown == Shown::None) {
            std::fill_n(&into.share[part.at], part.count, 0.0F);
            return;
        }
        const double limit = hasEdge ? 0.2 : 0.05;
        const bool smooth = shown == Shown::All && Smooth(&nodes.row->u[n], limit) &&
                            Smooth(&nodes.row->v[n], limit);
        if (!smooth || !FillSmooth(part, nodes, n, into)) {
            FillClosely(part, into);
        }
    }

    // False where the neighbouring rows are no numbers.
    bool FillSmooth(const PlaceRun& part, const NodeRows& nodes, std::size_t n,
                    Places& into) const {
        constexpr auto u = &ControlPointLine::u;
        constexpr auto v = &ControlPointLine::v;
        const std::array<float, 4> scales{nodes.Scale(u, n + 2), nodes.Scale(u, n + 3),
                                          nodes.Scale(v, n + 2), nodes.Scale(v, n + 3)};
        const float largest = *std::ranges::max_element(scales);
        if (!std::ranges::all_of(scales, [](float scale) { return std::isfinite(scale); })) {
            return false;
        }
        const auto count = static_cast<std::size_t>(part.count);
        const int step = finder_.Step();
        std::array<double, 6> along = QuinticThrough(&nodes.row->u[n], step);
        along[0] += centre_.x;
        FillPolynomial(along, {&into.x[part.at], count});
        std::array<double, 6> upward = QuinticThrough(&nodes.row->v[n], step);
        upward[0] += centre_.y;
        FillPolynomial(upward, {&into.y[part.at], count});
        FillStraight(scales[0], (scales[1] - scales[0]) / static_cast<float>(step),
                     {&into.scaleX[part.at], count});
        FillStraight(scales[2], (scales[3] - scales[2]) / static_cast<float>(step),
                     {&into.scaleY[part.at], count});
        FillShares(
            part,
            static_cast<double>(largest) + BendOf(&nodes.row->u[n]) + BendOf(&nodes.row->v[n]),
            into);
        return true;
    }

    // By the photo's sides; the margin is what a pixel spans, and how far the way between two
    // nodes may bend.
    void FillShares(const PlaceRun& part, double margin, Places& into) const {
        const std::size_t end = part.at + static_cast<std::size_t>(part.count);
        const PixelSize photo = finder_.Photo();
        const OnSide x = OnSide::Of(into.x[part.at], into.x[end - 1], margin, photo.width);
        const OnSide y = OnSide::Of(into.y[part.at], into.y[end - 1], margin, photo.height);
        if ((x.all && y.all) || x.none || y.none) {
            const float share = x.none || y.none ? 0.0F : 1.0F;
            std::fill_n(&into.share[part.at], part.count, share);
            return;
        }
        for (std::size_t n = part.at; n < end; ++n) {
            into.share[n] = ShareOnSide(into.x[n], into.scaleX[n], photo.width) *
                            ShareOnSide(into.y[n], into.scaleY[n], photo.height);
        }
    }

    // Each pixel as a node, and by the map itself where that gives no number.
    ControlPointLine CloseLine(PixelPosition from, int count) const {
        ControlPointLine line = Line(from, count, 1);
        for (std::size_t n = 0; n < line.u.size(); ++n) {
            if (!std::isfinite(line.u[n]) || !std::isfinite(line.v[n])) {
                const SourceOffset offset =
                    finder_.Map().At(from.x + static_cast<int>(n) - nodesAround, from.y);
                line.u[n] = offset.u;
                line.v[n] = offset.v;
            }
        }
        return line;
    }

    void FillClosely(const PlaceRun& part, Places& into) const {
        const ControlPointLine below = CloseLine({part.x, part.y - 1}, part.count);
        const ControlPointLine row = CloseLine({part.x, part.y}, part.count);
        const ControlPointLine above = CloseLine({part.x, part.y + 1}, part.count);
        const NodeRows nodes{&below, &row, &above, static_cast<double>(part.height)};
        for (int n = 0; n < part.count; ++n) {
            const auto i = static_cast<std::size_t>(n + nodesAround);
            PutClose(nodes, i, part.at + static_cast<std::size_t>(n), into);
        }
    }

    void PutClose(const NodeRows& nodes, std::size_t i, std::size_t at, Places& into) const {
        const SourceOffset offset{nodes.row->u[i], nodes.row->v[i]};
        constexpr double farthest = 1e6;  // what is nowhere on the photo lies beyond that
        into.x[at] = centre_.x + offset.u;
        into.y[at] = centre_.y + offset.v;
        const auto scale = [](float found) { return std::isfinite(found) ? found : 1.0F; };
        into.scaleX[at] = scale(nodes.CloseScale(&ControlPointLine::u, i));
        into.scaleY[at] = scale(nodes.CloseScale(&ControlPointLine::v, i));
        const bool there = std::fabs(offset.u) < farthest && std::fabs(offset.v) < farthest;
        into.share[at] = there
                             ? nodes.ShareWithin(i) *
                                   ShareOnSide(into.x[at], into.scaleX[at], finder_.Photo().width) *
                                   ShareOnSide(into.y[at], into.scaleY[at], finder_.Photo().height)
                             : 0.0F;
    }

    const SmoothFinder& finder_;
    PixelPosition first_;  // of the nodes
    PixelPosition centre_;
    std::vector<ControlPointLine> lines_;
};

std::unique_ptr<PlaceRows> SmoothFinder::RowsOf(LineRange across, LineRange up) const {
    return std::make_unique<SmoothRows>(*this, across, up);
}

}  // namespace

std::unique_ptr<PlaceFinder> SmoothPlaces(const SmoothMap& map, PixelSize photo, PixelSize result) {
    return std::make_unique<SmoothFinder>(map, photo, result);
}

}  // namespace varnel
