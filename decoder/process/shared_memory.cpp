// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/shared_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <new>
#include <utility>

namespace varnel {

namespace {

// Never a program, where the system knows the difference; some allow no other memory files.
Descriptor NewMemoryFile() {
    constexpr unsigned flags = MFD_CLOEXEC | MFD_ALLOW_SEALING;
    constexpr unsigned neverExecuted = 0x0008;  // newer than some C libraries
    Descriptor file(memfd_create("varnel-picture", flags | neverExecuted));
    return file ? std::move(file) : Descriptor(memfd_create("varnel-picture", flags));
}

}  // namespace

SharedMemory::SharedMemory(std::uint32_t name) : name_(name), file_(NewMemoryFile()) {
    if (!file_ || fcntl(file_.Get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_SEAL) != 0) {
        throw std::bad_alloc();
    }
}

SharedMemory::~SharedMemory() {
    if (bytes_ != nullptr) {
        munmap(bytes_, mapped_);
    }
}

std::uint64_t SharedMemory::Length() const {
    struct stat status {};
    return fstat(file_.Get(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::byte* SharedMemory::Map(std::uint64_t length) {
    if (length > Length()) {
        return nullptr;
    }
    if (length > mapped_) {
        if (bytes_ != nullptr) {
            munmap(bytes_, mapped_);
        }
        void* const bytes =
            mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED, file_.Get(), 0);
        bytes_ = bytes == MAP_FAILED ? nullptr : bytes;
        mapped_ = bytes_ == nullptr ? 0 : length;
    }
    return static_cast<std::byte*>(bytes_);
}

std::unique_ptr<SharedMemory> MemoryFiles::Take() {
    const std::lock_guard lock(mutex_);
    return spare_ ? std::move(spare_) : std::make_unique<SharedMemory>(++made_);
}

void MemoryFiles::GiveBack(std::unique_ptr<SharedMemory> file) {
    const std::lock_guard lock(mutex_);
    spare_.swap(file);
}

}  // namespace varnel
