// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window and every dialog, one after the other, with photos in the list and in the queue.
#pragma once

#include <QWidget>
#include <functional>

#include "base/pixel_size.h"

namespace varnel::testing {

// Looks at each form while it is shown; at some of them in several states.
void ShowEveryForm(const std::function<void(QWidget& form)>& look, PixelSize photo = {300, 200});

}  // namespace varnel::testing
