// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Messages over the socket between a program and its decoder. Throws nothing.
#pragma once

#include <array>
#include <cstddef>

#include "decoder/process/descriptor.h"

namespace varnel {

inline constexpr int decoderSocket = 3;  // the descriptor under which the decoder finds it

// Sends a message, with two descriptors if they are no -1. False when the other end is gone or the
// system refuses.
bool SendMessage(int socket, const void* message, std::size_t length,
                 std::array<int, 2> descriptors = {-1, -1});

// Waits for a message of just this length and takes it, and the two descriptors that came with it
// if there is room for them (not null). False when the other end is gone or sent something else.
bool ReceiveMessage(int socket, void* message, std::size_t length,
                    std::array<Descriptor, 2>* descriptors);

// Whether a message can be received without waiting, or the other end is gone.
bool HasMessage(int socket);

}  // namespace varnel
