// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls beside the sliders, which choose one of a few values.
#pragma once

#include <cstddef>

namespace varnel {

// Each stands for one field of the record.
enum class ChoiceId { UnrollDirection, Marks, Pose, Tunnel };

inline constexpr std::size_t choiceCount = static_cast<std::size_t>(ChoiceId::Tunnel) + 1;

}  // namespace varnel
