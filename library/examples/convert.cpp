// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files with what varnel-convert can do, from a program of one's own:
// convert photo.jpg --gear guess --projection rectilinear
#include <cstdio>
#include <cstdlib>
#include <varnel/varnel.hpp>

int main(int argc, char** argv) {
    try {
        varnel::Convert({argv + 1, argv + argc}, [](const char* json) {
            std::puts(json);
            return true;  // false stops the run
        });
    } catch (const varnel::Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
