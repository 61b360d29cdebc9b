// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Everything the program holds while it runs. Made once by its start-up and passed in parts. Throws
// nothing.
#pragma once

#include "base/record_array.h"
#include "base/thread_runner.h"
#include "remap/image/bitmap.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"
#include "state/settings/general_settings.h"

namespace varnel {

struct WorkingState {
    RecordArray<ImageRecord> Images;      // element n is line n - 1 of the image list
    RecordArray<ImageRecord> BatchQueue;  // copies, untouched by later edits
    GearTable Gear;
    GeneralSettings settings;
    Bitmaps bitmaps;
    ThreadRunner pool;  // the window's thread, which holds one of its cores, makes it
    // True while the controls are filled from a record; their handlers do nothing then.
    bool loadingControls = false;
};

}  // namespace varnel
