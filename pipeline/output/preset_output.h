// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How results are written, as the settings of a preset. Throws nothing.
#pragma once

#include "state/adjustments/presets.h"
#include "state/records/image_record.h"
#include "state/settings/general_settings.h"

namespace varnel {

// Type, quality, colour, metadata and, unless it is the usual one, the pattern of names.
PictureSettings OutputOf(const GeneralSettings& settings);

// Takes over what a preset names of these; values that mean nothing are left out. False when it
// names none.
bool TakeOutput(const PictureSettings& settings, GeneralSettings& general);

// What a preset may hold of a photo and of the output, as people choose it.
enum class PresetPart { Projection, OutputAov, Rotation, Shift, Output };
using PresetParts = std::vector<PresetPart>;

// The projection comes with its own effect alone.
PictureSettings PresetSettings(const PresetParts& parts, const ImageRecord& image,
                               const GeneralSettings& general);

}  // namespace varnel
