// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How films were written last, kept from one start to the next. Throws std::bad_alloc only.
#pragma once

#include "pipeline/conversion/films/film_saver.h"
#include "state/settings/settings_store.h"

namespace varnel {

// A missing value and one that no encoder has give the usual one.
FilmOutput LoadFilmOutput(const SettingsStore& store);
void SaveFilmOutput(const FilmOutput& output, SettingsStore& store);

}  // namespace varnel
