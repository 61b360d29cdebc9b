// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/node_lattice.h"

#include "film/planes/cells.h"

namespace varnel {

void NodeLattice::Fill(const MapPlaces& places, BlockRunner& runner) {
    const auto nodesFor = [](int pixels) {
        return (pixels + cellSide - 1) / cellSide + 1 + 2 * nodesAround;
    };
    const std::unique_ptr<SmoothNodes> nodes = places.Nodes();
    const int rows = nodesFor(places.ResultSize().height);
    columns_ = nodesFor(places.ResultSize().width);
    const std::size_t size = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns_);
    x_.resize(size);
    y_.resize(size);
    inside_.resize(nodes->HasEdge() ? size : 0);
    runner.Run(rows, [&](int row) {
        const auto rowOf = [&](std::vector<double>& values) {
            return values.empty()
                       ? std::span<double>()
                       : std::span(values).subspan(
                             static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_),
                             static_cast<std::size_t>(columns_));
        };
        const std::span<double> x = rowOf(x_);
        const std::span<double> y = rowOf(y_);
        nodes->Fill({places.FirstX(), places.FirstY() - (row - nodesAround) * cellSide, cellSide},
                    {x, y, rowOf(inside_)});
        for (std::size_t n = 0; n < x.size(); ++n) {
            const SourcePosition place = places.PlaceOf(x[n], y[n]);
            x[n] = place.x;
            y[n] = place.y;
        }
    });
}

}  // namespace varnel
