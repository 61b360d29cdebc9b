// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/edge_chains.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace varnel {

namespace {

constexpr float faint = 1.5F;   // levels per pixel: an edge may go on there
constexpr float strong = 4.0F;  // and has to reach this somewhere
constexpr float alike = 0.85F;  // cosine of the directions of neighbours

struct Gradient {
    float x = 0.0F, y = 0.0F, size = 0.0F;
};

class Chaining {
  public:
    explicit Chaining(const LevelMap& levels) : size_(levels.size) {
        const std::vector<float> smooth = Smoothed(levels);
        gradients_.resize(levels.values.size());
        for (int y = 1; y + 1 < size_.height; ++y) {
            for (int x = 1; x + 1 < size_.width; ++x) {
                const std::size_t n = At(x, y);
                const std::size_t row = static_cast<std::size_t>(size_.width);
                Gradient& g = gradients_[n];
                g.x = 0.5F * (smooth[n + 1] - smooth[n - 1]);
                g.y = 0.5F * (smooth[n + row] - smooth[n - row]);
                g.size = std::sqrt(g.x * g.x + g.y * g.y);
            }
        }
        MarkRidges();
    }

    std::vector<std::vector<EdgePoint>> Chains(std::size_t leastPoints) {
        std::vector<std::vector<EdgePoint>> chains;
        for (int y = 2; y + 2 < size_.height; ++y) {
            for (int x = 2; x + 2 < size_.width; ++x) {
                if (ridge_[At(x, y)] != 0 && gradients_[At(x, y)].size >= strong) {
                    std::vector<EdgePoint> chain = ChainFrom(x, y);
                    if (chain.size() >= leastPoints) {
                        chains.push_back(std::move(chain));
                    }
                }
            }
        }
        return chains;
    }

  private:
    std::size_t At(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(x);
    }

    // By 1 2 1 along rows and columns.
    static std::vector<float> Smoothed(const LevelMap& levels) {
        std::vector<float> from = levels.values;
        std::vector<float> to = from;
        const std::size_t row = static_cast<std::size_t>(levels.size.width);
        for (const std::size_t step : {std::size_t{1}, row}) {
            for (std::size_t n = step; n + step < from.size(); ++n) {
                to[n] = 0.25F * (from[n - step] + 2.0F * from[n] + from[n + step]);
            }
            from = to;
        }
        return from;
    }

    // Pixels whose gradient is the largest across their edge.
    void MarkRidges() {
        ridge_.assign(gradients_.size(), 0);
        for (int y = 2; y + 2 < size_.height; ++y) {
            for (int x = 2; x + 2 < size_.width; ++x) {
                const Gradient& g = gradients_[At(x, y)];
                ridge_[At(x, y)] =
                    g.size >= faint && g.size > Beside(x, y, 1.0F) && g.size >= Beside(x, y, -1.0F);
            }
        }
    }

    // The gradient a pixel further along its direction, between the two nearest pixels.
    float Beside(int x, int y, float way) const {
        const Gradient& g = gradients_[At(x, y)];
        const bool steep = std::fabs(g.y) > std::fabs(g.x);
        const float main = steep ? g.y : g.x;
        const float share = std::fabs((steep ? g.x : g.y) / main);
        const int sx = way * g.x > 0.0F ? 1 : -1;
        const int sy = way * g.y > 0.0F ? 1 : -1;
        const float straight = gradients_[steep ? At(x, y + sy) : At(x + sx, y)].size;
        return (1.0F - share) * straight + share * gradients_[At(x + sx, y + sy)].size;
    }

    EdgePoint Placed(int x, int y) const {
        const Gradient& g = gradients_[At(x, y)];
        const float before = Beside(x, y, -1.0F);
        const float after = Beside(x, y, 1.0F);
        const float bow = before - 2.0F * g.size + after;
        const float part =
            bow < 0.0F ? std::clamp(0.5F * (before - after) / bow, -0.5F, 0.5F) : 0.0F;
        // Beside reads a pixel further along the greater component.
        const float unit = part / std::max(std::fabs(g.x), std::fabs(g.y));
        return {x + 0.5 + static_cast<double>(unit * g.x),
                y + 0.5 + static_cast<double>(unit * g.y)};
    }

    // Takes the ridge's pixels away as it goes, both ways from the first.
    std::vector<EdgePoint> ChainFrom(int x, int y) {
        std::vector<EdgePoint> chain = Walk(x, y, -1.0F);
        std::ranges::reverse(chain);
        chain.push_back(Placed(x, y));
        ridge_[At(x, y)] = 0;
        const std::vector<EdgePoint> rest = Walk(x, y, 1.0F);
        chain.insert(chain.end(), rest.begin(), rest.end());
        return chain;
    }

    std::vector<EdgePoint> Walk(int x, int y, float way) {
        std::vector<EdgePoint> points;
        ridge_[At(x, y)] = 0;
        while (Step(x, y, way)) {
            points.push_back(Placed(x, y));
            ridge_[At(x, y)] = 0;
        }
        return points;
    }

    // To the next pixel with the brighter side on the same hand; over a gap of one pixel, too.
    bool Step(int& x, int& y, float way) const {
        const Gradient g = gradients_[At(x, y)];
        float best = 0.0F;
        int toX = x;
        int toY = y;
        for (int reach = 1; reach <= 2 && best == 0.0F; ++reach) {
            for (int dy = -reach; dy <= reach; ++dy) {
                for (int dx = -reach; dx <= reach; ++dx) {
                    const float gain = Gain(g, {x, y}, {dx, dy}, way);
                    if (gain > best) {
                        best = gain;
                        toX = x + dx;
                        toY = y + dy;
                    }
                }
            }
        }
        x = toX;
        y = toY;
        return best > 0.0F;
    }

    struct Cell {
        int x, y;
    };

    float Gain(const Gradient& g, const Cell& from, const Cell& move, float way) const {
        const int x = from.x + move.x;
        const int y = from.y + move.y;
        if (x < 2 || y < 2 || x + 2 >= size_.width || y + 2 >= size_.height ||
            ridge_[At(x, y)] == 0) {
            return 0.0F;
        }
        const Gradient& there = gradients_[At(x, y)];
        const float turn = (g.x * there.x + g.y * there.y) / (g.size * there.size);
        const auto dx = static_cast<float>(move.x);
        const auto dy = static_cast<float>(move.y);
        const float ahead = way * (g.x * dy - g.y * dx) / (g.size * std::sqrt(dx * dx + dy * dy));
        return turn > alike && ahead > 0.5F ? ahead * turn : 0.0F;
    }

    PixelSize size_;
    std::vector<Gradient> gradients_;
    std::vector<std::uint8_t> ridge_;
};

}  // namespace

std::vector<std::vector<EdgePoint>> EdgeChains(const LevelMap& levels, std::size_t leastPoints) {
    if (levels.size.width < 8 || levels.size.height < 8) {
        return {};
    }
    return Chaining(levels).Chains(leastPoints);
}

}  // namespace varnel
