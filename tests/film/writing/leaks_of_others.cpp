// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The encoder of H.265 keeps a piece of memory to its end.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer asks for this name
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libx265";
}
