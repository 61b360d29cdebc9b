// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/crop/crop_tools.h"

#include <QBoxLayout>
#include <new>

#include "app/panels/menu_entry.h"
#include "base/run_time_error.h"
#include "remap/analysis/clean_crop.h"
#include "remap/render/result_size.h"

namespace varnel {

namespace {

constexpr int burstPause = 600;  // ms without another key
constexpr int searchPause = 30;  // ms until an answer is asked for again

// Of a result before its crop, in shares; empty when there is none.
QRectF CleanCropOf(const ImageRecord& image, double shape) {
    const PixelSize photo{image.Width, image.Height};
    const PixelSize frame = ResultSizeOf(image, photo);
    SerialRunner runner;
    try {
        const CleanCrop found = ExactCleanCrop(
            {{&image, 1}, photo, frame, shape > 0.0 ? std::optional(shape) : std::nullopt}, runner);
        const double width = frame.width;
        const double height = frame.height;
        return {found.left / width, (frame.height - found.bottom - found.height) / height,
                found.width / width, found.height / height};
    } catch (const RunTimeError&) {
        return {};  // the preview reports why
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace

CropTools::CropTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace)
    : QObject(window),
      parts_(parts),
      result_(*parts.pictures->To()),
      view_(view),
      workspace_(workspace),
      commands_(workspace),
      overlay_(*this),
      leave_(new QShortcut(QKeySequence(Qt::Key_Escape), window)),
      bar_(new CropBar(parts.pictures->parentWidget())) {
    const QAction* const neighbour = window->findChild<QAction*>(QStringLiteral("CmdToolsLevel"));
    entry_ = AddMenuEntry(qobject_cast<QMenu*>(neighbour->parent()), "CmdToolsCrop", tr("&Crop"),
                          {Qt::CTRL | Qt::Key_K});
    entry_->setCheckable(true);
    leave_->setEnabled(false);
    parts_.pictures->parentWidget()->layout()->addWidget(bar_);
    burst_.setSingleShot(true);
    burst_.setInterval(burstPause);
    search_.setSingleShot(true);
    Connect();
}

void CropTools::Connect() {
    connect(entry_, &QAction::toggled, this, &CropTools::OnToggled);
    connect(parts_.size->CropButton(), &QPushButton::toggled, entry_, &QAction::setChecked);
    connect(entry_, &QAction::toggled, parts_.size->CropButton(), &QPushButton::setChecked);
    connect(bar_, &CropBar::ShapeChosen, this, &CropTools::TakeShape);
    connect(bar_, &CropBar::CleanWanted, this, &CropTools::FindClean);
    connect(bar_, &CropBar::AllWanted, this, &CropTools::TakeAll);
    connect(bar_, &CropBar::Done, this, &CropTools::Finish);
    connect(&burst_, &QTimer::timeout, this, [this] { workspace_.model.steps.Seal(); });
    connect(&search_, &QTimer::timeout, this, &CropTools::TakeClean);
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, [this] {
        overlay_.LetGo();
        tried_.reset();
    });
    connect(&workspace_.model.steps, &ListSteps::Changed, this, &CropTools::Refresh,
            Qt::QueuedConnection);
    connect(&view_, &WindowView::ResultShown, this, &CropTools::Refresh);
    connect(leave_, &QShortcut::activated, this, &CropTools::Finish);
}

void CropTools::OnToggled(bool on) {
    overlay_.LetGo();
    tried_.reset();
    result_.RemoveOverlay(&overlay_);
    if (on) {
        if (parts_.pictures->View() == PictureView::Photo) {
            parts_.views[static_cast<std::size_t>(PictureView::Split)]->click();
        }
        result_.AddOverlay(&overlay_);
        if (!result_.Empty()) {
            result_.setFocus();  // for the arrow keys
        }
    }
    leave_->setEnabled(on);
    bar_->setVisible(on);
    commands_.ShowWholeFrame(on);
    Refresh();
}

// Only over a result that is drawn without it.
std::optional<QRectF> CropTools::Crop() const {
    const ImageRecord* const image = workspace_.model.list.Current();
    if (image == nullptr || result_.Empty() || result_.StoodInFor() || IsCropped(view_.Drawn())) {
        return std::nullopt;
    }
    return tried_ ? *tried_ : CropOf(*image);
}

double CropTools::Shape() const {
    const QSizeF frame = FrameSize();
    const double ratio = frame.width() / frame.height();
    return bar_->Shape(ratio) / ratio;
}

void CropTools::Try(const QRectF& crop) {
    if (MayCrop()) {
        tried_ = crop;
        Refresh();
    }
}

void CropTools::StoreTried() {
    if (tried_ && *tried_ != CropOf(*workspace_.model.list.Current())) {
        commands_.CropCurrent(*tried_);
    }
    tried_.reset();
    Refresh();
}

void CropTools::Step(const QRectF& crop) {
    if (MayCrop()) {
        commands_.CropCurrent(crop, {steerKey, static_cast<int>(StepKind::Crop),
                                     workspace_.model.list.CurrentLine()});
        burst_.start();
        Refresh();
    }
}

void CropTools::TakeShape() {
    if (const std::optional<QRectF> crop = Crop(); crop && MayCrop()) {
        commands_.CropCurrent(ShapedCrop(*crop, Shape()));
        Refresh();
    }
}

void CropTools::TakeAll() {
    if (MayCrop()) {
        commands_.CropCurrent(wholeFrame);
        Refresh();
    }
}

// On another thread, with copies of its own.
void CropTools::FindClean() {
    const std::optional<QRectF> crop = Crop();
    if (!crop || !MayCrop() || clean_.valid()) {
        return;
    }
    searched_ = view_.Drawn();
    const double shape =
        bar_->Shape(static_cast<double>(FrameSize().width()) / FrameSize().height());
    std::packaged_task<QRectF()> task(
        [image = searched_, shape] { return CleanCropOf(image, shape); });
    clean_ = task.get_future();
    if (!workspace_.model.state.pool.Begin(task)) {
        task();
    }
    bar_->LetFind(false);
    view_.ShowStatus(tr("Looking for the largest clean crop ..."));
    search_.start(searchPause);
}

// What was changed meanwhile has another one.
void CropTools::TakeClean() {
    if (clean_.wait_for(std::chrono::seconds(0)) != std::future_status::ready || !MayCrop()) {
        search_.start(searchPause);
        return;
    }
    const QRectF found = clean_.get();
    bar_->LetFind(true);
    view_.ShowStatus(found.isEmpty() ? tr("No part of the result is without outside.") : QString());
    if (!found.isEmpty() && Crop() && view_.Drawn() == searched_) {
        commands_.CropCurrent(found);
        Refresh();
    }
}

QString CropTools::TextFor(const QRectF& crop) const {
    ImageRecord image = *workspace_.model.list.Current();
    const PixelSize photo{image.Width, image.Height};
    GiveCrop(crop, photo, image);
    const PixelSize cut = ResultSizeOf(image, photo);
    const PixelSize whole = ResultSizeOf(WithoutCrop(image, photo), photo);
    return tr("%1 x %2 of %3 x %4 pixels")
        .arg(cut.width)
        .arg(cut.height)
        .arg(whole.width)
        .arg(whole.height);
}

void CropTools::Refresh() {
    if (!entry_->isChecked()) {
        return;
    }
    const std::optional<QRectF> crop = Crop();
    bar_->ShowText(crop ? TextFor(*crop) : QString());
    result_.RedrawOverlays();
}

}  // namespace varnel
