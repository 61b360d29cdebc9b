// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The record's fields that sequences and films move. Throws std::bad_alloc only.
#pragma once

#include <QLatin1StringView>
#include <QStringList>
#include <array>

#include "state/records/image_record.h"

namespace varnel {

// Units are the record's. The effects may go lower on their way than on the main window, where both
// end at 0.1.
struct MovedField {
    QLatin1StringView name;
    float ImageRecord::*field;
    float least = 0.0F;  // on the way; only where it is more than 0
};

#define VARNEL_MOVED(name)                           \
    MovedField {                                     \
        QLatin1StringView(#name), &ImageRecord::name \
    }
inline constexpr std::array movedFields{
    VARNEL_MOVED(OutputAOV),
    MovedField{QLatin1StringView("EffectVarnel"), &ImageRecord::EffectVarnel, 0.01F},
    MovedField{QLatin1StringView("EffectRectilinear"), &ImageRecord::EffectRectilinear, 0.1F},
    VARNEL_MOVED(RotateX),
    VARNEL_MOVED(RotateY),
    VARNEL_MOVED(RotateZ),
    VARNEL_MOVED(TranslateX),
    VARNEL_MOVED(TranslateY),
    VARNEL_MOVED(PaniniD),
    VARNEL_MOVED(PaniniSqueeze),
    VARNEL_MOVED(UnrollStart),
    VARNEL_MOVED(UnrollFrom),
    VARNEL_MOVED(UnrollTo),
};
#undef VARNEL_MOVED

// Null for a field that does not move.
const MovedField* MovedFieldOf(const QString& name);

// Their names, in the record's order.
QStringList MovedFieldNames();

// The field's value at t, 0 to 1, of the way.
float OnTheWay(const MovedField& moved, float start, float end, float t);

}  // namespace varnel
