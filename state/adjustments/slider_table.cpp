// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/slider_table.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr ControlRange fullTurn{-180, 180};  // degrees
constexpr int narrowestOutput = 20;          // degrees

constexpr std::array<SliderRowData, sliderCount> rows{{
    {SliderId::AovInput, "SliderAOVinput", "LabelAOVinput", nullptr, nullptr,
     QT_TRANSLATE_NOOP("Sliders", "Input hAOV"),
     QT_TRANSLATE_NOOP("Sliders",
                       "The angle that this photo shows from its left to its right edge"),
     70, 280, 80, 10, 10, 10, QT_TRANSLATE_NOOP("Sliders", "° hAOV"), nullptr, nullptr, false,
     ShownFor::Always},
    {SliderId::AovOutput, "SliderAOVoutput", "LabelAOVoutput", "LabelAOVoutput2",
     QT_TRANSLATE_NOOP("Sliders", "Output AOV"), QT_TRANSLATE_NOOP("Sliders", "hAOV"),
     QT_TRANSLATE_NOOP(
         "Sliders",
         "How wide the converted picture looks: small is a telephoto view, large a wide one"),
     60, 180, 70, 10, 10, 10, QT_TRANSLATE_NOOP("Sliders", "° hAOV"), nullptr, nullptr, false,
     ShownFor::Users},
    {SliderId::Effect, "SliderEffect", "LabelEffect", "LabelEffect2",
     QT_TRANSLATE_NOOP("Sliders", "Partial effect"), QT_TRANSLATE_NOOP("Sliders", "100 %"),
     QT_TRANSLATE_NOOP("Sliders",
                       "How much of the conversion is applied: 0 % stays close to the fisheye"),
     0, 100, 100, 10, 1, 5, QT_TRANSLATE_NOOP("Sliders", " %"), nullptr, nullptr, false,
     ShownFor::Users},
    {SliderId::X, "SliderX", "LabelRotateX", "LabelRotate2",
     QT_TRANSLATE_NOOP("Sliders", "Up/Down"), QT_TRANSLATE_NOOP("Sliders", "0° Up/Down"),
     QT_TRANSLATE_NOOP("Sliders", "Tilts the camera. Double-click the name to reset it"), -40, 40,
     0, 10, 10, 10, QT_TRANSLATE_NOOP("Sliders", "° Down"), QT_TRANSLATE_NOOP("Sliders", "° Up"),
     QT_TRANSLATE_NOOP("Sliders", "0°"), true, ShownFor::Users,
     QT_TRANSLATE_NOOP("Sliders", "Rotate camera")},
    {SliderId::Y, "SliderY", "LabelRotateY", "LabelRotate3",
     QT_TRANSLATE_NOOP("Sliders", "Left/Right"), QT_TRANSLATE_NOOP("Sliders", "0° Left/Right"),
     QT_TRANSLATE_NOOP("Sliders", "Pans the camera. Double-click the name to reset it"), -40, 40, 0,
     10, 10, 10, QT_TRANSLATE_NOOP("Sliders", "° Right"), QT_TRANSLATE_NOOP("Sliders", "° Left"),
     QT_TRANSLATE_NOOP("Sliders", "0°"), true, ShownFor::Users,
     QT_TRANSLATE_NOOP("Sliders", "Rotate camera")},
    {SliderId::Z, "SliderZ", "LabelRotateZ", "LabelRotate4", QT_TRANSLATE_NOOP("Sliders", "Z-axis"),
     QT_TRANSLATE_NOOP("Sliders", "0° Z"),
     QT_TRANSLATE_NOOP(
         "Sliders", "Levels the picture by rolling the camera. Double-click the name to reset it"),
     -40, 40, 0, 10, 10, 10, QT_TRANSLATE_NOOP("Sliders", "° c.clockwise"),
     QT_TRANSLATE_NOOP("Sliders", "° clockwise"), QT_TRANSLATE_NOOP("Sliders", "0°"), true,
     ShownFor::Users, QT_TRANSLATE_NOOP("Sliders", "Rotate camera")},
    {SliderId::XTranslate, "SliderXtranslate", "LabelTranslateX", "LabelTranslate2",
     QT_TRANSLATE_NOOP("Sliders", "Left/Right"), QT_TRANSLATE_NOOP("Sliders", "0% Left/Right"),
     QT_TRANSLATE_NOOP("Sliders", "Shifts the picture sideways. Double-click the name to reset it"),
     -40, 40, 0, 5, 1, 10, QT_TRANSLATE_NOOP("Sliders", "% Right"),
     QT_TRANSLATE_NOOP("Sliders", "% Left"), QT_TRANSLATE_NOOP("Sliders", "0%"), true,
     ShownFor::Users, QT_TRANSLATE_NOOP("Sliders", "Transpose image")},
    {SliderId::YTranslate, "SliderYtranslate", "LabelTranslateY", "LabelTranslate3",
     QT_TRANSLATE_NOOP("Sliders", "Up/Down"), QT_TRANSLATE_NOOP("Sliders", "0% Up/Down"),
     QT_TRANSLATE_NOOP("Sliders",
                       "Shifts the picture up or down. Double-click the name to reset it"),
     -40, 40, 0, 5, 1, 10, QT_TRANSLATE_NOOP("Sliders", "% Up"),
     QT_TRANSLATE_NOOP("Sliders", "% Down"), QT_TRANSLATE_NOOP("Sliders", "0%"), true,
     ShownFor::Users, QT_TRANSLATE_NOOP("Sliders", "Transpose image")},
    {SliderId::PaniniD, "SliderPaniniD", "LabelPaniniD", "LabelPaniniD2",
     QT_TRANSLATE_NOOP("Sliders", "Distance of the eye"), QT_TRANSLATE_NOOP("Sliders", "100 %"),
     QT_TRANSLATE_NOOP("Sliders",
                       "0 % is the straight-line view; 100 % keeps wide views calm at the sides"),
     0, 100, 100, 10, 1, 10, QT_TRANSLATE_NOOP("Sliders", " %"), nullptr, nullptr, false,
     ShownFor::Users},
    {SliderId::PaniniSqueeze, "SliderPaniniSqueeze", "LabelPaniniSqueeze", "LabelPaniniSqueeze2",
     QT_TRANSLATE_NOOP("Sliders", "Vertical squeeze"), QT_TRANSLATE_NOOP("Sliders", "0 %"),
     QT_TRANSLATE_NOOP("Sliders",
                       "How far level lines above and below the middle are kept straight"),
     0, 100, 0, 10, 1, 10, QT_TRANSLATE_NOOP("Sliders", " %"), nullptr, nullptr, false,
     ShownFor::Users},
    {SliderId::UnrollStart, "SliderUnrollStart", "LabelUnrollStart", "LabelUnrollStart2",
     QT_TRANSLATE_NOOP("Sliders", "Left edge"), QT_TRANSLATE_NOOP("Sliders", "0°"),
     QT_TRANSLATE_NOOP(
         "Sliders",
         "The direction on the photo that the picture's left edge shows. Double-click "
         "the name to reset it"),
     -180, 180, 0, 10, 1, 15, QT_TRANSLATE_NOOP("Sliders", "°"), nullptr, nullptr, true,
     ShownFor::Users},
    {SliderId::UnrollFrom, "SliderUnrollFrom", "LabelUnrollFrom", "LabelUnrollFrom2",
     QT_TRANSLATE_NOOP("Sliders", "From angle"), QT_TRANSLATE_NOOP("Sliders", "0°"),
     QT_TRANSLATE_NOOP("Sliders", "The angle from the lens's axis at one edge of the picture"), 0,
     180, 0, 10, 1, 10, QT_TRANSLATE_NOOP("Sliders", "°"), nullptr, nullptr, true, ShownFor::Users},
    {SliderId::UnrollTo, "SliderUnrollTo", "LabelUnrollTo", "LabelUnrollTo2",
     QT_TRANSLATE_NOOP("Sliders", "To angle"), QT_TRANSLATE_NOOP("Sliders", "90°"),
     QT_TRANSLATE_NOOP("Sliders", "The angle from the lens's axis at the other edge"), 0, 180, 90,
     10, 1, 10, QT_TRANSLATE_NOOP("Sliders", "°"), nullptr, nullptr, false, ShownFor::Users},
}};

