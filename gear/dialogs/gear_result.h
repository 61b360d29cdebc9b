// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A small result with the gear that is being edited: of a photo, or of a drawn room as the gear's
// camera and lens would see it without adjustments. Throws std::bad_alloc only.
#pragma once

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QObject>
#include <optional>

#include "gear/dialogs/background_work.h"
#include "remap/image/bitmap.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"
#include "state/records/projection.h"

namespace varnel {

class GearResult : public QObject {
    Q_OBJECT
  public:
    // Shown on the label, which owns it; in the projection that is chosen.
    GearResult(QLabel* label, QComboBox* projections);

    // Copied, and at preview size at the most. The adjustments are those of the record.
    void SetPhoto(const Bitmap& photo, const ImageRecord& image);
    bool HasPhoto() const { return photo_ != nullptr; }
    // Drawn elsewhere; of several gears in a row the last one counts.
    void Show(const GearRecord& gear);
    void Clear();

  private:
    void Begin();
    void OnDrawn(const QImage& image);

    QLabel* label_;
    std::shared_ptr<const Bitmap> photo_;
    ImageRecord image_;
    QComboBox* projections_;
    std::optional<GearRecord> shown_;  // the last one
    bool again_ = false;               // it came while another one was drawn
    BackgroundWork<QImage> drawing_{this};
};

}  // namespace varnel
