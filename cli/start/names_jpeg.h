// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Throws nothing, and needs the C library only.
#pragma once

namespace varnel {

// Whether one of the words that main was given ends like the name of a JPEG photo, which is what a
// new decoder is for.
bool NamesJpeg(int argc, const char* const* argv);

}  // namespace varnel
