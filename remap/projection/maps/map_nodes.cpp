// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/map_nodes.h"

#include <algorithm>

namespace varnel {

namespace {

// How finely a curve is tabled. The curve of a sampled lens bends at its knots, and pieces that
// hold one are the less exact; there are few of them where pieces are short.
struct Tabling {
    double tolerance = 1e-6;  // pixels
    int pieces = 128;

    static Tabling Of(LensKind kind) {
        return kind == LensKind::Sampled ? Tabling{1e-5, 1024} : Tabling{};
    }
};

}  // namespace

RectilinearNodes::RectilinearNodes(const RectilinearRadius& radius)
    : tanStep_(std::fabs(radius.TanStep())),
      table_(
          0.0, 1.0, Tabling::Of(radius.Kind()).tolerance,
          [&radius](double cosine) {
              const double theta = std::max(std::acos(std::min(cosine, 1.0)), 1e-9);
              return radius.AtAngle(theta) / std::sin(theta);
          },
          Tabling::Of(radius.Kind()).pieces) {}

EquidistanceNodes::EquidistanceNodes(const EquidistanceMap& map, double nearest, double farthest)
    : table_(
          nearest * nearest, farthest * farthest, Tabling::Of(map.Kind()).tolerance / farthest,
          [&map](double square) {
              const double r = std::max(std::sqrt(std::max(square, 0.0)), 1e-6);
              return map.SourceRadius(r) / r;
          },
          Tabling::Of(map.Kind()).pieces) {}

}  // namespace varnel
