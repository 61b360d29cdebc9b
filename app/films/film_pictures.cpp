// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/film_pictures.h"

#include <atomic>
#include <chrono>
#include <future>
#include <utility>

#include "base/shortage.h"
#include "film/conversion/film_pictures.h"
#include "film/frames/frame_bitmap.h"
#include "film/reading/film_reader.h"
#include "remap/image/preview_size.h"

namespace varnel {

namespace {

// The first frame that can be decoded; none and a reason where there is no such frame.
LoadedPicture FirstFrame(FilmReader& reader, const ReadRequest& request) {
    LoadedPicture picture{LoadOutcome::Loaded, nullptr, {}, reader.Info().format.size};
    while (true) {
        const FilmItem item = reader.Next();
        if (const auto* const end = std::get_if<FilmEnd>(&item)) {
            return LoadedPicture::Refused(end->reason.isEmpty() ? ReasonCode::NoPicture
                                                                : end->reason);
        }
        if (const auto* const frame = std::get_if<std::shared_ptr<const FilmFrame>>(&item)) {
            SerialRunner runner;
            const bool isShallow =
                request.kind == ReadKind::Small || request.depth == ReadDepth::Eight;
            picture.bitmap = FrameToBitmap((*frame)->view, runner, isShallow);
            if (request.kind == ReadKind::Small) {
                const PixelSize whole = SizeOf(picture.bitmap.get());
                picture.bitmap =
                    ReducedCopy(picture.bitmap.get(), PreviewSize(whole, request.box, request.box));
            }
            picture.bitmap->metadata.photo.origin = CameraOf(reader.Info());
            return picture;
        }
    }
}

LoadedPicture MiddleFrame(FilmReader& reader, const std::function<bool()>& goesOn) {
    SerialRunner runner;
    auto frame = TypicalFrame(reader, runner, goesOn);
    if (const auto* const reason = std::get_if<Reason>(&frame)) {
        return LoadedPicture::Refused(*reason);
    }
    return {LoadOutcome::Loaded,
            std::get<BitmapHandle>(std::move(frame)),
            {},
            reader.Info().format.size};
}

LoadedPicture ReadFilm(const ReadRequest& request, StandIn frame,
                       const std::function<bool()>& goesOn) {
    const std::unique_ptr<FilmReader> reader = NewFilmReader();
    if (const Reason reason = reader->Open(request.path, {request.upright, false});
        !reason.isEmpty()) {
        return LoadedPicture::Refused(reason);
    }
    if (request.kind == ReadKind::Size || request.kind == ReadKind::Facts) {
        LoadedPicture picture{LoadOutcome::Loaded, nullptr, {}, reader->Info().format.size};
        picture.facts.origin = CameraOf(reader->Info());
        return picture;
    }
    return frame == StandIn::Typical && request.kind == ReadKind::Whole
               ? MiddleFrame(*reader, goesOn)
               : FirstFrame(*reader, request);
}

class FilmPictures : public PictureReader {
  public:
    FilmPictures(std::unique_ptr<PictureReader> photos, StandIn frame)
        : photos_(std::move(photos)), frame_(frame) {}
    ~FilmPictures() override { givenUp_ = true; }
    FilmPictures(const FilmPictures&) = delete;
    FilmPictures& operator=(const FilmPictures&) = delete;

    void Begin(const ReadRequest& request) override {
        if (!IsFilm(request.path)) {
            photos_->Begin(request);
            return;
        }
        // The reader of films waits on its own thread, as a decoder does in its process.
        givenUp_ = false;
        film_ = std::async(std::launch::async, [this, request] {
            LoadedPicture picture;
            const QString shortage = Shortage(
                [&] { picture = ReadFilm(request, frame_, [this] { return !givenUp_; }); });
            return shortage.isEmpty() ? std::move(picture)
                                      : LoadedPicture::Refused({ReasonCode::Words, shortage});
        });
    }

    bool Wait(int milliseconds) override {
        return film_.valid() ? film_.wait_for(std::chrono::milliseconds(milliseconds)) ==
                                   std::future_status::ready
                             : photos_->Wait(milliseconds);
    }

    LoadedPicture Take() override { return film_.valid() ? film_.get() : photos_->Take(); }

    void Cancel() override {
        if (film_.valid()) {
            givenUp_ = true;
            film_.get();  // a frame is soon there
        } else {
            photos_->Cancel();
        }
    }

    bool IsApart() const override { return photos_->IsApart(); }

  private:
    std::unique_ptr<PictureReader> photos_;
    StandIn frame_;
    std::atomic<bool> givenUp_ = false;
    std::future<LoadedPicture> film_;
};

}  // namespace

std::unique_ptr<PictureReader> WithFilms(std::unique_ptr<PictureReader> photos, StandIn frame) {
    return std::make_unique<FilmPictures>(std::move(photos), frame);
}

}  // namespace varnel
