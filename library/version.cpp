// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "varnel/varnel.h"

const char* varnel_version(void) {
    return VARNEL_VERSION;
}
