// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the decoder's process may still do once it listens. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

// Sanitizers need terabytes of address space, and files and other system calls for their reports.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool sanitized = true;
#elif defined(__has_feature)
inline constexpr bool sanitized =
    __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
inline constexpr bool sanitized = false;
#endif

// Gives up what decoding does not need: core files, new privileges, and, unless the build is
// sanitized, inherited files, root's powers, the environment but for the time zone, every file by
// its name (Landlock) and every system call but a few (FilterSystemCalls). It ends with its parent.
// What a system does not offer is left out. Not undone by anything.
void Confine();

// The address space in bytes and the processor time from now on that the next photo may take; what
// `memory` allows the first time stays the most for ever. A process that goes on longer is ended by
// the system.
void LimitNextPhoto(std::uint64_t memory, std::uint32_t seconds);

// Not much more memory than the process has now, and fileLength bytes more for the photo's file:
// what a photo's file has besides its pixels never needs it.
void LimitMetadata(std::uint64_t fileLength);

}  // namespace varnel
