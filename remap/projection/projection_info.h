// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Everything that differs from projection to projection, one row each. Windows, names, command
// line, batch and analysis read the rows; nothing else distinguishes projections. Throws nothing
// but where said.
#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "base/run_time_error.h"
#include "remap/image/panorama_info.h"
#include "remap/projection/projection_map.h"
#include "remap/projection/record_maps.h"
#include "state/records/choice_id.h"
#include "state/records/image_record.h"
#include "state/records/slider_id.h"

namespace varnel {

// A control whose number the projection reads.
struct ControlUse {
    SliderId id = SliderId::Effect;
    bool shown = true;  // by the main window; the morph dialog has all
    // Where the projection allows less or more than the control in general.
    std::optional<ControlRange> range = std::nullopt;
    // What a number that makes no picture becomes when the projection is chosen.
    std::optional<int> fallback = std::nullopt;
    // What it starts with; nothing: as the gear gives it.
    std::optional<int> usual = std::nullopt;
};

// A point of the result by its share of the way from the left and from the bottom.
struct FramePoint {
    double across = 0.5;
    double up = 0.5;
};

// What a step of the wheel on the result multiplies, so that all looks nearer by the same.
enum class Widening { HalfTangent, Angle };

// How the frame on the photo and the result itself are moved.
struct FrameSteering {
    std::optional<SliderId> width{};        // the control that makes the frame wider
    bool turns = false;                     // it can be panned and tilted
    std::span<const FramePoint> handles{};  // points of the border that the width moves
    Widening wheel = Widening::HalfTangent;
};

// A part of file names that states a setting: the text and the field's number, rounded.
struct NameTag {
    const char16_t* text = u"";
    float ImageRecord::*field = nullptr;
    ValueName name;                              // for errors
    int digits = 0;                              // the last so many, behind zeros; 0: as it is
    std::optional<float> silent = std::nullopt;  // the number that is left out
};

inline constexpr int strengthsPerProjection = 3;

// What the contact sheet shows: a control at three values, or at its own value times three factors.
struct SheetVariants {
    SliderId control = SliderId::Effect;
    bool factors = false;
    std::array<double, strengthsPerProjection> values{};
};

// Where a horizon belongs: level through the middle of a view that can be turned, or round about a
// view straight down or up.
enum class LevelKind { None, Horizon, Pole };

struct ProjectionInfo {
    Projection id = Projection::Varnel;
    const char16_t* key = u"";   // in settings and, in small letters, on the command line
    const char16_t* name = u"";  // in file names; never translated
    const char* title = "";      // on screen; context "Projections"
    const char* tip = "";        // of what chooses it; context "Projections"
    // One of the first four, which have a button each and are what "all" means.
    bool basic = false;
    std::span<const ControlUse> controls{};
    std::span<const ChoiceId> choices{};
    // The field of the record that SliderId::Effect stands for; null for none.
    float ImageRecord::*effect = nullptr;
    FrameSteering frame{};
    LevelKind levels = LevelKind::None;
    // How far the view looks down within the camera that is turned, degrees. Null: not at all.
    float (*Stand)(const ImageRecord& image) = nullptr;
    std::span<const NameTag> tags{};
    SheetVariants sheet{};
    // Faces may keep their shape in it.
    bool faces = false;
    // Columns are azimuths around the axis and rows angles from it, which marks can name.
    bool azimuths = false;
    // As what 360 degree viewers take it.
    PanoramaLayout panorama = PanoramaLayout::None;
    // The largest output angle of view of a record, degrees: a larger one is cut to it. Null: none.
    float (*Widest)(const ImageRecord& image) = nullptr;
    // The map of a record between a photo and a result. Throws RunTimeError when a number of the
    // record makes it impossible.
    std::unique_ptr<ProjectionMap> (*Make)(const ImageRecord& image,
                                           const Frames& frames) = nullptr;
};

// All rows, in the order of their numbers, which are 0, 1, 2 ...
std::span<const ProjectionInfo> ProjectionRows();
// The rows that Varnel ships.
std::span<const ProjectionInfo> ShippedProjections();

std::vector<Projection> AllProjections();
std::vector<Projection> BasicProjections();
const ProjectionInfo& InfoOf(Projection projection);

// The name in file names: "Varnel", "FisheyeEquidistant" ...
QString ToText(Projection projection);
// "Varnel", "fisheye-equidistant" ...
QString KeyOf(Projection projection);
// The translated title: "Varnel", "Fisheye, equidistant" ...
QString TitleOf(Projection projection);
// By key or name, without regard to case; nothing for any other text.
std::optional<Projection> ProjectionFromText(QStringView text);
// By its number; every number without a row means Horizon.
Projection ProjectionFromIndex(int index);
// The translated tip.
QString TipOf(Projection projection);

// The use of the control; null when the projection does not read it.
const ControlUse* UseOf(Projection projection, SliderId id);
// The output angle of view that a conversion shows, degrees, where the record asks for more than
// the projection has; nothing where it gets what it asks for.
std::optional<float> CutAngleOf(Projection projection, const ImageRecord& image);
bool ReadsChoice(Projection projection, ChoiceId id);
// The effect that a projection reads; nothing when it reads none. Horizon reads that of Varnel,
// too.
std::optional<float ImageRecord::*> EffectReadBy(Projection projection);

}  // namespace varnel
