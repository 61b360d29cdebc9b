// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/map_nodes.h"

#include <algorithm>

namespace varnel {

namespace {

constexpr double tolerance = 1e-6;  // pixels

}  // namespace

RectilinearNodes::RectilinearNodes(const RectilinearRadius& radius)
    : tanStep_(std::fabs(radius.TanStep())), table_(0.0, 1.0, tolerance, [&radius](double cosine) {
          const double theta = std::max(std::acos(std::min(cosine, 1.0)), 1e-9);
          return radius.AtAngle(theta) / std::sin(theta);
      }) {}

EquidistanceNodes::EquidistanceNodes(const EquidistanceMap& map, double nearest, double farthest)
    : table_(nearest * nearest, farthest * farthest, tolerance / farthest, [&map](double square) {
          const double r = std::max(std::sqrt(std::max(square, 0.0)), 1e-6);
          return map.SourceRadius(r) / r;
      }) {}

}  // namespace varnel
