// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/prefetching_reader.h"

#include <algorithm>

#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

constexpr int betweenQuestions = 15;  // ms; events are handled that often
constexpr int mostReaders = 4;        // each may hold a whole picture

}  // namespace

PrefetchingReader::PrefetchingReader(PictureReader& reader, int more, ReadingWait& wait,
                                     const ReadChoices& choices, ThreadRunner* cores)
    : cores_(reader.IsApart() && cores != nullptr && cores->Cores() > 1 ? cores : nullptr),
      thread_(cores_ == nullptr ? nullptr : std::make_unique<ReadingThread>(&reader, *cores_)),
      first_(thread_ ? *thread_ : reader),
      wait_(wait),
      choices_(choices) {
    for (int n = 0; n < more && reader.IsApart(); ++n) {
        more_.push_back(cores_ == nullptr ? NewPictureReader()
                                          : std::make_unique<ReadingThread>(nullptr, *cores_));
    }
}

PrefetchingReader::~PrefetchingReader() {
    GiveUp();
}

void PrefetchingReader::GiveUp() {
    for (const UnderWay& photo : underWay_) {
        photo.reader->Cancel();
    }
    underWay_.clear();
}

PictureReader* PrefetchingReader::FreeReader() const {
    const auto isFree = [this](const PictureReader* reader) {
        return std::ranges::none_of(underWay_,
                                    [&](const UnderWay& photo) { return photo.reader == reader; });
    };
    if (isFree(&first_)) {
        return &first_;
    }
    for (const auto& reader : more_) {
        if (isFree(reader.get())) {
            return reader.get();
        }
    }
    return nullptr;
}

void PrefetchingReader::ReadAhead(const QString& path) {
    if (PictureReader* const reader = FreeReader()) {
        underWay_.push_back({path, reader});
        reader->Begin(RequestFor(path));
    }
}

ReadRequest PrefetchingReader::RequestFor(const QString& path) const {
    ReadRequest request{path, ReadKind::Whole, {}, choices_.upright, choices_.depth, choices_.raw};
    request.planar = choices_.planar;
    return request;
}

LoadedPicture PrefetchingReader::TakeEarly(const QString& path) {
    if (!thread_ || !underWay_.empty()) {
        return Take(path);
    }
    thread_->BeginEarly(RequestFor(path));
    underWay_.push_back({path, thread_.get()});
    return Take(path);
}

LoadedPicture PrefetchingReader::TakeWhole(const QString& path) {
    underWay_.push_back({path, thread_.get()});
    return Take(path);
}

LoadedPicture PrefetchingReader::Take(const QString& path) {
    if (underWay_.empty() || underWay_.front().path != path) {
        GiveUp();
        ReadAhead(path);
    }
    const UnderWay photo = underWay_.front();
    LoadedPicture picture = WaitFor(photo);
    underWay_.pop_front();
    return picture;
}

std::optional<CoreLent> PrefetchingReader::Lent() {
    return cores_ == nullptr ? std::nullopt : std::optional<CoreLent>(std::in_place, *cores_);
}

LoadedPicture PrefetchingReader::WaitFor(const UnderWay& photo) {
    wait_.Begin(photo.path);
    bool goesOn = true;
    {
        const std::optional<CoreLent> lent = Lent();
        while (goesOn && !photo.reader->Wait(betweenQuestions)) {
            goesOn = wait_.Continue();
        }
    }
    wait_.End();
    if (!goesOn) {
        photo.reader->Cancel();
        return LoadedPicture::Refused(ReasonCode::Cancelled);
    }
    return photo.reader->Take();
}

void EndMeanwhile(std::shared_ptr<PrefetchingReader> feed, std::shared_ptr<PictureReader> reader,
                  ThreadRunner& pool) {
    std::packaged_task<void()> end([ending = std::move(feed), after = std::move(reader)]() mutable {
        ending.reset();
        after.reset();
    });
    if (!pool.Begin(end, TaskWeight::Light)) {
        end();
    }
}

bool HasRoomAhead(qsizetype photos, const LoadedPicture& last) {
    constexpr std::int64_t atWork = 4;  // source, two results, one of them encoded
    const PixelFormat format = last.bitmap ? last.bitmap->Format() : PixelFormat::Bgr8;
    const std::int64_t bytes = std::int64_t{last.size.width} * last.size.height * PixelStep(format);
    return static_cast<std::uint64_t>((photos + atWork) * bytes) <= MachineMemory() / 4 * 3;
}

int MoreReaders(int cores) {
    return std::clamp(cores / 2, 1, mostReaders) - 1;
}

}  // namespace varnel
