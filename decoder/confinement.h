// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the decoder's process may still do once it listens.
#pragma once

#include <cstdint>

namespace varnel {

// Gives up what decoding does not need: inherited files, core files, new privileges, every file by
// its name (Landlock), and new programs, connections and other processes (seccomp). It ends with
// its parent. What a system does not offer is left out. Not undone by anything.
void Confine();

// The address space and the processor time from now on that the next photo may take. A process that
// goes on longer is ended by the system.
void LimitNextPhoto(std::uint64_t memory, std::uint32_t seconds);

// Not much more memory than the process has now, and this much for the photo's file: what a photo
// tells besides its pixels never needs it.
void LimitMetadata(std::uint64_t fileLength);

}  // namespace varnel
