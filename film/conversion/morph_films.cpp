// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/morph_films.h"

#include "base/error_reason.h"
#include "base/run_time_error.h"
#include "film/conversion/converted_films.h"
#include "film/conversion/stills_film.h"
#include "pipeline/conversion/save_meanwhile.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"

namespace varnel {

namespace {

// Asks between the rows of a picture, too.
class Asking : public RenderProgress {
  public:
    Asking(const std::function<bool(int)>& goesOn, const int& frames, CancelFlag& cancelled)
        : goesOn_(goesOn), frames_(frames), cancelled_(cancelled) {}
    void HandleEvents() override { cancelled_ = cancelled_ || !goesOn_(frames_); }
    void Begin(float /*maximum*/) override { HandleEvents(); }
    void Advance(float /*value*/) override {}
    void Pause() override { HandleEvents(); }
    void End() override {}

  private:
    const std::function<bool(int)>& goesOn_;
    const int& frames_;
    CancelFlag& cancelled_;
};

}  // namespace

Reason MorphFilms::Make(const MorphFilm& film, const std::function<bool(int frames)>& goesOn) {
    const std::unique_ptr<PictureReader> reader = newReader_();
    LoadedPicture photo = ReadPicture(
        *reader, {.path = SourcePath(film.image), .kind = ReadKind::Whole, .upright = upright_()},
        [&goesOn] { return goesOn(0); });
    if (!photo.bitmap) {
        return photo.reason;
    }
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::move(photo.bitmap);
    RenderContext context{.bitmaps = bitmaps, .runner = &pool_};
    StillsFilm stills(film.path, EncodingOf(output_, film.path), FrameRateOf(film.framesPerSecond));
    int frames = 0;
    CancelFlag cancelled = false;
    Asking asking(goesOn, frames, cancelled);
    CancellableProgress progress(asking, cancelled);
    Reason reason;
    try {
        while (frames < film.frames && reason.isEmpty() && !cancelled) {
            Render(ProjectionFromIndex(film.image.Projection),
                   MorphFrame(film.image, film.ends, frames + 1, film.frames), SizeKind::Large,
                   progress, context);
            reason = stills.Add(*bitmaps.ResultBitmap, pool_);
            ++frames;
            asking.HandleEvents();
        }
    } catch (const SavingCancelled&) {
        return ReasonCode::Cancelled;
    } catch (const RunTimeError& error) {
        return ReasonFor(error);
    }
    if (cancelled) {
        return ReasonCode::Cancelled;
    }
    return reason.isEmpty() ? stills.Finish() : reason;
}

}  // namespace varnel
