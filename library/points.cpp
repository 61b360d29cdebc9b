// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Points of photos and results and directions, one into the other.

#include <cmath>
#include <limits>
#include <optional>

#include "library/guard.h"
#include "library/lens.h"
#include "library/point_search.h"
#include "remap/analysis/point_mapping.h"
#include "state/adjustments/measured_lens.h"

namespace varnel {

namespace {

constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

// Between rows from the top, as the interface counts, and from the bottom.
SourcePosition Flipped(double x, double y, int height) {
    return {x, height - 1 - y};
}

void Put(const std::optional<SourcePosition>& place, int height, double* out) {
    out[0] = place ? place->x : nowhere;
    out[1] = place ? height - 1 - place->y : nowhere;
}

struct Points {
    const double* in = nullptr;
    size_t count = 0;
    double* out = nullptr;

    void Check() const {
        if (count > 0) {
            Given(in, "points");
            Given(out, "out");
        }
    }
};

void ResultToSource(const varnel_lens& lens, const varnel_view& view, PixelSize photo,
                    const Points& points) {
    points.Check();
    const ImageRecord image = RecordOf(lens, photo.width, photo.height, &view);
    const int height = ResultSizeOf(image, photo).height;
    const PointMapping mapping(ProjectionOf(view), image, photo);
    for (size_t n = 0; n < 2 * points.count; n += 2) {
        Put(mapping.At(Flipped(points.in[n], points.in[n + 1], height)), photo.height,
            points.out + n);
    }
}

void SourceToResult(const varnel_lens& lens, const varnel_view& view, PixelSize photo,
                    const Points& points) {
    points.Check();
    const ImageRecord image = RecordOf(lens, photo.width, photo.height, &view);
    const PixelSize size = ResultSizeOf(image, photo);
    const PointMapping mapping(ProjectionOf(view), image, photo);
    const PointSearch search([&](const SourcePosition& at) { return mapping.At(at); }, size);
    for (size_t n = 0; n < 2 * points.count; n += 2) {
        Put(search.Find(Flipped(points.in[n], points.in[n + 1], photo.height)), size.height,
            points.out + n);
    }
}

LensView ViewOn(const varnel_lens& lens, PixelSize photo) {
    auto known = KnownLensOf(RecordOf(lens, photo.width, photo.height));
    if (!known) {
        throw CallError(VARNEL_IMPOSSIBLE, QStringLiteral("the lens has no curve"));
    }
    return std::move(known->view);
}

void SourceToDirection(const varnel_lens& lens, PixelSize photo, const Points& points) {
    points.Check();
    const LensView view = ViewOn(lens, photo);
    for (size_t n = 0; n < points.count; ++n) {
        // Its points count from the lower left corner.
        const Ray ray =
            view.RayAt({points.in[2 * n] + 0.5, photo.height - 0.5 - points.in[2 * n + 1]});
        const bool known = std::isfinite(points.in[2 * n]) && std::isfinite(points.in[2 * n + 1]);
        points.out[3 * n] = known ? ray.x : nowhere;
        points.out[3 * n + 1] = known ? ray.y : nowhere;
        points.out[3 * n + 2] = known ? ray.z : nowhere;
    }
}

void DirectionToSource(const varnel_lens& lens, PixelSize photo, const Points& points) {
    points.Check();
    const LensView view = ViewOn(lens, photo);
    for (size_t n = 0; n < points.count; ++n) {
        const double x = points.in[3 * n];
        const double y = points.in[3 * n + 1];
        const double z = points.in[3 * n + 2];
        const double length = std::hypot(x, y, z);
        const bool known = std::isfinite(length) && length > 0.0;
        const EdgePoint place =
            known ? view.PlaceOf({x / length, y / length, z / length}) : EdgePoint();
        points.out[2 * n] = known ? place.x - 0.5 : nowhere;
        points.out[2 * n + 1] = known ? photo.height - 0.5 - place.y : nowhere;
    }
}

}  // namespace

}  // namespace varnel

varnel_status varnel_result_to_source(const varnel_lens* lens, const varnel_view* view,
                                      int32_t width, int32_t height, const double* points,
                                      size_t count, double* out, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::ResultToSource(*varnel::Given(lens, "lens"), *varnel::Given(view, "view"),
                               {width, height}, {points, count, out});
    });
}

varnel_status varnel_source_to_result(const varnel_lens* lens, const varnel_view* view,
                                      int32_t width, int32_t height, const double* points,
                                      size_t count, double* out, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::SourceToResult(*varnel::Given(lens, "lens"), *varnel::Given(view, "view"),
                               {width, height}, {points, count, out});
    });
}

varnel_status varnel_source_to_direction(const varnel_lens* lens, int32_t width, int32_t height,
                                         const double* points, size_t count, double* directions,
                                         varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::SourceToDirection(*varnel::Given(lens, "lens"), {width, height},
                                  {points, count, directions});
    });
}

varnel_status varnel_direction_to_source(const varnel_lens* lens, int32_t width, int32_t height,
                                         const double* directions, size_t count, double* points,
                                         varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::DirectionToSource(*varnel::Given(lens, "lens"), {width, height},
                                  {directions, count, points});
    });
}
