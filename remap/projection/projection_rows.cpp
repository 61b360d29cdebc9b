// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QtGlobal>

#include "remap/projection/maps/horizon_map.h"
#include "remap/projection/maps/varnel_map.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr std::array rectilinearControls{
    ControlUse{SliderId::AovOutput}, ControlUse{SliderId::Effect}, ControlUse{SliderId::X},
    ControlUse{SliderId::Y},         ControlUse{SliderId::Z},      ControlUse{SliderId::XTranslate},
    ControlUse{SliderId::YTranslate}};
constexpr std::array effectOnly{ControlUse{SliderId::Effect}};
constexpr std::array hiddenEffect{ControlUse{SliderId::Effect, false}};
constexpr std::array inputAngle{ControlUse{SliderId::AovInput}};

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

constexpr SheetVariants effectVariants{SliderId::Effect, false, {50.0, 75.0, 100.0}};  // percent

template <class Map>
std::unique_ptr<ProjectionMap> MakeOfCircle(const ImageRecord& image, const Frames& frames) {
    return std::make_unique<Map>(CircleViewOf(image, frames));
}

std::unique_ptr<ProjectionMap> MakeRectilinear(const ImageRecord& image, const Frames& frames) {
    const RectilinearView view = RectilinearViewOf(image, frames);
    if (const CameraMove move = CameraMoveOf(image); move.Moves()) {
        return std::make_unique<RotatedRectilinearMap>(view, move);
    }
    return std::make_unique<RectilinearMap>(view);
}

std::unique_ptr<ProjectionMap> MakeEquidistance(const ImageRecord& image, const Frames& frames) {
    return std::make_unique<EquidistanceMap>(EquidistanceViewOf(image, frames));
}

constexpr std::array rows{
    ProjectionInfo{
        .id = Projection::Varnel,
        .name = u"Varnel",
        .tip = QT_TRANSLATE_NOOP(
            "Projections",
            "Stretches every row of the circle sideways to the full width; no row moves up or "
            "down"),
        .controls = effectOnly,
        .effect = &ImageRecord::EffectVarnel,
        .frame = {SliderId::Effect, false, aside},
        .tags = varnelTags,
        .sheet = effectVariants,
        .Make = MakeOfCircle<VarnelMap>,
    },
    ProjectionInfo{
        .id = Projection::Rectilinear,
        .name = u"Rectilinear",
        .tip = QT_TRANSLATE_NOOP("Projections", "Straight lines of the scene come out straight"),
        .controls = rectilinearControls,
        .effect = &ImageRecord::EffectRectilinear,
        .frame = {SliderId::AovOutput, true, around},
        .levels = true,
        .tags = rectilinearTags,
        .sheet = effectVariants,
        .Make = MakeRectilinear,
    },
    ProjectionInfo{
        .id = Projection::Equidistance,
        .name = u"Equidistance",
        .tip = QT_TRANSLATE_NOOP("Projections", "A fisheye in which equal angles take equal room"),
        .controls = inputAngle,
        .frame = {SliderId::AovInput, false, around},
        .sheet = {SliderId::AovInput, true, {0.85, 1.0, 1.15}},
        .Make = MakeEquidistance,
    },
    ProjectionInfo{
        .id = Projection::Horizon,
        .name = u"Horizon",
        .tip = QT_TRANSLATE_NOOP("Projections",
                                 "Unrolls a circle shot straight up or down into a panorama"),
        .controls = hiddenEffect,
        .effect = &ImageRecord::EffectVarnel,
        .sheet = effectVariants,
        .Make = MakeOfCircle<HorizonMap>,
    },
};

}  // namespace

std::span<const ProjectionInfo> ShippedProjections() {
    return rows;
}

}  // namespace varnel
