// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Memory for whole pictures. Throws std::bad_alloc only.
#pragma once

#include <cstddef>
#include <memory>

namespace varnel {

// That many zero bytes in pages as large as the system gives: with small ones, the page faults of a
// fresh 24-megapixel bitmap cost as much time as converting it. Null where the system has no such
// pages, and for less than two of them.
std::shared_ptr<std::byte> LargePages(std::size_t length);

// For programs that convert many pictures and end: freed memory stays with the process, up to 64
// MB, instead of going back to the system and costing page faults again with each picture.
void KeepFreedMemory();

}  // namespace varnel
