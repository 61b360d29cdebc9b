// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Stands before the memory for pictures, that of bitmaps and that of the image library, and answers
// as when there is none. Included once in a test program.
#pragma once

#include <FreeImage.h>
#include <dlfcn.h>

#include <climits>
#include <cstdlib>
#include <new>

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

inline bool TakeOne() {
    picturesLeft = picturesLeft > 0 ? picturesLeft - 1 : -1;
    return picturesLeft >= 0;
}

template <class Function, class... Arguments>
FIBITMAP* IfLeft(Function /*like*/, const char* name, Arguments... arguments) {
    if (!TakeOne()) {
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
FIBITMAP* DLL_CALLCONV FreeImage_ConvertFromRawBitsEx(BOOL copy, BYTE* bits, FREE_IMAGE_TYPE type,
                                                      int width, int height, int pitch,
                                                      unsigned depth, unsigned red, unsigned green,
                                                      unsigned blue, BOOL topDown) {
    return varnel::testing::IfLeft(&FreeImage_ConvertFromRawBitsEx, __func__, copy, bits, type,
                                   width, height, pitch, depth, red, green, blue, topDown);
}
}

// Only the pixels of bitmaps are asked for with an alignment.
void* operator new(std::size_t length, std::align_val_t alignment) {
    const auto unit = static_cast<std::size_t>(alignment);
    void* const memory = varnel::testing::TakeOne()
                             ? std::aligned_alloc(unit, (length + unit - 1) / unit * unit)
                             : nullptr;
    return memory != nullptr ? memory : throw std::bad_alloc();
}
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*length*/,
                     std::align_val_t /*alignment*/) noexcept {
    std::free(memory);
}
