// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections of the sphere: single directions worked out by hand, and every position led back
// by the projection's own formula.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/sphere_records.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr PixelSize photo{240, 160};
constexpr double pixelsPerMillimetre = 240.0 / 36.0;

using Change = std::function<void(ImageRecord&)>;

ImageRecord RecordOf(float outputAov, const Change& change = {}) {
    ImageRecord record = testing::FisheyeRecord();
    record.Ratio = 36.0F / 28.0F * 100.0F;  // a circle of 14 mm: 122 degrees from the axis
    record.OutputAOV = outputAov;
    if (change) {
        change(record);
    }
    return record;
}

std::unique_ptr<ProjectionMap> MapOf(Projection projection, const ImageRecord& record,
                                     PixelSize size = photo, const OutputWish& wish = {}) {
    return InfoOf(projection).Make(record, FramesOf(record, size, wish));
}

// Where the equisolid 16 mm lens shows a direction, by its azimuth (0 to the right, 90 up) and the
// angle from the axis in degrees.
SourceOffset OnPhoto(double azimuth, double angle) {
    const double radius = 16.0 * std::sin(angle * degree / 2.0) * pixelsPerMillimetre;
    return {radius * std::cos(azimuth * degree), radius * std::sin(azimuth * degree)};
}

struct HandCase {
    const char* name;
    Projection projection;
    float outputAov;
    int x, y;  // from the middle
    double azimuth, angle;
    Change change = {};
};

class SphereByHand : public ::testing::TestWithParam<HandCase> {};

TEST_P(SphereByHand, APositionShowsItsDirection) {
    const HandCase& c = GetParam();
    const SourceOffset found =
        MapOf(c.projection, RecordOf(c.outputAov, c.change))->OffsetAt(c.x, c.y);
    const SourceOffset expected = OnPhoto(c.azimuth, c.angle);
    EXPECT_NEAR(found.u, expected.u, 1e-4);
    EXPECT_NEAR(found.v, expected.v, 1e-4);
}

