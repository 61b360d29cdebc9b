// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/edge_finder.h"

#include <algorithm>
#include <cmath>

#include "remap/analysis/straighten/edge_chains.h"
#include "remap/analysis/straighten/edge_tracer.h"
#include "remap/analysis/straighten/great_circle.h"
#include "remap/analysis/straighten/least_squares.h"
#include "remap/image/levels/byte_coding.h"

namespace varnel {

namespace {

constexpr int searchedSide = 1600;
constexpr std::size_t leastPoints = 25;  // of a piece, in pixels of the reduced picture
constexpr double leastSpan = 0.035;      // of an edge, of the photo's diagonal
constexpr double leastSeen = 0.45;       // of an edge's length
constexpr std::size_t mostPieces = 1500;

// The means of the green of blocks of pixels, rows from the bottom.
LevelMap ReducedGreen(const Bitmap& photo, int block) {
    const PixelSize full = photo.Size();
    LevelMap map{{full.width / block, full.height / block}, {}};
    const std::size_t width = static_cast<std::size_t>(map.size.width);
    const std::ptrdiff_t step = PixelStep(photo.Format());
    const ByteCoding coding(photo);
    map.values.assign(width * static_cast<std::size_t>(map.size.height), 0.0F);
    for (int y = 0; y < map.size.height * block; ++y) {
        const std::uint8_t* const line = photo.ScanLine(y).data();
        float* const row = &map.values[static_cast<std::size_t>(y / block) * width];
        for (std::size_t x = 0; x < width * static_cast<std::size_t>(block); ++x) {
            row[x / static_cast<std::size_t>(block)] +=
                static_cast<float>(
                    coding.ColourAt(line + static_cast<std::ptrdiff_t>(x) * step).green) /
                static_cast<float>(block * block);
        }
    }
    return map;
}

// Part of a chain, or several parts that lie on one great circle.
struct Piece {
    std::vector<EdgePoint> points;  // pixels of the photo
    Ray normal;
    double length = 0.0;  // pixels
};

// The root mean square of what a parabola over the points' way leaves of their residuals, pixels.
double WithoutBow(const std::vector<EdgePoint>& points, const std::vector<double>& residuals) {
    const double length = std::max(Distance(points.front(), points.back()), 1e-9);
    SquareMatrix sums(3);
    Numbers right(3, 0.0);
    double square = 0.0;
    for (std::size_t n = 0; n < points.size(); ++n) {
        const double share = Distance(points.front(), points[n]) / length - 0.5;
        const Numbers powers{1.0, share, share * share};
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column) {
                sums(row, column) += powers[row] * powers[column];
            }
            right[row] += powers[row] * residuals[n];
        }
        square += residuals[n] * residuals[n];
    }
    const Numbers bow = SolveByRoot(sums.Root(), right);
    for (std::size_t row = 0; row < 3; ++row) {
        square -= bow[row] * right[row];
    }
    return std::sqrt(std::max(square, 0.0) / static_cast<double>(points.size()));
}

class EdgeSearching {
  public:
    EdgeSearching(const Bitmap& photo, const LensView& lens, const EdgeSearch& search)
        : photo_(photo),
          lens_(lens),
          search_(search),
          // A photo that is thinner than a block would be reduced to nothing.
          block_(std::clamp(
              static_cast<int>(std::lround(std::max(photo.Size().width, photo.Size().height) /
                                           static_cast<double>(searchedSide))),
              1, std::min(photo.Size().width, photo.Size().height))) {}

    std::vector<EdgeTrace> Run() {
        for (std::vector<EdgePoint>& chain :
             EdgeChains(ReducedGreen(photo_, block_), leastPoints)) {
            for (EdgePoint& point : chain) {
                point = {point.x * block_, point.y * block_};
            }
            search_.stop();
            Cut(chain);
        }
        std::ranges::stable_sort(pieces_, std::greater(), &Piece::length);
        pieces_.resize(std::min(pieces_.size(), mostPieces));
        Merge();
        return Traced();
    }

  private:
    // Bent evenly as by a lens that is a little wrong, and smooth otherwise.
    bool IsEdge(const std::vector<EdgePoint>& points, const CircleFit& fit) const {
        const double length = Distance(points.front(), points.back());
        return fit.rms <= Tolerance(length) &&
               WithoutBow(points, fit.residuals) <= 0.4 * block_ + 0.05 * search_.slack * length;
    }

    double Tolerance(double length) const { return 0.5 * block_ + search_.slack * length; }

    bool Within(const EdgePoint& point) const {
        return search_.reach <= 0.0 || Distance(point, lens_.centre) < search_.reach;
    }

    // Where the chain leaves its great circle by most, until every part follows one.
    void Cut(std::vector<EdgePoint> chain) {
        std::vector<std::vector<EdgePoint>> waiting{std::move(chain)};
        while (!waiting.empty()) {
            std::vector<EdgePoint> part = std::move(waiting.back());
            waiting.pop_back();
            std::erase_if(part, [&](const EdgePoint& point) { return !Within(point); });
            if (part.size() < leastPoints) {
                continue;
            }
            const double length = Distance(part.front(), part.back());
            const CircleFit fit = FitGreatCircle(lens_, part);
            if (IsEdge(part, fit)) {
                pieces_.push_back({std::move(part), fit.normal, length});
                continue;
            }
            const auto middle = part.begin() + static_cast<std::ptrdiff_t>(Corner(part));
            waiting.emplace_back(part.begin(), middle);
            waiting.emplace_back(middle, part.end());
        }
    }

