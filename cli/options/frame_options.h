// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of a result's size, shape, crop and outside. Each function throws UsageError.
#pragma once

#include <QString>

#include "pipeline/output/frame_wish.h"

namespace varnel {

// WIDTHxHEIGHT or WIDTH in pixels, or "centre".
void TakeSize(const QString& text, FrameWish& wish);
// W:H.
double AspectOf(const QString& text);
// "clean", "clean:W:H", or X,Y,W,H in parts of 1 or in percent.
void TakeCrop(const QString& text, FrameWish& wish);
OutsideFill OutsideOf(const QString& text);
// What does not go together.
void CheckTogether(const FrameWish& wish);

}  // namespace varnel
