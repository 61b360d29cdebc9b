// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls that choose one of a few values, in one table. Throws nothing.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "state/records/choice_id.h"
#include "state/records/image_record.h"
#include "state/records/projection.h"

namespace varnel {

struct ChoiceOption {
    int value;
    const char* text;
};

struct ChoiceRowData {
    ChoiceId id;
    const char* control;  // object name
    const char* heading;  // context "Choices"
    const char* tip;
    const char* field;                        // name of the record's field
    std::span<const ChoiceOption> options{};  // none: 0 and 1, a box to be checked
    int (*Of)(const ImageRecord&) = nullptr;
    void (*Give)(int, ImageRecord&) = nullptr;
};

// In the order in which the window shows them.
std::span<const ChoiceRowData> ChoiceRows();
const ChoiceRowData& ChoiceRowOf(ChoiceId id);
// Those that the projection reads, in the same order.
std::vector<ChoiceId> ChoicesOf(Projection projection);

// A heading, tip or option of the table in the user's language.
QString ChoiceText(const char* text);

}  // namespace varnel
