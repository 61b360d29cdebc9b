// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/huge_pages.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace varnel {

void KeepFreedMemory() {
#ifdef __GLIBC__
    mallopt(M_TRIM_THRESHOLD, 64 << 20);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);  // whole pictures go back all the same
#endif
}

#ifdef __linux__

std::shared_ptr<std::byte> LargePages(std::size_t length) {
    constexpr std::size_t page = std::size_t{2} << 20;
    if (length < 2 * page) {
        return nullptr;
    }
    // One page more, so that whole ones fit from the first aligned address on.
    const std::size_t mapped = length + page;
    void* const memory =
        mmap(nullptr, mapped, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return nullptr;
    }
    void* first = memory;
    std::size_t room = mapped;
    std::align(page, length, first, room);
    madvise(first, length, MADV_HUGEPAGE);
    return {static_cast<std::byte*>(first),
            [memory, mapped](std::byte* /*first*/) { munmap(memory, mapped); }};
}

#else

std::shared_ptr<std::byte> LargePages(std::size_t /*length*/) {
    return nullptr;
}

#endif

}  // namespace varnel
