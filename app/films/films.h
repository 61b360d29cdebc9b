// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Who works on films for the window. Where the program is built without them, these are null.
// Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "base/thread_runner.h"
#include "pipeline/conversion/morph_film.h"
#include "state/settings/general_settings.h"

namespace varnel {

std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& pool,
                                                  const GeneralSettings& settings);

}  // namespace varnel
