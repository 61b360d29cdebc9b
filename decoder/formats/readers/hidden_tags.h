// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Metadata are read later and by others: in the image libraries they are where most crashes are.
// Throws std::bad_alloc.
#pragma once

#include <optional>

#include "decoder/formats/input_format.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/tiff_structure.h"

namespace varnel {

// From now on those who read the file's pixels do not see the metadata of a JPEG or TIFF file.
void HideMetadata(InputFormat format, const std::optional<TiffStructure>& tiff, PictureFile& file);

}  // namespace varnel
