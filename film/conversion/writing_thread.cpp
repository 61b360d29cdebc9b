// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/writing_thread.h"

#include <utility>

#include "base/error_reason.h"

namespace varnel {

namespace {

constexpr std::uint64_t mostPacketBytes = std::uint64_t{64}
                                          << 20;  // beyond them packets wait to be put

std::uint64_t LengthOf(const FilmPacket& packet) {
    return static_cast<std::uint64_t>(packet.bytes.size()) + sizeof packet;
}

}  // namespace

WritingThread::WritingThread(FilmWriter& writer, const FrameFormat& format) : writer_(writer) {
    for (int n = 0; n < slots; ++n) {
        frames_[static_cast<std::size_t>(n)] = FrameBuffer(format);
        free_.push_back(n);
    }
    thread_ = std::thread([this] { Work(); });
}

WritingThread::~WritingThread() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
        items_.clear();
    }
    changed_.notify_all();
    thread_.join();
}

FrameBuffer& WritingThread::Slot() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !free_.empty(); });
    given_ = free_.front();
    return frames_[static_cast<std::size_t>(given_)];
}

void WritingThread::Put(std::int64_t pts, std::int64_t duration) {
    {
        const std::lock_guard lock(mutex_);
        free_.pop_front();
        items_.emplace_back(Timed{given_, pts, duration});
    }
    changed_.notify_all();
}

void WritingThread::Put(FilmPacket packet) {
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return packetBytes_ < mostPacketBytes; });
        packetBytes_ += LengthOf(packet);
        items_.emplace_back(std::move(packet));
    }
    changed_.notify_all();
}

Reason WritingThread::Error() {
    const std::lock_guard lock(mutex_);
    return error_;
}

Reason WritingThread::Drain() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return items_.empty() && !busy_; });
    return error_;
}

Reason WritingThread::Write(const Item& item) {
    if (const auto* const packet = std::get_if<FilmPacket>(&item)) {
        return writer_.Write(*packet);
    }
    const Timed& timed = std::get<Timed>(item);
    const FrameBuffer& frame = frames_[static_cast<std::size_t>(timed.slot)];
    return writer_.Write(frame.View(), timed.pts, timed.duration);
}

void WritingThread::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !items_.empty(); });
        if (items_.empty()) {
            return;
        }
        const Item item = std::move(items_.front());
        items_.pop_front();
        busy_ = true;
        Reason error = error_;
        lock.unlock();
        if (error.isEmpty()) {
            const Reason thrown = Attempt([&] { error = Write(item); });
            error = thrown.isEmpty() ? error : thrown;
        }
        lock.lock();
        error_ = error;
        busy_ = false;
        if (const auto* const timed = std::get_if<Timed>(&item)) {
            free_.push_back(timed->slot);
        } else {
            packetBytes_ -= LengthOf(std::get<FilmPacket>(item));
        }
        changed_.notify_all();
    }
}

}  // namespace varnel
