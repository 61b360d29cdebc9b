// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The places of the result's pixels beside what the conversions themselves draw.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <string_view>

#include "remap/analysis/projection_metrics.h"
#include "remap/image/sampling.h"
#include "remap/render/reference/render.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::operator==;

struct Case {
    std::string_view name;
    Projection projection;
    ImageRecord record;
    PixelSize size{241, 161};
};

template <class Change>
Case Of(const char* name, Projection projection, PixelSize size, const Change& change) {
    ImageRecord record = testing::FisheyeRecord();
    record.OfsetX = -30.3F;
    record.OfsetY = 25.0F;
    record.Landscape = size.width >= size.height;
    change(record);
    return {name, projection, record, size};
}

void Turn(ImageRecord& r, float x, float y, float z) {
    r.RotateX = x;
    r.RotateY = y;
    r.RotateZ = z;
}

std::vector<Case> Cases() {
    const auto as = [](ImageRecord&) {};
    return {
        Of("Straight", Projection::Rectilinear, {241, 161}, as),
        Of("Upright", Projection::Rectilinear, {160, 240},
           [](ImageRecord& r) { r.EffectRectilinear = 60.0F; }),
        Of("Turned", Projection::Rectilinear, {240, 161},
           [](ImageRecord& r) {
               Turn(r, -12.0F, 20.0F, -35.0F);
               r.OutputAOV = 150.0F;
           }),
        // 2.5 % of 100 columns are 2.5: every other column is nobody's
        Of("HalfPixels", Projection::Rectilinear, {100, 80},
           [](ImageRecord& r) {
               r.TranslateX = 2.5F;
               r.TranslateY = -7.0F;
           }),
        Of("Equidistant", Projection::Equidistance, {240, 160}, as),
        Of("Varnel", Projection::Varnel, {241, 160}, as),
        Of("VarnelHalf", Projection::Varnel, {160, 241},
           [](ImageRecord& r) { r.EffectVarnel = 55.0F; }),
        Of("Horizon", Projection::Horizon, {240, 240}, as),
        Of("HorizonWide", Projection::Horizon, {241, 161}, as),
    };
}

void PrintTo(const Case& given, std::ostream* out) {
    *out << given.name;
}

class PlacesOf : public ::testing::TestWithParam<Case> {};

// Bytes of a noisy picture read at the places instead of drawn; positions moved by a shift.
std::pair<int, int> DifferentAndAll(const Case& given, const Bitmap* source, const Bitmap* drawn,
                                    double shift) {
    const InverseMapping places(given.projection, given.record, given.size);
    const bool alongRows =
        given.projection == Projection::Varnel || given.projection == Projection::Horizon;
    std::pair<int, int> count{0, 0};
    for (int row = 0; row < given.size.height; ++row) {
        for (int column = 0; column < given.size.width; ++column) {
            PixelLevels expected = noLight;
            if (const auto place = places.ReadAt(column, row)) {
                expected = alongRows ? SampleLinearX(source, place->x + shift, place->y)
                                     : SampleBilinear(source, place->x + shift, place->y);
                EXPECT_EQ(places.At(column, row).has_value(), places.InPicture(*place));
            } else if (places.Untouched(column, row)) {
                expected = GetLevels(source, column, row);
            }
            count.first += expected == GetLevels(drawn, column, row) ? 0 : 1;
            ++count.second;
        }
    }
    return count;
}

TEST_P(PlacesOf, ReadingThereGivesTheConversionByteForByte) {
    const Case& given = GetParam();
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = testing::Noise(given.size);
    SilentProgress progress;
    RenderContext context{bitmaps};
    reference::Render(given.projection, given.record, SizeKind::Large, progress, context);
    const Bitmap* const source = bitmaps.FullSourceBitmap.get();
    const Bitmap* const drawn = bitmaps.ResultBitmap.get();
    EXPECT_EQ(DifferentAndAll(given, source, drawn, 0.0).first, 0);
    // A thousandth of a pixel would show.
    const auto [different, all] = DifferentAndAll(given, source, drawn, 0.001);
    EXPECT_GT(different, all / 20);
}

