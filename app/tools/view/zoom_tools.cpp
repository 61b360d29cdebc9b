// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/zoom_tools.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QStatusBar>
#include <cmath>

#include "app/panels/menu_entry.h"
#include "app/tools/hold_key.h"
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
      to_(parts.pictures->To()),
      feed_(nullptr) {
    feed_.Serve([this] { return Wish(); }, [this] { return workspace_.model.activity.Busy(); });
    connect(&feed_, &RegionScheduler::Drawn, to_, &PictureBox::RedrawRows);
    FollowZoom();
    for (PictureBox* const box : {from_, to_}) {
        box->AddOverlay(&lines_);
        ConnectBox(box);
    }
    connect(from_, &PictureBox::Shown, this, &ZoomTools::OnSourceShown);
    connect(to_, &PictureBox::Shown, this, &ZoomTools::OnResultShown);
    connect(parts.pictures, &PictureArea::RoomChanged, this, &ZoomTools::OnRoomChanged);
    AddEntries();
    AddChoices();
    AddKeys();
    ShowZoom();
}

// The photo as an inset is shown whole.
void ZoomTools::FollowZoom() {
    from_->FollowZoom(Follows(from_) ? &zoom_ : nullptr, [this] {
        return FullPicture{Photo(), nullptr};
    });
    to_->FollowZoom(&zoom_, [this] { return FullPicture{feed_.Part().Result(), &feed_.Part()}; });
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
    const auto step = [this](int steps) { ZoomMiddle(zoom_.Stepped(steps)); };
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
                                  [this, overPictures] { return !zoom_.Fit() && overPictures(); });
    connect(pan, &HoldKey::Held, this, [this](bool on) {
        from_->HoldPan(on);
        to_->HoldPan(on);
    });
}

void ZoomTools::ConnectBox(PictureBox* box) {
    connect(box, &PictureBox::ZoomWanted, this, [this, box](QPointF point, double steps) {
        ZoomTo(box, point, zoom_.Scaled(std::exp2(steps / 2.0)));
    });
    connect(box, &PictureBox::ToggleWanted, this,
            [this, box](QPointF point) { Toggle(box, point); });
    connect(box, &PictureBox::Dragged, this, [this](QPointF by) {
        zoom_.Pan(by);
        ShowZoom();
    });
}

void ZoomTools::OnSourceShown() {
    if (Photo() == nullptr) {
        feed_.Drop();
        return;
    }
    const bool fitted = zoom_.Fit();
    zoom_.SetPicture(from_->Picture());
    if (zoom_.Fit() != fitted) {
        ShowAll();
    } else {
        bar_->Show(zoom_);
    }
    to_->update();  // it may stand in for the other
}

// An emptied box is also reported before another photo is loaded.
void ZoomTools::OnResultShown() {
    if (to_->Empty()) {
        feed_.Drop();
    } else if (!zoom_.Fit()) {
        feed_.Renew();
    }
}

void ZoomTools::OnRoomChanged() {
    const bool fitted = zoom_.Fit();
    FollowZoom();
    zoom_.SetView(Main()->View());
    if (zoom_.Fit() != fitted) {
        ShowAll();
    } else {
        ShowZoom();
    }
}

RegionScheduler::Wish ZoomTools::Wish() const {
    if (zoom_.Fit() || to_->Empty() || to_->isHidden()) {
        return {};
    }
    const ImageRecord& drawn = view_.Drawn();
    return {Photo(), ProjectionFromIndex(drawn.Projection), drawn, VisibleRows()};
}

RowSpan ZoomTools::VisibleRows() const {
    const QRectF seen = zoom_.Visible();
    const int height = from_->Picture().height();
    return {height - static_cast<int>(std::ceil(seen.bottom())),
            height - 1 - static_cast<int>(std::floor(seen.top()))};
}

void ZoomTools::ZoomTo(const PictureBox* box, QPointF point, double scale) {
    if (from_->Empty() || !Follows(box)) {
        return;
    }
    zoom_.SetView(Main()->View());
    zoom_.Show(scale, box->ToWidget().inverted().map(point), box->ViewPoint(point));
    if (zoom_.Fit()) {
        ShowAll();
    } else {
        ShowZoom();
    }
}

void ZoomTools::ZoomMiddle(double scale) {
    ZoomTo(Main(), QRectF(Main()->rect()).center(), scale);
}

void ZoomTools::Toggle(const PictureBox* box, QPointF point) {
    ZoomTo(box, point, zoom_.Fit() ? 1.0 : 0.0);
}

void ZoomTools::ShowAll() {
    zoom_.ShowAll();
    feed_.Drop();
    ShowZoom();
}

void ZoomTools::ShowZoom() {
    bar_->Show(zoom_);
    from_->update();
    to_->update();
    if (!zoom_.Fit()) {
        feed_.Wake();
    }
}

void ZoomTools::ShowBefore(bool on) {
    to_->StandIn(on ? from_ : nullptr);
}

}  // namespace varnel