QString Translated(const char* text) {
    return QCoreApplication::translate("Sliders", text);
}

QString NumberText(double tenths) {
    return tenths == std::round(tenths) ? QString::number(tenths, 'f', 0)
                                        : QLocale().toString(tenths, 'f', 1);
}

}  // namespace

const std::array<SliderRowData, sliderCount>& SliderRows() {
    return rows;
}

QString GroupName(SliderId id) {
    const char* const group = SliderRowOf(id).group;
    return group == nullptr ? QString() : Translated(group);
}

QString SpokenName(const SliderRowData& row) {
    const QString heading = Translated(row.heading);
    return row.group == nullptr ? heading
                                : QStringLiteral("%1: %2").arg(Translated(row.group), heading);
}

QString SliderCaption(const SliderRowData& row, double value) {
    const double tenths = std::round(value * 10.0) / 10.0;
    if (tenths == 0.0 && row.zero != nullptr) {
        return Translated(row.zero);
    }
    if (tenths < 0.0 && row.negative != nullptr) {
        return NumberText(-tenths) + Translated(row.negative);
    }
    return NumberText(tenths) + Translated(row.positive);
}

const SliderRowData& SliderRowOf(SliderId id) {
    return *std::ranges::find(rows, id, &SliderRowData::id);
}

