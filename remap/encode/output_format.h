// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The table of the file types that Varnel writes. Another type is a row in output_format.cpp, its
// coder and its tests: settings, dialogs, names and the command line read the table. Throws
// nothing.
#pragma once

#include "remap/encode/encode_bitmap.h"
#include "remap/encode/output_type.h"

namespace varnel {

// What files of a type can hold besides the pixels of a photo.
struct OutputAbilities {
    int bitsPerSample = 8;  // at most; 32 are floating point
    int leastBits = 8;      // a sample; with 32 the file has linear light of sRGB's primaries
    bool alpha = false;
    bool metadata = false;  // the photo's, and the settings that made the picture
    bool profile = false;   // ICC
};

struct OutputFormat {
    const char16_t* key;      // the setting's text, and in any case the command line's
    const char16_t* name;     // in the save dialog
    const char16_t* ending;   // with its dot, as it is written
    const char16_t* synonym;  // another ending by which the type is known
    OutputAbilities holds;
    bool takesQuality;
    bool takesChroma;  // may have colour at full resolution, or not
    bool takesRows;    // is coded from rows that come and go
    // Of a file to be expected. Measured with converted photos of foliage, which need two to four
    // times what indoor ones do. Of such samples, which the type can hold.
    double (*bytesPerPixel)(const OutputEncoding&, SampleKind);
    EncodeFunction* encode;
};

const OutputFormat& FormatOf(OutputType type);

// What a file of the type has of a picture that is wanted with such samples.
SampleKind SamplesIn(OutputType type, SampleKind wanted);

}  // namespace varnel
