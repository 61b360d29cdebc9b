// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Makes the two pictures sharp in the size that they are shown whole in, once nothing changes: the
// photo by reducing it, the result by converting it anew for the screen, a slice in each turn of
// the event queue. Throws what the given functions throw; without memory the draft stays.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "app/picture/picture_area.h"
#include "base/block_runner.h"
#include "remap/render/region_renderer.h"
#include "remap/render/screen_render.h"

namespace varnel {

class ScreenPictures : public QObject {
    Q_OBJECT
  public:
    // The photo, null without one, and the settings of the draft that is shown.
    struct Wish {
        const Bitmap* photo = nullptr;
        ImageRecord image;
    };
    ScreenPictures(PictureArea& pictures, BlockRunner& runner, QObject* parent);
    // busy() puts the work off.
    void Serve(std::function<Wish()> wish, std::function<bool()> busy);

  Q_SIGNALS:
    // The result is sharp.
    void Finished();

  private:
    void OnPhotoShown();
    void OnResultShown();
    void OnRoomChanged();
    void WaitForRest();
    void Slice();
    void MakePhoto(const Bitmap& photo);
    bool MakeResult(const Wish& wish);
    void Begin(const Wish& wish);
    void Finish();
    const Bitmap& SourceFor(const Wish& wish);
    bool IsResultWanted() const;

    PictureArea& pictures_;
    BlockRunner& runner_;
    std::function<Wish()> wish_;
    std::function<bool()> busy_;
    RegionRenderer part_;
    BitmapHandle reduced_;  // the photo as the conversion reads it; null: as it is
    AreaPlace reducedPlace_;
    ImageRecord image_;  // what part_ is drawn with, and what of
    ScreenPlan plan_;
    PixelSize shown_;
    bool photoDone_ = false;
    bool resultDone_ = false;  // or it failed
    QTimer timer_{this};
};

}  // namespace varnel
