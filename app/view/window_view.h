// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window's parts, which follow the workspace and note in its model what the user does with
// them. Throws nothing.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>

#include "app/view/window_parts.h"
#include "app/view/window_progress.h"
#include "app/workspace/workspace_model.h"
#include "app/workspace/workspace_view.h"

namespace varnel {

class WindowView : public QObject, public WorkspaceView {
    Q_OBJECT
  public:
    WindowView(QMainWindow* window, const WindowParts& parts, WorkspaceModel& model);

    PixelSize PreviewBox() const override;
    PixelSize PictureRoom() const override;
    RenderProgress& Progress() override { return progress_; }

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
        parts_.status->setText(text);
        parts_.status->setToolTip(text);  // it may not fit
    }
    void HandleEvents() override { progress_.HandleEvents(); }
    std::shared_ptr<void> Hourglass() override;
    void Lock(bool on) override;
    void LetCancel(std::function<void()> cancel) override;

    // What took the current photo, once it is loaded.
    void ShowOffer();

    const QString& Error() const { return error_; }
    // In the window's title, behind the photo's name; marked when there is unsaved work.
    void ShowProject(const QString& name, bool unsaved);
    void ShowTitle(const QString& photo);

    // The settings of the result that is shown.
    const ImageRecord& Drawn() const { return drawn_; }
    bool Locked() const { return locked_; }

  Q_SIGNALS:
    // The converted picture is another one or gone.
    void ResultShown();

  private:
    void FollowList();
    void FollowControls();
    void FollowGears();
    void FillList();
    void FillLines();
    QSize FullSize() const;  // of the current photo
    QSize ResultSize() const;

    QMainWindow* window_;
    WindowParts parts_;
    WorkspaceModel& model_;
    WindowProgress progress_;
    ImageRecord drawn_;
    bool locked_ = false;
    QString photo_, project_;  // of the title
    bool unsaved_ = false;
    QString error_;
    QPointer<QWidget> focusBeforeLock_;
    std::function<void()> cancel_;
};

}  // namespace varnel
