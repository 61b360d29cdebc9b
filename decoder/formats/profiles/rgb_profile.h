// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>

namespace varnel {

// Whether an ICC profile is sound and describes red, green and blue. Throws nothing.
bool IsProfileForRgb(QByteArrayView profile);

}  // namespace varnel
