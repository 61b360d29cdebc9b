// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How finely a photo's file holds colours. Throws std::bad_alloc only.
#pragma once

#include <QString>

namespace varnel {

// Whether the file is a JPEG file with colours at less than its full resolution (4:2:0, 4:2:2).
// False for any other file.
bool HasHalvedColour(const QString& path);

}  // namespace varnel
