// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// libjpeg reports an error through a call that must not return. The caller of libjpeg sets the way
// back with setjmp in a function that has nothing to destroy, and keeps libjpeg's structs outside
// of it. Throws nothing.
#pragma once

#include <array>
#include <csetjmp>
#include <cstdio>

// Needs the types of <cstdio>.
#include <jpeglib.h>
// Needs jpeglib.h.
#include <jerror.h>

namespace varnel {

class JpegErrors {
  public:
    JpegErrors() {
        jpeg_std_error(&base_);
        base_.error_exit = &GoBack;
        base_.output_message = &Keep;
    }
    JpegErrors(const JpegErrors&) = delete;
    JpegErrors& operator=(const JpegErrors&) = delete;

    jpeg_error_mgr* Base() { return &base_; }
    std::jmp_buf& Back() { return back_; }

    bool IsOutOfMemory() const { return base_.msg_code == JERR_OUT_OF_MEMORY; }
    // What the error was that ended the work, empty when there was none.
    const char* Error() const { return error_.data(); }
    // The first warning, empty when there was none. libjpeg itself drops all further ones.
    const char* Warning() const { return warning_.data(); }

  private:
    // The base is the first member, so it lies where the whole does.
    static JpegErrors& Whole(j_common_ptr info) {
        return *reinterpret_cast<JpegErrors*>(info->err);
    }
    [[noreturn]] static void GoBack(j_common_ptr info) {
        info->err->format_message(info, Whole(info).error_.data());
        std::longjmp(Whole(info).back_, 1);
    }
    static void Keep(j_common_ptr info) {
        auto& warning = Whole(info).warning_;
        if (warning[0] == '\0') {
            info->err->format_message(info, warning.data());
        }
    }

    jpeg_error_mgr base_{};
    std::jmp_buf back_{};
    std::array<char, JMSG_LENGTH_MAX> error_{};
    std::array<char, JMSG_LENGTH_MAX> warning_{};
};

}  // namespace varnel