// The half width is 120 pixels. atan(1/2) = 26.56505, atan(1/4) = 14.03624, acos(-1/4) = 104.47751
// degrees.
INSTANTIATE_TEST_SUITE_P(
    Directions, SphereByHand,
    ::testing::Values(
        // 120 pixels are 2 tan 45 = 2 units, 60 are 1 = 2 tan 26.565
        HandCase{"Stereographic", Projection::Stereographic, 180.0F, 60, 0, 0.0, 53.13010},
        HandCase{"StereographicUp", Projection::Stereographic, 180.0F, 0, 60, 90.0, 53.13010},
        // with d = 1 the columns are those of the stereographic one
        HandCase{"Panini", Projection::Panini, 180.0F, -60, 0, 180.0, 53.13010},
        // on the axis S = 1: 60 pixels are 1 = tan 45
        HandCase{"PaniniUp", Projection::Panini, 180.0F, 0, 60, 90.0, 45.0},
        // 60 pixels are 45 degrees, 0.785398 = tan 38.14603
        HandCase{"Cylindrical", Projection::Cylindrical, 180.0F, 60, 0, 0.0, 45.0},
        HandCase{"CylindricalUp", Projection::Cylindrical, 180.0F, 0, 60, 90.0, 38.14603},
        // 2 atan(e^0.785398) - 90 = 40.97990
        HandCase{"MercatorUp", Projection::Mercator, 180.0F, 0, 60, 90.0, 40.97990},
        HandCase{"Equirectangular", Projection::Equirectangular, 180.0F, -120, 0, 180.0, 90.0},
        HandCase{"EquirectangularDown", Projection::Equirectangular, 360.0F, 0, -60, 270.0, 90.0},
        HandCase{"FisheyeEquidistant", Projection::FisheyeEquidistant, 200.0F, 84, 63, 36.86990,
                 87.5},
        // 2 sin 50 = 1.532089 units; 60 pixels 0.766044 = 2 sin 22.52102
        HandCase{"FisheyeEquisolid", Projection::FisheyeEquisolid, 200.0F, 60, 0, 0.0, 45.04203},
        HandCase{"Orthographic", Projection::Orthographic, 180.0F, 0, 60, 90.0, 30.0},
        // looking down, the middle is 90 degrees below the axis and its upper side in front
        HandCase{"LittlePlanet", Projection::LittlePlanet, 180.0F, 0, 0, 270.0, 90.0},
        HandCase{"LittlePlanetFront", Projection::LittlePlanet, 180.0F, 0, 60, 270.0, 36.86990},
        HandCase{"LittlePlanetRight", Projection::LittlePlanet, 180.0F, 60, 0, 323.13010, 90.0},
        HandCase{"Tunnel", Projection::LittlePlanet, 180.0F, 0, 0, 90.0, 90.0,
                 [](ImageRecord& r) { r.Tunnel = true; }},
        HandCase{"CameraDown", Projection::LittlePlanet, 180.0F, 60, 0, 0.0, 53.13010,
                 [](ImageRecord& r) { r.Pose = CameraPose::Down; }},
        HandCase{"CameraUpTunnel", Projection::LittlePlanet, 180.0F, 0, 60, 90.0, 53.13010,
                 [](ImageRecord& r) { r.Pose = CameraPose::Up, r.Tunnel = true; }},
        // the left border is up, clockwise; the lowest row is the axis, the middle one at 45
        HandCase{"UnrolledLeft", Projection::Unrolled, 360.0F, -120, 0, 90.0, 45.0},
        HandCase{"UnrolledQuarter", Projection::Unrolled, 360.0F, -60, 0, 0.0, 45.0},
        HandCase{"UnrolledAxis", Projection::Unrolled, 360.0F, 30, -80, 0.0, 0.0},
        HandCase{"UnrolledOtherWay", Projection::Unrolled, 90.0F, 0, -40, 195.0, 70.0,
                 [](ImageRecord& r) {
                     r.UnrollStart = -60.0F, r.UnrollDirection = -1;
                     r.UnrollFrom = 80.0F, r.UnrollTo = 40.0F;
                 }},
        // panned right and tilted up: the middle shows what is there
        HandCase{"TurnedRight", Projection::Cylindrical, 90.0F, 0, 0, 0.0, 70.0,
                 [](ImageRecord& r) { r.RotateY = 70.0F; }},
        HandCase{"TurnedUp", Projection::Mercator, 90.0F, 0, 0, 90.0, 100.0,
                 [](ImageRecord& r) { r.RotateX = -100.0F; }}),
    [](const auto& c) { return c.param.name; });

// ---- the formulas ----

struct PlanePlace {
    double x = 0.0, y = 0.0;
};

PlanePlace AroundAxis(const Ray& ray, double radius) {
    const double aside = std::hypot(ray.x, ray.y);
    return aside == 0.0 ? PlanePlace{} : PlanePlace{ray.x * radius / aside, ray.y * radius / aside};
}

struct Angles {
    double phi, lambda, theta;
    explicit Angles(const Ray& ray)
        : phi(std::atan2(ray.x, ray.z)),
          lambda(std::atan2(ray.y, std::hypot(ray.x, ray.z))),
          theta(std::atan2(std::hypot(ray.x, ray.y), ray.z)) {}
};

PlanePlace ByFormula(Projection projection, const ImageRecord& record, const Ray& ray) {
    const Angles a(ray);
    const auto d = static_cast<double>(record.PaniniD);
    const double stretch = (d + 1.0) / (d + std::cos(a.phi));
    switch (projection) {
        case Projection::Stereographic:
        case Projection::LittlePlanet:
            return AroundAxis(ray, 2.0 * std::tan(a.theta / 2.0));
        case Projection::Panini:
            return {stretch * std::sin(a.phi), stretch * std::tan(a.lambda)};
        case Projection::Cylindrical:
            return {a.phi, std::tan(a.lambda)};
        case Projection::Mercator:
            return {a.phi, std::log(std::tan(std::numbers::pi / 4.0 + a.lambda / 2.0))};
        case Projection::Equirectangular:
            return {a.phi, a.lambda};
        case Projection::FisheyeEquidistant:
            return AroundAxis(ray, a.theta);
        case Projection::FisheyeEquisolid:
            return AroundAxis(ray, 2.0 * std::sin(a.theta / 2.0));
        default:
            return AroundAxis(ray, std::sin(a.theta));
    }
}

