// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the straighten dialog says of a measuring. Throws std::bad_alloc only.
#pragma once

#include "app/straighten/straighten_model.h"

namespace varnel {

// Sentences, one a line.
QString FiguresText(const StraightenModel& model);
QString TagText(EdgeTag tag);  // empty for none

}  // namespace varnel