// The photo's pixels whose middles are met when the result is walked over at ten times the size.
double CountedShare(const Case& given, PixelSize small) {
    constexpr int times = 10;
    const PixelSize large{small.width * times, small.height * times};
    const InverseMapping places(given.projection, given.record, large);
    const auto index = [&](int x, int y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(small.width) +
               static_cast<std::size_t>(x);
    };
    std::vector<bool> met(index(0, small.height));
    for (const int row : places.Rows()) {
        for (const int column : places.Columns()) {
            const auto place = places.At(column, row);
            if (!place) {
                continue;
            }
            const double x = (place->x + 0.5) / times - 0.5;
            const double y = (place->y + 0.5) / times - 0.5;
            if (std::hypot(x - std::round(x), y - std::round(y)) < 0.15) {
                met[index(static_cast<int>(std::round(x)), static_cast<int>(std::round(y)))] = true;
            }
        }
    }
    int kept = 0;
    int all = 0;
    for (int y = 0; y < small.height; ++y) {
        for (int x = 0; x < small.width; ++x) {
            const SourcePosition middle{(x + 0.5) * times - 0.5, (y + 0.5) * times - 0.5};
            all += places.InCircle(middle) ? 1 : 0;
            kept += places.InCircle(middle) && met[index(x, y)] ? 1 : 0;
        }
    }
    return static_cast<double>(kept) / all;
}

TEST_P(PlacesOf, TheKeptShareIsThatOfTheCountedPixels) {
    const Case& given = GetParam();
    const PixelSize large{given.size.width * 10, given.size.height * 10};
    const InverseMapping places(given.projection, given.record, large);
    const double share = MeasureCoverage(MappingMesh(places)).share;
    EXPECT_NEAR(share, CountedShare(given, given.size), 0.005);
}

TEST_P(PlacesOf, TheLargestRectangleIsCleanAndAsLargeAsAnyThatIsFoundByTrying) {
    const Case& given = GetParam();
    const InverseMapping places(given.projection, given.record, given.size);
    const CleanCrop found = FindCleanCrop(MappingMesh(places));
    const std::vector<int>& columns = places.Columns();
    const std::vector<int>& rows = places.Rows();
    const auto clean = [&](int column, int row) {
        const auto place = places.At(column, row);
        return place && places.InCircle(*place) && place->x >= 0.0 && place->y >= 0.0 &&
               place->x <= given.size.width - 1 && place->y <= given.size.height - 1;
    };
    for (const int row : rows) {
        for (const int column : columns) {
            if (row >= found.bottom && row < found.bottom + found.height && column >= found.left &&
                column < found.left + found.width) {
                ASSERT_TRUE(clean(column, row)) << column << ", " << row;
            }
        }
    }
    // Every rectangle whose rows run from a to b, by how far its columns are clean all the way.
    std::int64_t most = 0;
    for (std::size_t a = 0; a < rows.size(); ++a) {
        std::vector<bool> free(columns.size(), true);
        for (std::size_t b = a; b < rows.size(); ++b) {
            std::int64_t run = 0;
            for (std::size_t i = 0; i < columns.size(); ++i) {
                free[i] = free[i] && clean(columns[i], rows[b]);
                run = free[i] ? run + 1 : 0;
                const std::int64_t high = rows[b] - rows[a] + 1;
                if (run > 0) {
                    const int left = columns[i + 1 - static_cast<std::size_t>(run)];
                    most = std::max(most, high * (columns[i] - left + 1));
                }
            }
        }
    }
    EXPECT_GE(static_cast<double>(found.width) * found.height, 0.98 * static_cast<double>(most));
}

TEST_P(PlacesOf, BorderPointsAreThoseThatTheOutermostPixelsRead) {
    const Case& given = GetParam();
    const InverseMapping places(given.projection, given.record, given.size);
    std::set<std::pair<double, double>> rim;
    for (const int row : places.Rows()) {
        for (const int column : places.Columns()) {
            const bool outer = std::min(row, given.size.height - 1 - row) <= 1 ||
                               std::min(column, given.size.width - 1 - column) <= 1;
            if (const auto place = places.At(column, row); place && outer) {
                rim.insert({place->x, place->y});
            }
        }
    }
    const std::vector<SourceCurve> curves = BorderCurves(places, 20);
    EXPECT_FALSE(curves.empty());
    for (const SourceCurve& curve : curves) {
        EXPECT_GE(curve.size(), 2U);
        for (const SourcePosition& point : curve) {
            EXPECT_TRUE(rim.contains({point.x, point.y})) << point.x << ", " << point.y;
        }
    }
}

