// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/gear_result.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "gear/dialogs/drawn_room.h"
#include "gear/from_photo/gear_offer.h"
#include "remap/analysis/photo_circle.h"
#include "remap/display/paint.h"
#include "remap/image/preview_size.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "state/adjustments/frame_reading.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

constexpr PixelSize shownSize{240, 180};   // logical pixels
constexpr PixelSize sourceSize{480, 360};  // drawn larger, or what is magnified would be a blur

struct Stopped {};

class UntilStopped : public SilentProgress {
  public:
    explicit UntilStopped(const std::atomic<bool>& stopped) : stopped_(stopped) {}
    void Pause() override { Advance(0.0F); }
    void Advance(float /*value*/) override {
        if (stopped_) {
            throw Stopped();
        }
    }

  private:
    const std::atomic<bool>& stopped_;
};

// With the gear's numbers; of a picture that does not show the whole sensor as it would be read.
ImageRecord RecordFor(const GearRecord& gear, const Bitmap& photo, const ImageRecord& image) {
    ImageRecord record = image;
    record.Width = static_cast<std::int16_t>(photo.Size().width);
    record.Height = static_cast<std::int16_t>(photo.Size().height);
    record.Landscape = record.Width >= record.Height;
    record.SettingsApplied = false;
    AssignGear(gear, record);
    if (!TakeLensScale(record) && !ShapeError(record).isEmpty()) {
        ReadFrame(FindPhotoCircle(&photo), record);
    }
    record.OutputAOV = std::min(record.OutputAOV, 110.0F);  // a rim that is torn wide shows little
    return record;
}

struct Wanted {
    GearRecord gear;
    Projection projection = Projection::Rectilinear;
    std::shared_ptr<const Bitmap> photo;
    ImageRecord image;
};

QImage Draw(const Wanted& wanted, const std::atomic<bool>& stopped) {
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap =
        wanted.photo ? CloneBitmap(wanted.photo.get()) : DrawnRoom(wanted.gear, sourceSize);
    UntilStopped progress(stopped);
    RenderContext context{bitmaps, [] { return true; }};
    try {
        Render(wanted.projection,
               RecordFor(wanted.gear, *bitmaps.PreviewSourceBitmap, wanted.image),
               SizeKind::Thumbnails, progress, context);
    } catch (const RunTimeError&) {
        return {};
    } catch (const Stopped&) {
        return {};
    }
    return ImageOf(bitmaps.ResultBitmap.get());
}

}  // namespace

GearResult::GearResult(QLabel* label, QComboBox* projections)
    : QObject(label), label_(label), projections_(projections) {
    label_->setFixedSize(shownSize.width, shownSize.height);
    for (const Projection projection : AllProjections()) {
        projections->addItem(TitleOf(projection), static_cast<int>(projection));
    }
    projections->setCurrentText(TitleOf(Projection::Rectilinear));
    connect(projections, &QComboBox::currentIndexChanged, this, [this] {
        if (shown_) {
            Show(GearRecord(*shown_));
        }
    });
}

void GearResult::SetPhoto(const Bitmap& photo, const ImageRecord& image) {
    photo_ = ReducedCopy(&photo, PreviewSize(SizeOf(&photo), sourceSize, sourceSize));
    image_ = image;
}

void GearResult::Show(const GearRecord& gear) {
    shown_ = gear;
    again_ = drawing_.Busy();
    if (!again_) {
        Begin();
    }
}

void GearResult::Clear() {
    shown_.reset();
    again_ = false;
    label_->clear();
}

void GearResult::Begin() {
    const auto projection = static_cast<Projection>(projections_->currentData().toInt());
    drawing_.Start([wanted = Wanted{*shown_, projection, photo_, image_}](
                       const auto& stopped) { return Draw(wanted, stopped); },
                   [this](const QImage& image) { OnDrawn(image); });
}

void GearResult::OnDrawn(const QImage& image) {
    if (image.isNull() || !shown_) {
        label_->clear();
    } else {
        const double ratio = label_->devicePixelRatioF();
        QPixmap pixmap = QPixmap::fromImage(
            image.scaled(label_->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        pixmap.setDevicePixelRatio(ratio);
        label_->setPixmap(pixmap);
    }
    if (std::exchange(again_, false)) {
        Begin();
    }
}

}  // namespace varnel