void Swing(double& from, double& to, double degrees) {
    const double was = from;
    from = std::cos(degrees * degree) * was - std::sin(degrees * degree) * to;
    to = std::sin(degrees * degree) * was + std::cos(degrees * degree) * to;
}

// From the photo's axes back to those of a camera that was panned right, then tilted down, then
// rolled so that its right side rises.
Ray TurnedBack(Ray ray, const ImageRecord& record, double tilt) {
    const double effect = static_cast<double>(record.EffectRectilinear) / 100.0;
    Swing(ray.x, ray.y, -static_cast<double>(record.RotateZ));
    Swing(ray.z, ray.y, static_cast<double>(record.RotateX) * effect);
    Swing(ray.z, ray.x, -static_cast<double>(record.RotateY) * effect);
    Swing(ray.z, ray.y, tilt);
    return ray;
}

struct FormulaCase {
    std::string name;
    Projection projection;
    float outputAov;
    Change change = {};
    double tilt = 0.0;
};

// The largest way in pixels of the result between a position and where the formula puts what it
// shows.
double LargestError(const FormulaCase& c, const PixelSize result) {
    const ImageRecord record = RecordOf(c.outputAov, c.change);
    const auto wish = [&](const SourceFrame& source) { return Resized(source, result); };
    const auto map = MapOf(c.projection, record, photo, wish);
    const double effect = static_cast<double>(record.EffectRectilinear) / 100.0;
    const double half = static_cast<double>(c.outputAov) * effect * degree / 2.0;
    const double unit = ByFormula(c.projection, record, {std::sin(half), 0.0, std::cos(half)}).x /
                        (result.width / 2);
    // 16 mm, and what a partial effect makes of it
    const double scale = 16.0 * pixelsPerMillimetre *
                         std::sin(static_cast<double>(c.outputAov) * degree / 4.0) /
                         std::sin(half / 2.0);
    double most = 0.0;
    int shown = 0;
    for (int x = -result.width / 2; x < result.width / 2; x += 3) {
        for (int y = -result.height / 2; y < result.height / 2; y += 3) {
            const SourceOffset at = map->OffsetAt(x, y);
            if (!std::isfinite(at.u)) {
                continue;
            }
            ++shown;
            const double radius = std::hypot(at.u, at.v);
            const double theta = 2.0 * std::asin(radius / scale);
            const double aside = radius > 0.0 ? std::sin(theta) / radius : 0.0;
            const Ray ray =
                TurnedBack({at.u * aside, at.v * aside, std::cos(theta)}, record, c.tilt);
            const PlanePlace place = ByFormula(c.projection, record, ray);
            double across = std::fabs(place.x / unit - x);
            if (c.outputAov == 360.0F) {  // the seam is on both sides
                across = std::min(across, std::fabs(across - result.width));
            }
            most = std::max({most, across, std::fabs(place.y / unit - y)});
        }
    }
    EXPECT_GT(shown, 15);
    return most;
}

class SphereFormula : public ::testing::TestWithParam<FormulaCase> {};

TEST_P(SphereFormula, LeadsBackToThePosition) {
    for (const PixelSize result : {PixelSize{240, 160}, PixelSize{600, 400}, PixelSize{96, 200}}) {
        EXPECT_LT(LargestError(GetParam(), result), 0.005);
    }
}

