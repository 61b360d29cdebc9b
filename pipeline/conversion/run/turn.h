// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <memory>

#include "pipeline/conversion/run/result_drawer.h"

namespace varnel {

// A conversion on its way. The observer is notified of it only when the one before it is done.
struct Turn {
    Conversion what{};
    ConversionOutcome outcome{};
    std::shared_ptr<DrawnResult> drawn = std::make_shared<DrawnResult>();
    QElapsedTimer sinceBegun{};
    bool announced = false;
    float maximum = 0.0F;  // of its progress; 0 until it begins
    bool rendered = false;
};

}  // namespace varnel
