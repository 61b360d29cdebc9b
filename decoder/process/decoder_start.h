// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Starting a decoder's process, with nothing but the C library: a program can do it before it loads
// any other. Throws nothing.
#pragma once

#include <sys/types.h>

namespace varnel {

struct StartedDecoder {
    pid_t id = -1;    // of the process; -1: none was started
    int socket = -1;  // our end, the receiver's to close
    int error = 0;    // errno of what failed
};

// The program by its path. It ends with the thread that starts it.
StartedDecoder StartDecoder(const char* program);

}  // namespace varnel
