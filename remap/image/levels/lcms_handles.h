// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What lcms2 gives out, given back at the end.
#pragma once

#include <lcms2.h>

#include <QByteArrayView>
#include <memory>

#include "base/released_by.h"

namespace varnel {

using ProfileHandle = std::unique_ptr<void, ReleasedBy<cmsCloseProfile>>;
using ColourTransform = std::unique_ptr<void, ReleasedBy<cmsDeleteTransform>>;
using ToneCurve = std::unique_ptr<cmsToneCurve, ReleasedBy<cmsFreeToneCurve>>;

// Null when lcms2 cannot read the ICC profile.
inline ProfileHandle OpenProfile(QByteArrayView profile) {
    return ProfileHandle(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
}

}  // namespace varnel
