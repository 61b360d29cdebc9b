// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QtGlobal>

#include "remap/projection/maps/horizon_map.h"
#include "remap/projection/maps/varnel_map.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/sphere_records.h"

namespace varnel {

namespace {

constexpr std::array rectilinearControls{ControlUse{SliderId::AovOutput, true, std::nullopt, 120},
                                         ControlUse{SliderId::Effect},
                                         ControlUse{SliderId::X},
                                         ControlUse{SliderId::Y},
                                         ControlUse{SliderId::Z},
                                         ControlUse{SliderId::XTranslate},
                                         ControlUse{SliderId::YTranslate}};
constexpr std::array effectOnly{ControlUse{SliderId::Effect}};
constexpr std::array hiddenEffect{ControlUse{SliderId::Effect, false}};
constexpr std::array inputAngle{ControlUse{SliderId::AovInput}};

constexpr ControlRange halfTurns{-180, 180};

// The angle of view of the output up to so many degrees.
constexpr ControlUse AngleTo(int widest, std::optional<int> usual = {}) {
    return {SliderId::AovOutput, true, ControlRange{10, widest}, std::nullopt, usual};
}
constexpr ControlUse turnX{SliderId::X, true, halfTurns};
constexpr ControlUse turnY{SliderId::Y, true, halfTurns};
constexpr ControlUse turnZ{SliderId::Z, true, halfTurns};

template <int widest>
constexpr std::array sphereControls{AngleTo(widest), turnX, turnY, turnZ};
constexpr std::array stereographicControls{AngleTo(340), ControlUse{SliderId::Effect}, turnX, turnY,
                                           turnZ};
constexpr std::array paniniControls{AngleTo(320),
                                    ControlUse{SliderId::Effect},
                                    ControlUse{SliderId::PaniniD},
                                    ControlUse{SliderId::PaniniSqueeze},
                                    turnX,
                                    turnY,
                                    turnZ};
constexpr std::array planetControls{AngleTo(340, 270), turnX, turnY, turnZ};
constexpr std::array unrolledControls{AngleTo(360, 360),
                                      ControlUse{SliderId::UnrollStart},
                                      ControlUse{SliderId::UnrollFrom},
                                      ControlUse{SliderId::UnrollTo},
                                      turnX,
                                      turnY,
                                      turnZ};
constexpr std::array planetChoices{ChoiceId::Pose, ChoiceId::Tunnel};
constexpr std::array unrolledChoices{ChoiceId::UnrollDirection, ChoiceId::Marks};

// The corners and the middles of the sides.
constexpr std::array around{FramePoint{0.0, 0.0}, FramePoint{0.5, 0.0}, FramePoint{1.0, 0.0},
                            FramePoint{1.0, 0.5}, FramePoint{1.0, 1.0}, FramePoint{0.5, 1.0},
                            FramePoint{0.0, 1.0}, FramePoint{0.0, 0.5}};
// The corners and the quarters of the sides: Varnel leaves its middle lines alone.
constexpr std::array aside{FramePoint{0.0, 0.0},  FramePoint{0.0, 0.25}, FramePoint{0.0, 0.75},
                           FramePoint{0.0, 1.0},  FramePoint{1.0, 0.0},  FramePoint{1.0, 0.25},
                           FramePoint{1.0, 0.75}, FramePoint{1.0, 1.0}};

constexpr NameTag EffectTag(float ImageRecord::*effect) {
    return {u"_Eff", effect, ReasonCode::Effect, 3, 100.0F};
}

constexpr NameTag TurnTag(const char16_t* text, float ImageRecord::*angle) {
    return {text, angle, ReasonCode::RotationAngle, 0, 0.0F};
}

constexpr std::array varnelTags{EffectTag(&ImageRecord::EffectVarnel)};
constexpr std::array rectilinearTags{
    NameTag{u"_hAOV", &ImageRecord::OutputAOV, "OutputAOV", 3},
    EffectTag(&ImageRecord::EffectRectilinear), TurnTag(u"_LR", &ImageRecord::RotateY),
    TurnTag(u"_UD", &ImageRecord::RotateX), TurnTag(u"_Zr", &ImageRecord::RotateZ)};

constexpr std::array sphereTags{NameTag{u"_hAOV", &ImageRecord::OutputAOV, "OutputAOV", 3},
                                TurnTag(u"_LR", &ImageRecord::RotateY),
                                TurnTag(u"_UD", &ImageRecord::RotateX),
                                TurnTag(u"_Zr", &ImageRecord::RotateZ)};

constexpr SheetVariants effectVariants{SliderId::Effect, false, {50.0, 75.0, 100.0}};  // percent

template <class Map>
std::unique_ptr<ProjectionMap> MakeOfCircle(const ImageRecord& image, const Frames& frames) {
    return std::make_unique<Map>(CircleViewOf(image, frames));
}

std::unique_ptr<ProjectionMap> MakeRectilinear(const ImageRecord& image, const Frames& frames) {
    const RectilinearView view = RectilinearViewOf(image, frames);
    if (const CameraMove move = CameraMoveOf(image); move.Moves() || !image.Faces.empty()) {
        return std::make_unique<RotatedRectilinearMap>(view, move, image.Faces);
    }
    return std::make_unique<RectilinearMap>(view);
}

std::unique_ptr<ProjectionMap> MakeEquidistance(const ImageRecord& image, const Frames& frames) {
    return std::make_unique<EquidistanceMap>(EquidistanceViewOf(image, frames));
}

template <PlanePointer (*plane)(const PlaneFit& fit)>
PlanePointer Plain(const ImageRecord& /*image*/, const PlaneFit& fit) {
    return plane(fit);
}

enum class SphereKind {
    Whole,
    Partial,  // by the effect of the straight view
    Planet    // looks down, or up, by how the camera was held
};

template <NewPlane plane, auto widest, SphereKind kind>
std::unique_ptr<ProjectionMap> MakeSphere(const ImageRecord& image, const Frames& frames) {
    return MakeOnSphere({widest, plane, kind == SphereKind::Partial, kind == SphereKind::Planet},
                        image, frames);
}

// A projection of the sphere: what such rows have alike beside what each says of itself.
template <NewPlane plane, auto widest, SphereKind kind = SphereKind::Whole>
constexpr ProjectionInfo OnSphere(ProjectionInfo row) {
    row.frame = {SliderId::AovOutput, true, around, Widening::Angle};
    row.tags = sphereTags;
    if (kind == SphereKind::Partial) {
        row.effect = &ImageRecord::EffectRectilinear;
        row.tags = rectilinearTags;
        row.sheet = effectVariants;
    }
    row.levels = kind == SphereKind::Planet || row.azimuths ? LevelKind::Pole : LevelKind::Horizon;
    row.Widest = widest;
    row.Make = MakeSphere<plane, widest, kind>;
    return row;
}

// The same for the widest angle of all its pictures, degrees.
template <PlanePointer (*plane)(const PlaneFit& fit), int widest>
constexpr ProjectionInfo OnSphereTo(ProjectionInfo row) {
    row.controls = sphereControls<widest>;
    return OnSphere<Plain<plane>, WidestOf<widest>>(row);
}

// At three angles of view, degrees.
constexpr SheetVariants Angles(double narrow, double middle, double wide) {
    return {SliderId::AovOutput, false, {narrow, middle, wide}};
}

constexpr std::array rows{
    ProjectionInfo{
        .id = Projection::Varnel,
        .key = u"Varnel",
        .name = u"Varnel",
        .title = "Varnel",
        .tip = QT_TRANSLATE_NOOP(
            "Projections",
            "Stretches every row of the circle sideways to the full width; no row moves up or "
            "down"),
        .basic = true,
        .controls = effectOnly,
        .effect = &ImageRecord::EffectVarnel,
        .frame = {SliderId::Effect, false, aside},
        .tags = varnelTags,
        .sheet = effectVariants,
        .Make = MakeOfCircle<VarnelMap>,
    },
    ProjectionInfo{
        .id = Projection::Rectilinear,
        .key = u"Rectilinear",
        .name = u"Rectilinear",
        .title = "Rectilinear",
        .tip = QT_TRANSLATE_NOOP("Projections", "Straight lines of the scene come out straight"),
        .basic = true,
        .controls = rectilinearControls,
        .effect = &ImageRecord::EffectRectilinear,
        .frame = {SliderId::AovOutput, true, around},
        .levels = LevelKind::Horizon,
        .tags = rectilinearTags,
        .sheet = effectVariants,
        .faces = true,
        .Make = MakeRectilinear,
    },
    ProjectionInfo{
        .id = Projection::Equidistance,
        .key = u"Equidistance",
        .name = u"Equidistance",
        .title = "Equidistance",
        .tip = QT_TRANSLATE_NOOP("Projections", "A fisheye in which equal angles take equal room"),
        .basic = true,
        .controls = inputAngle,
        .frame = {SliderId::AovInput, false, around},
        .sheet = {SliderId::AovInput, true, {0.85, 1.0, 1.15}},
        .Make = MakeEquidistance,
    },
    ProjectionInfo{
        .id = Projection::Horizon,
        .key = u"Horizon",
        .name = u"Horizon",
        .title = "Horizon",
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "Unrolls a circle shot straight up or down into a panorama"),
        .basic = true,
        .controls = hiddenEffect,
        .effect = &ImageRecord::EffectVarnel,
        .sheet = effectVariants,
        .Make = MakeOfCircle<HorizonMap>,
    },
    OnSphere<Plain<StereographicPlane>, WidestOf<340>, SphereKind::Partial>({
        .id = Projection::Stereographic,
        .key = u"stereographic",
        .name = u"Stereographic",
        .title = QT_TRANSLATE_NOOP("Projections", "Stereographic"),
        .tip = QT_TRANSLATE_NOOP(
            "Projections", "Small shapes stay true however wide the view; straight lines bow"),
        .controls = stereographicControls,
    }),
    OnSphere<PaniniPlaneOf, WidestPanini, SphereKind::Partial>({
        .id = Projection::Panini,
        .key = u"panini",
        .name = u"Panini",
        .title = QT_TRANSLATE_NOOP("Projections", "Panini"),
        .tip = QT_TRANSLATE_NOOP(
            "Projections",
            "Wide rooms and streets: uprights and lines toward the middle stay straight"),
        .controls = paniniControls,
    }),
    OnSphereTo<CylindricalPlane, 360>({
        .id = Projection::Cylindrical,
        .key = u"cylindrical",
        .name = u"Cylindrical",
        .title = QT_TRANSLATE_NOOP("Projections", "Cylindrical"),
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "A panorama around an upright cylinder: uprights stay straight"),
        .sheet = Angles(120.0, 180.0, 240.0),
        .panorama = PanoramaLayout::Cylindrical,
    }),
    OnSphereTo<MercatorPlane, 360>({
        .id = Projection::Mercator,
        .key = u"mercator",
        .name = u"Mercator",
        .title = QT_TRANSLATE_NOOP("Projections", "Mercator"),
        .tip = QT_TRANSLATE_NOOP(
            "Projections",
            "A panorama that keeps small shapes true, less tall than around a cylinder"),
        .sheet = Angles(120.0, 180.0, 240.0),
    }),
    OnSphereTo<EquirectangularPlane, 360>({
        .id = Projection::Equirectangular,
        .key = u"equirectangular",
        .name = u"Equirectangular",
        .title = QT_TRANSLATE_NOOP("Projections", "Equirectangular"),
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "Even angles across and up: what 360 degree viewers take"),
        .sheet = Angles(120.0, 180.0, 360.0),
        .panorama = PanoramaLayout::Equirectangular,
    }),
    OnSphereTo<EquidistantPlane, 360>({
        .id = Projection::FisheyeEquidistant,
        .key = u"fisheye-equidistant",
        .name = u"FisheyeEquidistant",
        .title = QT_TRANSLATE_NOOP("Projections", "Fisheye, equidistant"),
        .tip = QT_TRANSLATE_NOOP(
            "Projections",
            "A fisheye in which the distance from the middle is the angle, whatever the sensor"),
        .sheet = Angles(120.0, 150.0, 180.0),
    }),
    OnSphereTo<EquisolidPlane, 360>({
        .id = Projection::FisheyeEquisolid,
        .key = u"fisheye-equisolid",
        .name = u"FisheyeEquisolid",
        .title = QT_TRANSLATE_NOOP("Projections", "Fisheye, equisolid"),
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "A fisheye in which equal parts of the view take equal areas"),
        .sheet = Angles(120.0, 150.0, 180.0),
    }),
    OnSphereTo<OrthographicPlane, 180>({
        .id = Projection::Orthographic,
        .key = u"orthographic",
        .name = u"Orthographic",
        .title = QT_TRANSLATE_NOOP("Projections", "Orthographic"),
        .tip =
            QT_TRANSLATE_NOOP("Projections", "The half in front as on a globe seen from far away"),
        .sheet = Angles(120.0, 150.0, 180.0),
    }),
    OnSphere<Plain<StereographicPlane>, WidestOf<340>, SphereKind::Planet>({
        .id = Projection::LittlePlanet,
        .key = u"little-planet",
        .name = u"LittlePlanet",
        .title = QT_TRANSLATE_NOOP("Projections", "Little planet"),
        .tip = QT_TRANSLATE_NOOP("Projections", "The ground as a small planet, the sky around it"),
        .controls = planetControls,
        .choices = planetChoices,
        .Stand = TiltOfPlanet,
        .sheet = Angles(220.0, 270.0, 320.0),
    }),
    OnSphere<UnrolledPlaneOf, WidestOf<360>>({
        .id = Projection::Unrolled,
        .key = u"unrolled",
        .name = u"Unrolled",
        .title = QT_TRANSLATE_NOOP("Projections", "Unrolled"),
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "Directions around the axis become columns, angles from it rows"),
        .controls = unrolledControls,
        .choices = unrolledChoices,
        .sheet = Angles(90.0, 180.0, 360.0),
        .azimuths = true,
    }),
};

}  // namespace

std::span<const ProjectionInfo> ShippedProjections() {
    return rows;
}

}  // namespace varnel