std::vector<FormulaCase> FormulaCases() {
    using enum Projection;
    const Change turned = [](ImageRecord& r) {
        r.RotateX = -12.0F, r.RotateY = 130.0F, r.RotateZ = -35.0F;
    };
    std::vector<FormulaCase> cases;
    const std::pair<Projection, float> widest[] = {
        {Stereographic, 340.0F},    {Panini, 320.0F},          {Cylindrical, 360.0F},
        {Mercator, 360.0F},         {Equirectangular, 360.0F}, {FisheyeEquidistant, 360.0F},
        {FisheyeEquisolid, 350.0F}, {Orthographic, 178.0F}};
    for (const auto& [projection, angle] : widest) {
        const std::string name = ToText(projection).toStdString();
        cases.push_back({name, projection, 100.0F});
        cases.push_back({name + "Turned", projection, 140.0F, turned});
        cases.push_back({name + "Wide", projection, angle});
    }
    cases.push_back({"LittlePlanet", LittlePlanet, 320.0F, {}, 90.0});
    cases.push_back({"LittlePlanetTurned", LittlePlanet, 200.0F, turned, 90.0});
    cases.push_back({"PaniniFlat", Panini, 120.0F, [](ImageRecord& r) { r.PaniniD = 0.0F; }});
    cases.push_back({"PaniniHalf", Panini, 200.0F, [](ImageRecord& r) { r.PaniniD = 0.5F; }});
    const Change partial = [](ImageRecord& r) { r.EffectRectilinear = 40.0F, r.RotateY = 20.0F; };
    cases.push_back({"StereographicPartly", Stereographic, 160.0F, partial});
    cases.push_back({"PaniniPartly", Panini, 160.0F, partial});
    return cases;
}

INSTANTIATE_TEST_SUITE_P(Formulas, SphereFormula, ::testing::ValuesIn(FormulaCases()),
                         [](const auto& c) { return c.param.name; });

// ---- edges and limits ----

TEST(SphereMap, ShowsNothingBeyondTheCircleAndTheLens) {
    const auto shown = [](const ImageRecord& record, double angle) {
        // one degree is half a pixel: 120 pixels for 240 degrees
        const auto map = MapOf(Projection::FisheyeEquidistant, record);
        return std::isfinite(map->OffsetAt(static_cast<int>(std::lround(angle / 1.5)), 0).u);
    };
    const ImageRecord circle = RecordOf(360.0F);  // asin(14 / 16) * 2 = 122.1 degrees
    EXPECT_TRUE(shown(circle, 121.5));
    EXPECT_FALSE(shown(circle, 123.0));
    const ImageRecord orthographic = RecordOf(360.0F, [](ImageRecord& r) {
        r.Ratio = 0.0F, r.LensMapFactor = 1.0F, r.LensMapScale = 11.0F;
    });
    EXPECT_TRUE(shown(orthographic, 90.0 - 1.5));
    EXPECT_FALSE(shown(orthographic, 90.0 + 1.5));
    const ImageRecord tangent = RecordOf(360.0F, [](ImageRecord& r) {
        r.Ratio = 0.0F, r.LensBrand = QStringLiteral("Samyang"), r.LensMapFactor = 1.0F;
    });
    EXPECT_TRUE(shown(tangent, 45.0));   // 16 mm
    EXPECT_FALSE(shown(tangent, 60.0));  // 27.7 mm are off the sensor's corner
    EXPECT_FALSE(shown(tangent, 135.0));
    const ImageRecord sampled = RecordOf(360.0F, [](ImageRecord& r) {
        r.Ratio = 0.0F, r.Lens = std::make_shared<const SampledLens>(testing::SampledLensOf(r));
    });
    const double field = sampled.Lens->knots.back().angle / degree;
    EXPECT_TRUE(shown(sampled, std::min(field - 1.5, 120.0)));
    EXPECT_FALSE(shown(sampled, field + 1.5));
}

TEST(SphereMap, EndsWhereItsPlaneEnds) {
    const auto shows = [](Projection projection, int x, int y) {
        const auto map = MapOf(projection, RecordOf(360.0F));
        return std::isfinite(map->OffsetAt(x, y).u);
    };
    EXPECT_TRUE(shows(Projection::Equirectangular, 0, 60));  // a pole
    EXPECT_FALSE(shows(Projection::Equirectangular, 0, 61));
    EXPECT_TRUE(shows(Projection::Orthographic, 84, 84));
    EXPECT_FALSE(shows(Projection::Orthographic, 86, 86));
}