ControlRange RangeOf(SliderId id, Projection projection) {
    const SliderRowData& row = SliderRowOf(id);
    const ControlUse* const use = UseOf(projection, id);
    return use != nullptr && use->range ? *use->range : ControlRange{row.minimum, row.maximum};
}

ControlRange ReachOf(SliderId id, Projection projection) {
    const ControlUse* const use = UseOf(projection, id);
    if (use != nullptr && use->range) {
        return *use->range;
    }
    switch (id) {
        case SliderId::X:
        case SliderId::Y:
        case SliderId::Z:
            return fullTurn;
        case SliderId::AovOutput:
            return {narrowestOutput, SliderRowOf(id).maximum};
        default:
            return RangeOf(id, projection);
    }
}

bool ShownWith(const SliderRowData& row, Projection projection) {
    const ControlUse* const use = UseOf(projection, row.id);
    return row.shownFor == ShownFor::Always || (use != nullptr && use->shown);
}

bool Reads(Projection projection, SliderId id) {
    return UseOf(projection, id) != nullptr;
}

double WithinReach(SliderId id, Projection projection, double value) {
    constexpr double wholeTurn = 360.0;
    const ControlRange reach = ReachOf(id, projection);
    const bool round = reach.minimum == fullTurn.minimum && reach.maximum == fullTurn.maximum;
    // A partial effect shortens the turns: half a turn to the left is not one to the right.
    if (round && !Reads(projection, SliderId::Effect) && std::fabs(value) > fullTurn.maximum) {
        return std::remainder(value, wholeTurn);
    }
    return std::clamp<double>(value, reach.minimum, reach.maximum);
}

// Without a range of its own a projection keeps what a record was given by other ways.
void FitTo(Projection projection, ControlValues& values) {
    values.projection = static_cast<int>(projection);
    for (const ControlUse& use : InfoOf(projection).controls) {
        const std::optional<double> value = ValueOf(use.id, values);
        const ControlRange reach = ReachOf(use.id, projection);
        if (value && (*value < reach.minimum || *value > reach.maximum)) {
            const double nearest = std::clamp<double>(*value, reach.minimum, reach.maximum);
            const double kept = use.range ? nearest : *value;
            SetValueOf(use.id, use.fallback ? *use.fallback : kept, values);
        }
    }
}

std::optional<double> ValueOf(SliderId id, const ControlValues& values) {
    const ControlField* const field = FieldOf(id);
    return field == nullptr ? values.effect : std::optional(values.*field->control);
}

void SetValueOf(SliderId id, double value, ControlValues& values) {
    if (const ControlField* const field = FieldOf(id)) {
        values.*field->control = value;
    } else {
        values.effect = value;
    }
}

}  // namespace varnel
