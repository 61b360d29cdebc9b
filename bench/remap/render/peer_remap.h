// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The same remap as another well-kept library does it: build a map, then apply it.
#pragma once

#include <cstdint>
#include <memory>

#include "remap/projection/maps/rectilinear_map.h"

namespace varnel::bench {

// Pixels are blue, green, red without gaps between rows. The maps are single precision, as that
// library's users write them, built anew each time on as many threads as the remap takes.
void PeerRectilinear(const RectilinearView& view, std::uint8_t* source, std::uint8_t* result,
                     int threads);

// That library's Lanczos kernel, with its map worked out beforehand; on one thread.
class PeerLanczos {
  public:
    explicit PeerLanczos(const RectilinearView& view);
    ~PeerLanczos();
    void Draw(std::uint8_t* source, std::uint8_t* result) const;

  private:
    struct Map;
    std::unique_ptr<Map> map_;
};

}  // namespace varnel::bench
