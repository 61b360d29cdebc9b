// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window as the workspace sees it.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <functional>
#include <vector>

#include "app/panels/adjustment_panel.h"
#include "app/panels/gear_offer_row.h"
#include "app/panels/side_panels.h"
#include "app/picture/picture_area.h"
#include "app/view/window_progress.h"
#include "app/workspace/workspace.h"

namespace varnel {

struct WindowParts {
    AdjustmentPanel* adjustments = nullptr;
    EquipmentPanel* equipment = nullptr;
    ImageListPanel* list = nullptr;
    SavePanel* save = nullptr;
    GearOfferRow* offer = nullptr;
    PictureArea* pictures = nullptr;
    QWidget* column = nullptr;  // the whole side column
    QMenu* editMenu = nullptr;
    QMenu* viewMenu = nullptr;
    QProgressBar* bar = nullptr;
    QPushButton* cancel = nullptr;  // beside the bar
    QLabel* status = nullptr;
};

class WindowView : public WorkspaceView {
  public:
    WindowView(QMainWindow* window, const WindowParts& parts, const WorkingState& state);

    int CurrentLine() const override { return parts_.list->List()->currentRow(); }
    std::vector<int> SelectedLines() const override { return parts_.list->SelectedLines(); }
    ControlValues Controls() const override { return parts_.adjustments->Values(); }
    Projection ChosenProjection() const override { return parts_.adjustments->Chosen(); }
    int ChosenGear() const override { return parts_.equipment->Gears()->currentIndex() + 1; }
    QString ChosenGearName() const override { return parts_.equipment->Gears()->currentText(); }
    bool AutoPreview() const override { return parts_.adjustments->AutoPreview()->isChecked(); }
    bool Antialiased() const override { return parts_.adjustments->Antialiased()->isChecked(); }
    PixelSize PreviewBox() const override;
    PixelSize PictureRoom() const override;
    RenderProgress& Progress() override { return progress_; }

    void ShowList(const RecordArray<ImageRecord>& images, int line) override;
    void ShowLines(const RecordArray<ImageRecord>& images, int current,
                   const std::vector<int>& selected) override;
    void ShowRecord(const ImageRecord& image) override;
    void ShowSource(const Bitmap* bitmap) override {
        parts_.pictures->From()->Show(bitmap, FullSize());
    }
    void ShowResult(const Bitmap* bitmap) override;
    void NoteDrawn(const ImageRecord& image) override { drawn_ = image; }
    void ShowError(const QString& text) override {
        error_ = text;
        parts_.pictures->ShowError(text);
    }
    void ShowStatus(const QString& text) override {
        ++statusNumber_;
        parts_.status->setText(text);
    }
    // Of the text in the status line: whoever remembers it knows whether theirs still stands there.
    int StatusNumber() const { return statusNumber_; }
    void HandleEvents() override { progress_.HandleEvents(); }
    std::shared_ptr<void> Hourglass() override;
    void Lock(bool on) override;
    void LetCancel(std::function<void()> cancel) override;

    void Idle() override {
        for (const auto& then : whenIdle_) {
            then();
        }
    }

    // What took the current photo, once it is loaded.
    void ShowOffer();

    const QString& Error() const { return error_; }
    // In the window's title, behind the photo's name; marked when there is unsaved work.
    void ShowProject(const QString& name, bool unsaved);
    void ShowTitle(const QString& photo);

    // The settings of the result that is shown; the projection is the chosen one.
    const ImageRecord& Drawn() const { return drawn_; }
    bool Locked() const { return locked_; }
    // Called when the converted picture is another one or gone.
    void WhenResultShown(std::function<void()> then) {
        whenResultShown_.push_back(std::move(then));
    }
    // Called when a conversion or a load is over.
    void WhenIdle(std::function<void()> then) { whenIdle_.push_back(std::move(then)); }
    // Called when the list was refilled and its line 0, if any, made current.
    void WhenListShown(std::function<void()> then) { whenListShown_ = std::move(then); }

  private:
    QSize FullSize() const;  // of the current photo

    QMainWindow* window_;
    WindowParts parts_;
    const WorkingState& state_;
    WindowProgress progress_;
    ImageRecord drawn_;
    bool locked_ = false;
    QString photo_, project_;  // of the title
    bool unsaved_ = false;
    QString error_;
    int statusNumber_ = 0;
    std::vector<std::function<void()>> whenResultShown_;
    std::vector<std::function<void()>> whenIdle_;
    QPointer<QWidget> focusBeforeLock_;
    std::function<void()> cancel_;
    std::function<void()> whenListShown_;
};

}  // namespace varnel
