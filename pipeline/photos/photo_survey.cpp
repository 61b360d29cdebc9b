// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/photo_survey.h"

#include <chrono>

#include "base/error_reason.h"
#include "gear/from_photo/photo_lens.h"
#include "remap/analysis/photo_circle.h"

namespace varnel {

std::optional<SurveyedPhoto> Survey(PictureReader& reader, const QString& path, bool upright,
                                    const KeepReading& keepReading) {
    const LoadedPicture facts =
        ReadPicture(reader, {path, ReadKind::Facts, {}, upright}, keepReading);
    if (facts.outcome == LoadOutcome::NotLoaded) {
        return std::nullopt;
    }
    if (NamesPlainLens(facts.facts.origin)) {
        return SurveyedPhoto{{}, facts.facts.origin, {}};
    }
    const LoadedPicture picture =
        ReadPicture(reader, {path, ReadKind::Whole, {}, upright}, keepReading);
    if (!picture.bitmap) {
        return std::nullopt;
    }
    const Bitmap* const photo = picture.bitmap.get();
    return SurveyedPhoto{
        {SizeOf(photo), picture.orientation}, photo->metadata.photo.origin, FindPhotoCircle(photo)};
}

bool PhotoSurvey::Begin(const QString& path, bool upright) {
    givenUp_ = false;
    std::packaged_task<std::optional<SurveyedPhoto>()> task([this, path, upright] {
        if (!reader_) {
            reader_ = newReader_();
        }
        return Survey(*reader_, path, upright, [this] { return !givenUp_; });
    });
    photo_ = task.get_future();
    // Light: the decoder is a process of its own, and on one core this must not wait for the
    // window.
    if (!pool_.Begin(task, TaskWeight::Light)) {
        photo_ = {};
        return false;
    }
    return true;
}

bool PhotoSurvey::IsDone() const {
    return photo_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

std::optional<SurveyedPhoto> PhotoSurvey::Take() {
    std::optional<SurveyedPhoto> photo;
    Attempt([&] { photo = photo_.get(); });  // a photo that there is no memory for tells nothing
    return photo;
}

void PhotoSurvey::Cancel() {
    if (photo_.valid()) {
        givenUp_ = true;
        photo_.wait();
        photo_ = {};
    }
}

}  // namespace varnel
