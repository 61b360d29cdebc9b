// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/profiles/rgb_profile.h"

#include <QtEndian>

#include "remap/image/levels/lcms_handles.h"

namespace varnel {

namespace {

// Of a device's colours, and on the way to the two spaces that profiles connect by.
bool IsOfDevice(cmsHPROFILE profile) {
    const cmsProfileClassSignature kind = cmsGetDeviceClass(profile);
    const cmsColorSpaceSignature connection = cmsGetPCS(profile);
    return kind != cmsSigAbstractClass && kind != cmsSigLinkClass &&
           (connection == cmsSigXYZData || connection == cmsSigLabData);
}

}  // namespace

bool IsProfileForRgb(QByteArrayView profile) {
    constexpr qsizetype tagCount = 128;  // bytes of the header; the first four state the length
    const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(profile.data() + at); };
    if (profile.size() < tagCount + 4 || number(0) != profile.size()) {
        return false;
    }
    const ProfileHandle opened = OpenProfile(profile);
    // lcms2 passes over tags that lie outside of the profile; who reads our files may not.
    return opened && cmsGetColorSpace(opened.get()) == cmsSigRgbData && IsOfDevice(opened.get()) &&
           static_cast<quint32>(cmsGetTagCount(opened.get())) == number(tagCount);
}

}  // namespace varnel
