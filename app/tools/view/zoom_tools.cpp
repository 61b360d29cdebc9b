// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/zoom_tools.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QStatusBar>
#include <cmath>
#include <utility>

#include "app/panels/menu_entry.h"
#include "app/tools/hold_key.h"
#include "pipeline/output/save_wish.h"
#include "remap/projection/projection_info.h"

namespace varnel {

ZoomTools::ZoomTools(QMainWindow* window, const WindowParts& parts, const WindowView& view,
                     const Workspace& workspace, const WorkingState& state)
    : QObject(window),
      window_(window),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(state),
      from_(parts.pictures->From()),
      to_(parts.pictures->To()) {
    const auto busy = [this] { return workspace_.model.activity.Busy(); };
    feed_.Serve(
        [this] { return Wish(compares_ ? SamplingKind::Fine : SamplingOf(state_.settings)); },
        busy);
    classic_.Serve(
        [this] { return compares_ ? Wish(SamplingKind::Classic) : RegionScheduler::Wish(); }, busy);
    for (const RegionScheduler* const feed : {&feed_, &classic_}) {
        connect(feed, &RegionScheduler::Drawn, to_, &PictureBox::RedrawRows);
    }
    FollowZoom();
    for (PictureBox* const box : {from_, to_}) {
        box->AddOverlay(&lines_);
        ConnectBox(box);
    }
    connect(from_, &PictureBox::Shown, this, &ZoomTools::OnSourceShown);
    connect(to_, &PictureBox::Shown, this, &ZoomTools::OnResultShown);
    connect(parts.pictures, &PictureArea::RoomChanged, this, &ZoomTools::OnRoomChanged);
    connect(&workspace.model, &WorkspaceModel::SavingChanged, this, &ZoomTools::Renew);
    AddEntries();
    AddChoices();
    AddKeys();
    ShowZoom();
}

// The photo as an inset is shown whole.
void ZoomTools::FollowZoom() {
    from_->FollowZoom(Follows(from_) ? &zooms_.photo : nullptr, [this] {
        return FullPicture{Photo(), nullptr};
    });
    to_->FollowZoom(
        &zooms_.result,
        [this] {
            return FullPicture{feed_.Part().Result(), &feed_.Part()};
        },
        &zooms_.photo);
}

bool ZoomTools::Follows(const PictureBox* box) const {
    return box == to_ || parts_.pictures->View() != PictureView::Result;
}

void ZoomTools::AddEntries() {
    const auto add = [this](const char* name, const QString& text,
                            const QList<QKeySequence>& shortcuts, auto handler) {
        QAction* const entry = AddMenuEntry(parts_.viewMenu, name, text, shortcuts);
        connect(entry, &QAction::triggered, this, handler);
        return entry;
    };
    const auto step = [this](int steps) { ZoomMiddle(ZoomOf(Main()).Stepped(steps)); };
    QAction* const fit =
        add("CmdViewFit", tr("Fi&t"), {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { ShowAll(); });
    QAction* const actual = add("CmdViewActual", tr("&100 %"),
                                {QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_0),
                                 QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_1)},
                                [this] { ZoomMiddle(1.0); });
    add("CmdViewZoomIn", tr("Zoom i&n"),
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
        [step] { step(1); });
    add("CmdViewZoomOut", tr("Zoom &out"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
        [step] { step(-1); });
    bar_ = new ZoomBar(fit, actual, window_);
    connect(bar_, &ZoomBar::Wanted, this, &ZoomTools::ZoomMiddle);
    window_->statusBar()->addPermanentWidget(bar_);
    parts_.viewMenu->addSeparator();
}

void ZoomTools::AddChoices() {
    const auto addChoice = [this](const char* name, const QString& text, auto handler) {
        QAction* const entry = AddMenuEntry(parts_.viewMenu, name, text);
        entry->setCheckable(true);
        connect(entry, &QAction::toggled, this, handler);
        return entry;
    };
    const auto redraw = [this] {
        from_->RedrawOverlays();
        to_->RedrawOverlays();
    };
    addChoice("CmdViewGrid", tr("&Grid"), [this, redraw](bool on) {
        lines_.ShowGrid(on);
        redraw();
    });
    addChoice("CmdViewCross", tr("Centre c&ross"), [this, redraw](bool on) {
        lines_.ShowCross(on);
        redraw();
    });
    // The key works while held; chosen here, until it is chosen again.
    addChoice("CmdViewBefore", tr("&Before instead of after\tB"),
              [this](bool on) { ShowBefore(on); });
}

void ZoomTools::AddKeys() {
    const auto overPictures = [this] { return from_->underMouse() || to_->underMouse(); };
    // Lists look for what is typed.
    auto* const before = new HoldKey(Qt::Key_B, window_, [this, overPictures] {
        const QWidget* const focus = window_->focusWidget();
        const bool types = qobject_cast<const QComboBox*>(focus) != nullptr ||
                           qobject_cast<const QListView*>(focus) != nullptr ||
                           qobject_cast<const QLineEdit*>(focus) != nullptr;
        return !types || overPictures();
    });
    connect(before, &HoldKey::Held, this, [this](bool on) { ShowBefore(on); });
    auto* const pan = new HoldKey(Qt::Key_Space, window_,
                                  [this, overPictures] { return !AllShown() && overPictures(); });
    connect(pan, &HoldKey::Held, this, [this](bool on) {
        from_->HoldPan(on);
        to_->HoldPan(on);
    });
}

void ZoomTools::ConnectBox(PictureBox* box) {
    connect(box, &PictureBox::ZoomWanted, this, [this, box](QPointF point, double steps) {
        ZoomTo(box, point, ZoomOf(box).Scaled(std::exp2(steps / 2.0)));
    });
    connect(box, &PictureBox::ToggleWanted, this,
            [this, box](QPointF point) { Toggle(box, point); });
    connect(box, &PictureBox::Dragged, this, [this, box](QPointF by) {
        zooms_.Change(ZoomOf(box), [by](PictureZoom& zoom) { zoom.Pan(by); });
        ShowZoom();
    });
}

void ZoomTools::OnSourceShown() {
    if (Photo() == nullptr) {
        Drop();
        ShowScale();
        return;
    }
    if (to_->Empty()) {  // until there is one it counts as large as the photo
        SetPicture(zooms_.result, from_->Picture());
    }
    SetPicture(zooms_.photo, from_->Picture());
    to_->update();  // it may stand in for the other
}

// One of another size is shown whole, and the other with it.
void ZoomTools::SetPicture(PictureZoom& zoom, QSize picture) {
    const bool fitted = zoom.Fit();
    zoom.SetPicture(picture);
    if (zoom.Fit() != fitted) {
        ShowAll();
    } else {
        ShowScale();
    }
}

// An emptied box is also reported before another photo is loaded.
void ZoomTools::OnResultShown() {
    if (to_->Empty()) {
        Drop();
        return;
    }
    SetPicture(zooms_.result, to_->Picture());
    Renew();
}

void ZoomTools::Renew() {
    if (!zooms_.result.Fit()) {
        feed_.Renew();
        classic_.Renew();
    }
}

void ZoomTools::Drop() {
    feed_.Drop();
    classic_.Drop();
}

void ZoomTools::OnRoomChanged() {
    const bool fitted = AllShown();
    FollowZoom();
    SetView();
    if (AllShown() != fitted) {
        ShowAll();
    } else {
        ShowZoom();
    }
}

void ZoomTools::SetView() {
    zooms_.photo.SetView(Main()->View());
    zooms_.result.SetView(Main()->View());
}

RegionScheduler::Wish ZoomTools::Wish(SamplingKind sampling) const {
    if (zooms_.result.Fit() || to_->Empty() || to_->isHidden()) {
        return {};
    }
    ImageRecord drawn = AsSaved(view_.Drawn(), sampling);
    if (compares_) {
        drawn.Sampling = sampling;
    }
    return {Photo(), ProjectionFromIndex(drawn.Projection), drawn, VisibleRows()};
}

RowSpan ZoomTools::VisibleRows() const {
    const QRectF seen = zooms_.result.Visible();
    const int height = to_->Picture().height();
    return {height - static_cast<int>(std::ceil(seen.bottom())),
            height - 1 - static_cast<int>(std::floor(seen.top()))};
}

void ZoomTools::ZoomTo(const PictureBox* box, QPointF point, double scale) {
    if (from_->Empty() || !Follows(box)) {
        return;
    }
    SetView();
    const QPointF place = box->ToWidget().inverted().map(point);
    zooms_.Change(ZoomOf(box),
                  [&](PictureZoom& zoom) { zoom.Show(scale, place, box->ViewPoint(point)); });
    ShowZoom();
}

void ZoomTools::ZoomMiddle(double scale) {
    ZoomTo(Main(), QRectF(Main()->rect()).center(), scale);
}

void ZoomTools::Toggle(const PictureBox* box, QPointF point) {
    ZoomTo(box, point, ZoomOf(box).Fit() ? 1.0 : 0.0);
}

void ZoomTools::ShowAll() {
    zooms_.ShowAll();
    ShowZoom();
}

void ZoomTools::ShowScale() {
    if (Photo() == nullptr) {
        bar_->ShowNothing();
    } else {
        bar_->Show(ZoomOf(Main()));
    }
}

void ZoomTools::ShowZoom() {
    ShowScale();
    from_->update();
    to_->update();
    if (zooms_.result.Fit()) {
        Drop();
    } else {
        feed_.Wake();
        classic_.Wake();
    }
}

void ZoomTools::CompareSamplings(bool on) {
    const bool changed = std::exchange(compares_, on) != on;
    if (on && zooms_.result.Fit()) {
        ZoomMiddle(1.0);
    } else if (changed) {
        classic_.Drop();
        Renew();
    }
}

void ZoomTools::ShowBefore(bool on) {
    to_->StandIn(on ? from_ : nullptr);
}

}  // namespace varnel
