// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Stands before the image library and answers as it does when there is no memory for a picture.
// Included once in a test program.
#pragma once

#include <FreeImage.h>
#include <dlfcn.h>

#include <climits>

namespace varnel::testing {

// Pictures that can still be had; counted down by every one.
inline int picturesLeft = INT_MAX;

// While it lives only so many pictures can be had.
class PictureLimit {
  public:
    explicit PictureLimit(int pictures) { picturesLeft = pictures; }
    PictureLimit(const PictureLimit&) = delete;
    PictureLimit& operator=(const PictureLimit&) = delete;
    ~PictureLimit() { picturesLeft = INT_MAX; }
    // Whether one was refused.
    static bool Reached() { return picturesLeft < 0; }
};

template <class Function, class... Arguments>
FIBITMAP* IfLeft(Function /*like*/, const char* name, Arguments... arguments) {
    if (--picturesLeft < 0) {
        picturesLeft = -1;
        return nullptr;
    }
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name))(arguments...);
}

}  // namespace varnel::testing

extern "C" {

FIBITMAP* DLL_CALLCONV FreeImage_Rescale(FIBITMAP* bitmap, int width, int height,
                                         FREE_IMAGE_FILTER filter) {
    return varnel::testing::IfLeft(&FreeImage_Rescale, __func__, bitmap, width, height, filter);
}
FIBITMAP* DLL_CALLCONV FreeImage_Allocate(int width, int height, int bits, unsigned red,
                                          unsigned green, unsigned blue) {
    return varnel::testing::IfLeft(&FreeImage_Allocate, __func__, width, height, bits, red, green,
                                   blue);
}
FIBITMAP* DLL_CALLCONV FreeImage_Clone(FIBITMAP* bitmap) {
    return varnel::testing::IfLeft(&FreeImage_Clone, __func__, bitmap);
}
FIBITMAP* DLL_CALLCONV FreeImage_ConvertFromRawBitsEx(BOOL copy, BYTE* bits, FREE_IMAGE_TYPE type,
                                                      int width, int height, int pitch,
                                                      unsigned depth, unsigned red, unsigned green,
                                                      unsigned blue, BOOL topDown) {
    return varnel::testing::IfLeft(&FreeImage_ConvertFromRawBitsEx, __func__, copy, bits, type,
                                   width, height, pitch, depth, red, green, blue, topDown);
}
}
