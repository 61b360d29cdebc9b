// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entry "Image circle": while it is checked, the image circle is drawn on the
// photo as shot, can be moved and found there, which acts on this photo at once, and be kept for
// the gear. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QObject>
#include <functional>
#include <optional>

#include "app/picture/circle_overlay.h"
#include "app/tools/circle_bar.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "decoder/process/picture_reader.h"
#include "remap/analysis/circle_finder.h"
#include "state/editing/gear_circle.h"
#include "state/settings/settings_store.h"

namespace varnel {

class CircleTools : public QObject {
    Q_OBJECT
  public:
    // The reader gives films' frames for finding; without it they are searched as they are shown.
    CircleTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                Workspace& workspace, SettingsStore& store,
                std::function<std::unique_ptr<PictureReader>()> newReader);

  private:
    void Connect();
    void OnToggled(bool on);
    void PrepareCurrent();
    // The one that the current record's numbers make; nothing without a photo.
    std::optional<ImageCircle> Shown();
    PixelSize PhotoSize() const;
    bool IsNewToGear(const ImageCircle& circle);
    int GearNumber();  // of the current photo; 0 for none
    // With the whole sensor of the current photo.
    GearRecord CurrentGear();
    QString Question(const ImageCircle& circle);
    // As a step of its own unless it has a key. False when nothing may be changed now.
    bool Put(const ImageCircle& circle, const StepKey& key = {});
    bool Change(const std::function<void(ImageRecord&)>& change, const StepKey& key);
    void Refresh();
    void Find();
    BitmapHandle FrameForFinding(const ImageRecord& film);
    static QString FoundText(const std::optional<FoundCircle>& found, bool onFilm);
    void Reset();
    void Ask();
    void Decline();
    void Take();
    void RestoreGear(const GearChange& change);

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    WorkingState& state_;
    SettingsStore& store_;
    std::function<std::unique_ptr<PictureReader>()> newReader_;
    CircleOverlay overlay_;
    QString found_;  // what the status shows of the last search for the circle
    CircleBar* bar_;
    QAction* entry_;
    QString asked_;          // the question that the bar shows; empty for none
    GearRecord unlisted_;    // of the photo whose gear is not in the table, as it was first met
    QString unlistedPhoto_;  // that photo and its gear
};

}  // namespace varnel