    // The point farthest from the great circle through both ends; never one of them.
    std::size_t Corner(const std::vector<EdgePoint>& part) const {
        const Ray normal = Cross(lens_.RayAt(part.front()), lens_.RayAt(part.back()));
        std::size_t corner = part.size() / 2;
        double most = 0.0;
        for (std::size_t n = 5; n + 5 < part.size(); ++n) {
            const double off = std::fabs(Dot(normal, lens_.RayAt(part[n])));
            corner = off > most ? n : corner;
            most = std::max(most, off);
        }
        return corner;
    }

    // Pixels from the plane, about.
    double OffPlane(const Ray& normal, const EdgePoint& point) const {
        return std::fabs(Dot(normal, lens_.RayAt(point))) /
               lens_.curve.At(Distance(point, lens_.centre)).slope;
    }

    void Merge() {
        for (std::size_t n = 0; n < pieces_.size(); ++n) {
            search_.stop();
            for (bool grown = true; grown && !pieces_[n].points.empty();) {
                grown = false;
                for (std::size_t other = n + 1; other < pieces_.size(); ++other) {
                    grown = TakeIn(pieces_[n], pieces_[other]) || grown;
                }
            }
        }
        std::erase_if(pieces_, [](const Piece& piece) { return piece.points.empty(); });
    }

    // The other one's points, if both are one edge.
    bool TakeIn(Piece& piece, Piece& other) const {
        if (other.points.empty() || !MayBelong(piece, other)) {
            return false;
        }
        std::vector<EdgePoint> both = InOrder(piece, other);
        const double length = Distance(both.front(), both.back());
        const CircleFit fit = FitGreatCircle(lens_, both);
        const double seen = static_cast<double>(both.size()) * block_;
        if (length < piece.length + 0.5 * other.length || seen < leastSeen * length ||
            !IsEdge(both, fit)) {
            return false;
        }
        piece = {std::move(both), fit.normal, length};
        other.points.clear();
        return true;
    }

    bool MayBelong(const Piece& piece, const Piece& other) const {
        const double tolerance = 4.0 * Tolerance(piece.length);
        double gap = 1e9;
        for (const EdgePoint& end : {piece.points.front(), piece.points.back()}) {
            gap = std::min(
                {gap, Distance(end, other.points.front()), Distance(end, other.points.back())});
        }
        // Where the brighter side changes, as along a chessboard, the ends all but touch.
        const double alike = Dot(piece.normal, other.normal);
        const double farthest = alike > 0.0 ? 0.5 * (piece.length + other.length) : 8.0 * block_;
        return std::fabs(alike) > 0.9 && gap < farthest &&
               OffPlane(piece.normal, other.points.front()) < tolerance &&
               OffPlane(piece.normal, other.points.back()) < tolerance;
    }

    // Around the plane's normal.
    std::vector<EdgePoint> InOrder(const Piece& piece, const Piece& other) const {
        std::vector<EdgePoint> both = piece.points;
        both.insert(both.end(), other.points.begin(), other.points.end());
        const Ray ahead = lens_.RayAt(piece.points[piece.points.size() / 2]);
        const Ray aside = Cross(piece.normal, ahead);
        std::ranges::stable_sort(both, {}, [&](const EdgePoint& point) {
            const Ray ray = lens_.RayAt(point);
            return std::atan2(Dot(ray, aside), Dot(ray, ahead));
        });
        return both;
    }

    std::vector<EdgeTrace> Traced() {
        std::ranges::stable_sort(pieces_, std::greater(), &Piece::length);
        const PixelSize size = photo_.Size();
        const double least = leastSpan * std::hypot(size.width, size.height);
        std::vector<EdgeTrace> edges;
        for (const Piece& piece : pieces_) {
            search_.stop();
            if (edges.size() == search_.most || piece.length < least) {
                break;
            }
            EdgeTrace edge{SnappedToEdge(photo_, piece.points, block_ + 1.0)};
            if (edge.points.size() >= leastPoints && !IsRim(piece) && Span(edge) >= least) {
                edges.push_back(std::move(edge));
            }
        }
        std::ranges::stable_sort(edges, std::greater(), Span);
        return edges;
    }

    // The rim of the image circle is near a great circle, too: around the axis.
    static bool IsRim(const Piece& piece) { return std::fabs(piece.normal.z) > 0.97; }

    const Bitmap& photo_;
    const LensView& lens_;
    const EdgeSearch search_;
    const int block_;
    std::vector<Piece> pieces_;
};

}  // namespace

std::vector<EdgeTrace> FindEdges(const Bitmap& photo, const LensView& lens,
                                 const EdgeSearch& search) {
    return EdgeSearching(photo, lens, search).Run();
}

}  // namespace varnel
