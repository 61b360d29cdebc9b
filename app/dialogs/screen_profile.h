// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The colour profile of the screen. Throws nothing but for want of memory.
#pragma once

#include <QByteArray>

namespace varnel {

// As colour managers leave it on an X server's root window (_ICC_PROFILE, of its first screen);
// empty where there is none, and on other platforms.
QByteArray ScreenProfile();

}  // namespace varnel