TEST(SphereMap, SqueezedPaniniKeepsLinesAcrossStraight) {
    const auto map = MapOf(Projection::Panini,
                           RecordOf(140.0F, [](ImageRecord& r) { r.PaniniSqueeze = 100.0F; }));
    // The wall in front, x and y over z, is as high all along a row.
    double least = 1e9;
    double most = 0.0;
    for (int x = -118; x <= 118; ++x) {
        const SourceOffset at = map->OffsetAt(x, 40);
        const double radius = std::hypot(at.u, at.v);
        const double theta = 2.0 * std::asin(radius / 16.0 / pixelsPerMillimetre);
        const double height = at.v / radius * std::tan(theta);
        least = std::min(least, height);
        most = std::max(most, height);
    }
    EXPECT_GT(least, 0.1);
    EXPECT_LT(most - least, 1e-6);
}

TEST(SphereMap, AnglesBeyondTheLimitAreCutAndTold) {
    const auto cut = [](Projection projection, float angle, float d = 1.0F) {
        ImageRecord record = RecordOf(angle);
        record.PaniniD = d;
        return CutAngleOf(projection, record);
    };
    EXPECT_EQ(cut(Projection::Stereographic, 340.0F), std::nullopt);
    EXPECT_EQ(cut(Projection::Stereographic, 341.0F), 340.0F);
    EXPECT_EQ(cut(Projection::Orthographic, 200.0F), 180.0F);
    EXPECT_EQ(cut(Projection::Panini, 330.0F), 320.0F);
    EXPECT_NEAR(cut(Projection::Panini, 330.0F, 0.0F).value(), 178.0, 1e-3);
    EXPECT_NEAR(cut(Projection::Panini, 330.0F, 0.5F).value(), 238.0, 1e-3);
    EXPECT_EQ(cut(Projection::Rectilinear, 400.0F), std::nullopt);
    const SourceOffset wide = MapOf(Projection::Orthographic, RecordOf(250.0F))->OffsetAt(50, 9);
    const SourceOffset cutTo = MapOf(Projection::Orthographic, RecordOf(180.0F))->OffsetAt(50, 9);
    EXPECT_EQ(wide.u, cutTo.u);
    EXPECT_THROW(MapOf(Projection::Mercator, RecordOf(0.0F)), RunTimeError);
    EXPECT_THROW(MapOf(Projection::Panini, RecordOf(-20.0F)), RunTimeError);
}

TEST(SphereMap, APartialEffectTendsToThePhotoItself) {
    const auto map = MapOf(Projection::Stereographic,
                           RecordOf(120.0F, [](ImageRecord& r) { r.EffectRectilinear = 0.1F; }));
    // half the width shows 60 degrees: 16 mm sin 30 = 8 mm
    const double edge = 8.0 * pixelsPerMillimetre;
    const SourceOffset at = map->OffsetAt(90, -60);
    EXPECT_NEAR(at.u, edge * 90 / 120, 0.01);
    EXPECT_NEAR(at.v, edge * -60 / 120, 0.01);
}

TEST(SphereMap, IsAsWideAsResultsGo) {
    const auto wish = [](const SourceFrame& source) { return Resized(source, {32767, 20}); };
    const auto map = MapOf(Projection::Equirectangular, RecordOf(360.0F), photo, wish);
    EXPECT_EQ(map->ProgressAt(map->LastLine()), map->ProgressMaximum());
    EXPECT_EQ(map->Lines().columns.size(), 32767U);
}

TEST(SphereMap, StandsInTheMiddleOfAWholeThatIsCut) {
    const ImageRecord record = RecordOf(150.0F);
    const auto map = MapOf(Projection::Mercator, record);
    const auto cut = MapOf(Projection::Mercator, record, photo, [](const SourceFrame& source) {
        OutputFrame frame = SameAs(source);
        frame.whole = frame.size;
        frame.corner = {50, 30};
        frame.size = {100, 60};
        return frame;
    });
    const auto placed = [](const ProjectionMap& its, int column, int row) {
        const ResultLines lines = its.Lines();
        return its.OffsetAt(lines.columns[static_cast<std::size_t>(column)].position,
                            lines.rows[static_cast<std::size_t>(row)].position);
    };
    EXPECT_EQ(placed(*cut, 7, 9).u, placed(*map, 57, 39).u);
    EXPECT_EQ(placed(*cut, 99, 59).v, placed(*map, 149, 89).v);
}

}  // namespace
}  // namespace varnel
