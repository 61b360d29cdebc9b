// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The maps that have no edges: what the general engine draws. A new projection of this kind says
// where a position is read and what its smooth half is; the rest is here.
#pragma once

#include <span>

#include "remap/projection/axis_owners.h"
#include "remap/projection/pixel_map.h"
#include "remap/projection/projection_map.h"

namespace varnel {

// Pixels of a run between two nodes, at most.
inline constexpr int largestNodeStep = 64;
// Nodes before the first and after the last one that a run lies between.
inline constexpr int nodesAround = 2;

// Nodes of a run that starts at a position: the first lies nodesAround steps before it.
struct NodeRun {
    int x = 0, y = 0;
    int step = largestNodeStep;

    double PlaceOf(std::size_t node) const {
        return x + (static_cast<double>(node) - nodesAround) * step;
    }
};

// What nodes hold, all as long as there are nodes.
struct NodeValues {
    std::span<double> u, v;  // source offsets
    // How far within what the map shows, smooth and without a unit; below 0 it shows nothing,
    // whatever u and v are. Only of maps that have an edge.
    std::span<double> inside{};
};

// The smooth half of a map, also between whole positions: what nodes are worked out with. Agrees
// with the map to about a millionth of a pixel, or gives no number, where pixels are worked out one
// by one.
class SmoothNodes {
  public:
    virtual ~SmoothNodes() = default;
    virtual void Fill(const NodeRun& run, const NodeValues& into) const = 0;
    // Whether it shows nothing anywhere, where the map itself is nowhere on the source.
    virtual bool HasEdge() const { return false; }
};

// By a formula with SourceOffset At(double x, double y).
template <class Formula>
class NodesBy : public SmoothNodes {
  public:
    explicit NodesBy(Formula formula) : formula_(std::move(formula)) {}
    void Fill(const NodeRun& run, const NodeValues& into) const override {
        for (std::size_t n = 0; n < into.u.size(); ++n) {
            const SourceOffset offset = formula_.At(run.PlaceOf(n), run.y);
            into.u[n] = offset.u;
            into.v[n] = offset.v;
        }
    }

  private:
    Formula formula_;
};

// A formula whose offsets are all moved by the same.
template <class Formula>
struct MovedFormula {
    Formula formula;
    CentreShift move;

    SourceOffset At(double x, double y) const {
        const SourceOffset offset = formula.At(x, y);
        return {offset.u + move.x, offset.v + move.y};
    }
};

class SmoothMap : public ProjectionMap {
  public:
    // The offset at a loop position. Throws nothing.
    virtual SourceOffset At(int x, int y) const = 0;
    virtual std::unique_ptr<SmoothNodes> Nodes() const = 0;
    // Whether the four positions (x, y), (-x, y), (x, -y), (-x, -y) read mirror images of one
    // another around the optical axis, so that one is enough.
    virtual bool IsFourfold() const { return false; }

    // The loops over columns and rows.
    virtual LoopAxis ColumnAxis() const;
    virtual LoopAxis RowAxis() const;

    const PixelPosition& SourceCentre() const { return sourceCentre_; }
    // What an offset's mirror image has more than the negative offset: twice the axis's way from
    // the middle of that pixel.
    CentreShift MirrorShift() const { return {2.0 * fraction_.x, 2.0 * fraction_.y}; }
    const OutputFrame& Output() const { return output_; }
    const CentreAndExtents& Extents() const { return extents_; }  // on the result

    SourceOffset OffsetAt(int x, int y) const override { return At(x, y); }
    ResultLines Lines() const override;
    float ProgressMaximum() const override;
    float ProgressAt(int column) const override;
    int LastLine() const override;
    const SmoothMap* AsSmooth() const override { return this; }

  protected:
    // Throws OverflowError.
    SmoothMap(const SourceFrame& source, const OutputFrame& output);

    // Whether the optical axis goes through the middle of a pixel.
    bool IsAxisWhole() const { return fraction_.x == 0.0 && fraction_.y == 0.0; }
    // An offset from the optical axis as one from the source's centre pixel.
    SourceOffset FromAxis(const SourceOffset& offset) const {
        return {offset.u + fraction_.x, offset.v + fraction_.y};
    }
    const CentreShift& AxisFraction() const { return fraction_; }
    // The nodes of a formula of offsets from the axis.
    template <class Formula>
    std::unique_ptr<SmoothNodes> NodesFromAxis(const Formula& formula) const {
        if (IsAxisWhole()) {
            return std::make_unique<NodesBy<Formula>>(formula);
        }
        return std::make_unique<NodesBy<MovedFormula<Formula>>>(
            MovedFormula<Formula>{formula, fraction_});
    }

  private:
    PixelPosition sourceCentre_;
    CentreShift fraction_;
    OutputFrame output_;
    CentreAndExtents extents_;
};

}  // namespace varnel
