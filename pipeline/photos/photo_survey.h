// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Looks into a photo for its gear while the caller does something else. Throws std::bad_alloc only.
#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <optional>

#include "base/thread_runner.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/analysis/circle_finder.h"
#include "remap/image/camera_info.h"

namespace varnel {

struct SurveyedPhoto {
    PhotoSize size;  // 0 x 0 when no circle was looked for
    CameraInfo origin;
    std::optional<FoundCircle> circle;
};

// What took the photo and, unless that is a lens that is no fisheye, the circle on it. Nothing when
// the photo cannot be read or keepReading returns false.
std::optional<SurveyedPhoto> Survey(PictureReader& reader, const QString& path, bool upright,
                                    const KeepReading& keepReading);

// Surveys one photo at a time on one of the pool's threads.
class PhotoSurvey {
  public:
    // The reader is made on that thread when it is needed, and kept.
    PhotoSurvey(std::function<std::unique_ptr<PictureReader>()> newReader, ThreadRunner& pool)
        : newReader_(std::move(newReader)), pool_(pool) {}
    ~PhotoSurvey() { Cancel(); }
    PhotoSurvey(const PhotoSurvey&) = delete;
    PhotoSurvey& operator=(const PhotoSurvey&) = delete;

    bool IsUnderWay() const { return photo_.valid(); }
    // Nothing else is under way. False when the system gives no thread.
    bool Begin(const QString& path, bool upright);
    // Whether the answer can be taken; does not wait.
    bool IsDone() const;
    std::optional<SurveyedPhoto> Take();
    // Ends the reader while nothing is under way; the next photo gets another one.
    void Rest() { reader_.reset(); }
    // Gives up what is under way and waits until it has ended.
    void Cancel();

  private:
    std::function<std::unique_ptr<PictureReader>()> newReader_;
    ThreadRunner& pool_;
    std::unique_ptr<PictureReader> reader_;
    std::atomic<bool> givenUp_ = false;
    std::future<std::optional<SurveyedPhoto>> photo_;
};

}  // namespace varnel
