// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Memory for whole pictures.
#pragma once

#include <cstddef>
#include <memory>

namespace varnel {

// That many zero bytes in pages as large as the system gives: with small ones, touching a fresh
// 24-megapixel bitmap for the first time costs as much time as converting it. Null where there are
// no such pages to be had, or for less than is worth while.
std::shared_ptr<std::byte> LargePages(std::size_t length);

// For programs that do many pictures and end: what is freed stays with the process, up to 64 MB,
// instead of going back to the system and being touched for the first time again with each picture.
void KeepFreedMemory();

}  // namespace varnel
