// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pieces between the nodes of a run, as many at a time as a vector has double-precision
// numbers. span_kernels.cpp includes this once for each instruction set. Throws nothing.

#if defined(VARNEL_NODE_SEGMENTS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_NODE_SEGMENTS_INL
#undef VARNEL_NODE_SEGMENTS_INL
#else
#define VARNEL_NODE_SEGMENTS_INL
#endif

#include <hwy/highway.h>

#include <array>

#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using MaskD = hn::Mask<Doubles>;

// 1 / 120 over the first five powers of the nodes' distance in pixels.
struct NodeSteps {
    std::array<double, 5> h;

    explicit NodeSteps(int step) {
        double power = 1.0 / 120.0;
        for (double& h_ : h) {
            power /= step;
            h_ = power;
        }
    }
};

// The same node of each piece, from the n-th around it on.
struct NodesAround {
    std::array<VecD, 6> p;

    explicit NodesAround(const double* nodes)
        : p{hn::LoadU(Doubles(), nodes),     hn::LoadU(Doubles(), nodes + 1),
            hn::LoadU(Doubles(), nodes + 2), hn::LoadU(Doubles(), nodes + 3),
            hn::LoadU(Doubles(), nodes + 4), hn::LoadU(Doubles(), nodes + 5)} {}
};

inline VecD Times(double factor, VecD v) {
    return hn::Mul(hn::Set(Doubles(), factor), v);
}

// As Smooth of node_checks.h, of each piece.
inline MaskD Smooth(const NodesAround& around, double limit) {
    const auto& p = around.p;
    const Doubles d;
    const VecD third0 = hn::Sub(hn::Sub(p[3], p[0]), Times(3.0, hn::Sub(p[2], p[1])));
    const VecD third1 = hn::Sub(hn::Sub(p[4], p[1]), Times(3.0, hn::Sub(p[3], p[2])));
    const VecD third2 = hn::Sub(hn::Sub(p[5], p[2]), Times(3.0, hn::Sub(p[4], p[3])));
    const VecD most = hn::Set(d, limit);
    const VecD farthest = hn::Set(d, 1e6);
    const MaskD bends = hn::And(hn::Lt(hn::Abs(hn::Sub(third1, third0)), most),
                                hn::Lt(hn::Abs(hn::Sub(third2, third1)), most));
    return hn::And(bends,
                   hn::And(hn::Lt(hn::Abs(p[2]), farthest), hn::Lt(hn::Abs(p[3]), farthest)));
}

// Whether the positions between p[2] and p[3] keep so close to whole ones that single precision
// would lose what is left of them, as everywhere where a whole picture comes from one pixel.
inline MaskD Lost(const NodesAround& around) {
    const auto lost = [](VecD at) {
        const Doubles d;
        constexpr double close = 1e-4;
        const VecD part = hn::Sub(at, hn::Floor(at));
        return hn::Or(hn::And(hn::Lt(part, hn::Set(d, close)), hn::Gt(part, hn::Zero(d))),
                      hn::Gt(part, hn::Set(d, 1.0 - close)));
    };
    return hn::And(lost(around.p[2]), lost(around.p[3]));
}

// One coordinate of some pieces: the polynomial of the fifth degree through the six nodes around
// each, in pixels from p[2] around a whole base. And two numbers that it keeps between.
struct Quintics {
    HWY_ALIGN std::array<std::array<float, lanesAtMost>, 6> c;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> base;
    HWY_ALIGN std::array<double, lanesAtMost> low;
    HWY_ALIGN std::array<double, lanesAtMost> high;

    void Fit(const NodesAround& around, const NodeSteps& steps) {
        const auto& p = around.p;
        const auto& [h1, h2, h3, h4, h5] = steps.h;
        const VecD whole = hn::Floor(p[2]);
        const VecD outer = hn::Add(p[1], p[3]);
        const VecD ends = hn::Add(p[0], p[4]);
        const Doubles d;
        hn::Store(hn::DemoteTo(hn::Rebind<std::int32_t, Doubles>(), whole),
                  hn::Rebind<std::int32_t, Doubles>(), base.data());
        Keep(0, hn::Sub(p[2], whole));
        VecD sum = hn::Sub(Times(6.0, p[0]), Times(60.0, p[1]));
        sum = hn::Add(hn::Sub(sum, Times(40.0, p[2])), Times(120.0, p[3]));
        Keep(1, Times(h1, hn::Add(hn::Sub(sum, Times(30.0, p[4])), Times(4.0, p[5]))));
        sum = hn::Sub(hn::Sub(Times(80.0, outer), Times(5.0, ends)), Times(150.0, p[2]));
        Keep(2, Times(h2, sum));
        sum = hn::Sub(hn::Sub(hn::Sub(Times(10.0, p[2]), p[0]), p[1]), Times(14.0, p[3]));
        Keep(3, Times(h3 * 5.0, hn::Sub(hn::Add(sum, Times(7.0, p[4])), p[5])));
        sum = hn::Add(hn::Sub(Times(5.0, ends), Times(20.0, outer)), Times(30.0, p[2]));
        Keep(4, Times(h4, sum));
        sum = hn::Add(hn::Sub(p[5], p[0]), Times(5.0, hn::Sub(p[1], p[4])));
        Keep(5, Times(h5, hn::Add(sum, Times(10.0, hn::Sub(p[3], p[2])))));
        // A smooth piece is off the line between its ends by an eighth of how much that bends, and
        // by hundredths of a pixel of what the limit of Smooth leaves.
        const VecD bend =
            hn::Add(hn::Max(hn::Abs(hn::Sub(outer, hn::Add(p[2], p[2]))),
                            hn::Abs(hn::Sub(hn::Add(p[2], p[4]), hn::Add(p[3], p[3])))),
                    hn::Set(d, 1.0));
        hn::Store(hn::Sub(hn::Min(p[2], p[3]), bend), d, low.data());
        hn::Store(hn::Add(hn::Max(p[2], p[3]), bend), d, high.data());
    }

    // The offsets from the base of the pixels t of a piece.
    VecF At(std::size_t piece, VecF t) const {
        const Floats d;
        VecF sum = hn::MulAdd(hn::Set(d, c[5][piece]), t, hn::Set(d, c[4][piece]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[3][piece]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[2][piece]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[1][piece]));
        return hn::MulAdd(sum, t, hn::Set(d, c[0][piece]));
    }

  private:
    void Keep(std::size_t power, VecD values) {
        const hn::Rebind<float, Doubles> d;
        hn::Store(hn::DemoteTo(d, values), d, c[power].data());
    }
};

// The pieces from the n-th node of a run on.
struct Segments {
    Quintics u, v;
    std::array<bool, lanesAtMost> smooth;  // the polynomials can stand for the map

    static std::size_t Count() { return hn::Lanes(Doubles()); }

    void Fit(const double* nodesU, const double* nodesV, const NodeSteps& steps, double limit) {
        const NodesAround ofU(nodesU);
        const NodesAround ofV(nodesV);
        u.Fit(ofU, steps);
        v.Fit(ofV, steps);
        const MaskD bendsLittle = hn::And(Smooth(ofU, limit), Smooth(ofV, limit));
        const MaskD good = hn::AndNot(hn::Or(Lost(ofU), Lost(ofV)), bendsLittle);
        HWY_ALIGN std::array<double, lanesAtMost> flags;
        hn::Store(hn::IfThenElseZero(good, hn::Set(Doubles(), 1.0)), Doubles(), flags.data());
        for (std::size_t n = 0; n < Count(); ++n) {
            smooth[n] = flags[n] != 0.0;
        }
    }
};

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