// A border that is black in places, or folds over, is no outline.
TEST(CoverageOutline, EnclosesWhatIsKept) {
    const std::vector<Case> cases = Cases();
    const auto outlineOf = [&](std::string_view name) {
        const Case& given = *std::ranges::find(cases, name, &Case::name);
        const InverseMapping places(given.projection, given.record,
                                    {given.size.width * 10, given.size.height * 10});
        return CoverageOutline(places, MeasureCoverage(MappingMesh(places)));
    };
    const std::optional<SourceCurve> straight = outlineOf("Straight");
    ASSERT_TRUE(straight);
    double area = 0.0;
    for (std::size_t n = 0; n + 1 < straight->size(); ++n) {
        const SourcePosition& a = (*straight)[n];
        const SourcePosition& b = (*straight)[n + 1];
        area += (a.x * b.y - b.x * a.y) / 2.0;
    }
    const InverseMapping places(cases[0].projection, cases[0].record, {2410, 1610});
    int photo = 0;  // pixels of the circle that the photo has
    for (int y = 0; y < 1610; ++y) {
        for (int x = 0; x < 2410; ++x) {
            photo += places.InCircle({static_cast<double>(x), static_cast<double>(y)}) ? 1 : 0;
        }
    }
    EXPECT_NEAR(area / photo, CountedShare(cases[0], cases[0].size), 0.005);
    EXPECT_FALSE(outlineOf("Turned"));
    EXPECT_FALSE(outlineOf("Horizon"));
}

INSTANTIATE_TEST_SUITE_P(Projections, PlacesOf, ::testing::ValuesIn(Cases()),
                         [](const auto& testInfo) { return std::string(testInfo.param.name); });

// Equisolid, r = 16 sin(theta / 2) mm on 1000 pixels for 36 mm, 90 degrees across: in the middle
// 16 / 2 x 1000 / 36 pixels of the photo for a radian, 500 of the result.
TEST(MeasureResult, MiddleAndCornersOfAStraightView) {
    ImageRecord record = testing::FisheyeRecord();
    record.Ratio = 50.0F;  // the circle is larger than the frame
    const InverseMapping places(Projection::Rectilinear, record, {1000, 667});
    const MappingMesh grid(places);
    const ProjectionMetrics numbers = MeasureResult(grid, MeasureCoverage(grid));
    ASSERT_TRUE(numbers.centreResolution && numbers.cornerStretch);
    EXPECT_NEAR(*numbers.centreResolution, 222.2222 / 500.0 * EffectRatio(90, 100, 0.5F), 1e-4);
    // The pixel beside the corner, (499, 332) from the middle: tan theta = hypot(499, 332) / 500,
    // along the radius the photo moves by 222.22 cos(theta / 2) cos(theta)^2 / 500 pixels for each
    // of the result.
    const double theta = std::atan(std::hypot(499.0, 332.0) / 500.0);
    const double radial = 222.2222 * std::cos(theta / 2.0) * std::pow(std::cos(theta), 2.0) / 500.0;
    EXPECT_NEAR(*numbers.cornerStretch, 1.0 / radial, 0.001);
    EXPECT_EQ(numbers.rectangle.width, 1000);
    EXPECT_EQ(numbers.rectangle.height, 667);
}

// A circle of 400 pixels around (500, 500), unrolled onto 1000 columns: half way up to the rim a
// pixel of the result is 200 x 2 pi / 1000 of the photo's across and the row divisor, 2, along.
TEST(MeasureResult, AnUnrolledViewIsMeasuredHalfWayToTheRim) {
    const InverseMapping places(Projection::Horizon, testing::FisheyeRecord(), {1000, 1000});
    const MappingMesh grid(places);
    const ProjectionMetrics numbers = MeasureResult(grid, MeasureCoverage(grid));
    EXPECT_TRUE(numbers.halfWay);
    ASSERT_TRUE(numbers.centreResolution);
    EXPECT_NEAR(*numbers.centreResolution, std::sqrt(200.0 * 2.0 * std::numbers::pi / 1000.0 * 2.0),
                0.02);
}

TEST(MapMagnification, ClassesAndBlackCells) {
    EXPECT_EQ(ClassOf(0.0), Magnified::Nothing);
    EXPECT_EQ(ClassOf(0.9), Magnified::Shrunk);
    EXPECT_EQ(ClassOf(1.0 / 1.09), Magnified::AboutSame);
    EXPECT_EQ(ClassOf(1.09), Magnified::AboutSame);
    EXPECT_EQ(ClassOf(1.11), Magnified::Stretched);
    // The circle has a radius of 400 of 1000 pixels: Varnel keeps its rows and draws out the ends.
    const InverseMapping places(Projection::Varnel, testing::FisheyeRecord(), {1000, 1000});
    const MappingMesh grid(places);
    const MagnificationMap map = MapMagnification(grid);
    ASSERT_GT(map.columns, 100);
    EXPECT_EQ(ClassOf(static_cast<double>(map.At(map.columns / 2, map.rows / 2))),
              Magnified::AboutSame);
    EXPECT_EQ(ClassOf(static_cast<double>(map.At(map.columns / 2, 1))), Magnified::Stretched);
    EXPECT_EQ(ClassOf(static_cast<double>(map.At(1, map.rows / 2))), Magnified::Nothing);
}

}  // namespace
}  // namespace varnel
