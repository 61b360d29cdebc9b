// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/picture_box.h"

#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/display/paint.h"
#include "remap/image/preview_size.h"

namespace varnel {

namespace {

constexpr double hitReach = 7.0;    // logical pixels
constexpr double panShare = 0.125;  // of the view, with an arrow key

OverlayKey KeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
            return {event.key(), {-1, 0}};
        case Qt::Key_Right:
            return {event.key(), {1, 0}};
        case Qt::Key_Up:
            return {event.key(), {0, -1}};
        case Qt::Key_Down:
            return {event.key(), {0, 1}};
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // plus without Shift on many keyboards
            return {event.key(), {}, 1};
        case Qt::Key_Minus:
            return {event.key(), {}, -1};
        default:
            return {event.key()};
    }
}

}  // namespace

PictureBox::PictureBox(const QString& hint, QWidget* parent) : QWidget(parent), hint_(hint) {
    setMouseTracking(true);  // overlays change the cursor
}

void PictureBox::Show(const Bitmap* bitmap, QSize full) {
    // In the screen's own form, so that painting copies and converts nothing.
    image_ = ImageOf(bitmap).convertToFormat(QImage::Format_RGB32);
    sharp_.clear();
    picture_ = full.isEmpty() ? image_.size() : full;
    // Not by a click: the keyboard stays with the list or the slider that is worked with.
    setFocusPolicy(image_.isNull() ? Qt::NoFocus : Qt::TabFocus);
    update();
    Q_EMIT Shown();
}

void PictureBox::ShowSharp(std::vector<QImage> images) {
    sharp_ = std::move(images);
    for (QImage& image : sharp_) {
        colour_.Apply(image);
    }
    update();
}

void PictureBox::SetColour(const ScreenColour& colour) {
    colour_ = colour;
    sharp_.clear();
    update();
}

// Rounded as the working bitmap's size is, which needs no scaling then.
QSize PictureBox::FitSizeIn(const PictureBox& box) const {
    const QSize view = box.View();
    if (picture_.isEmpty() || view.isEmpty()) {
        return {};
    }
    const PixelSize fit =
        FittedSize({picture_.width(), picture_.height()}, {view.width(), view.height()});
    return {fit.width, fit.height};
}

const QImage* PictureBox::SharpFor(QSize size) const {
    const auto found = std::ranges::find(sharp_, size, &QImage::size);
    return found == sharp_.end() ? nullptr : &*found;
}

void PictureBox::FollowZoom(const PictureZoom* zoom, std::function<FullPicture()> full,
                            const PictureZoom* standInZoom) {
    zoom_ = zoom;
    standInZoom_ = standInZoom;
    full_ = std::move(full);
}

void PictureBox::StandIn(const PictureBox* other) {
    standIn_ = other;
    update();
}

QRectF PictureBox::DividedPart() const {
    QRectF part = SeenPart();
    const bool divided = left_.other != nullptr || (left_.full && Zoomed());
    part.setWidth(divided ? std::round(part.width() * divided_) : 0.0);
    return part;
}

QSize PictureBox::View() const {
    const QSizeF size = QSizeF(this->size()) * devicePixelRatioF();
    return {static_cast<int>(size.width()), static_cast<int>(size.height())};
}

// On a scaled screen a box may begin within a pixel of the screen; the grid of whole ones begins
// that much before it.
QPointF PictureBox::GridOffset() const {
    const QPointF origin = QPointF(mapTo(window(), QPoint())) * devicePixelRatioF();
    return {origin.x() - std::floor(origin.x()), origin.y() - std::floor(origin.y())};
}

QPointF PictureBox::ViewPoint(QPointF point) const {
    return point * devicePixelRatioF() + GridOffset();
}

QRectF PictureBox::PictureRect() const {
    const double ratio = devicePixelRatioF();
    if (Zoomed()) {
        return {(Zoom()->Corner() - GridOffset()) / ratio,
                QSizeF(Source().picture_) * Zoom()->Scale() / ratio};
    }
    const QRectF fit = FitRect();
    return {(fit.topLeft() - GridOffset()) / ratio, fit.size() / ratio};
}

// Whole device pixels, or the picture would be blurred on a scaled screen.
QRectF PictureBox::FitRect() const {
    const QSize view = View();
    const QSize size = Source().FitSizeIn(*this);
    // NOLINTNEXTLINE(bugprone-integer-division): whole pixels are meant
    return {QPointF((view.width() - size.width()) / 2, (view.height() - size.height()) / 2), size};
}

void PictureBox::RedrawRows(RowSpan rows) {
    if (!Zoomed() || rows.last < rows.first || StoodInFor()) {
        return;
    }
    const int height = picture_.height();
    const QRectF lines(0, height - 1 - rows.last, picture_.width(), rows.last - rows.first + 1);
    update(ToWidget().mapRect(lines).toAlignedRect().adjusted(-1, -1, 1, 1) & rect());
}

void PictureBox::HoldPan(bool held) {
    panHeld_ = held && Zoomed();
    if (panHeld_) {
        setCursor(Qt::OpenHandCursor);
    } else {
        unsetCursor();
    }
}

QTransform PictureBox::ToWidget() const {
    const QSize picture = Source().picture_;
    if (picture.isEmpty()) {
        return {};
    }
    const QRectF place = PictureRect();
    return QTransform::fromTranslate(place.x(), place.y())
        .scale(place.width() / picture.width(), place.height() / picture.height());
}

void PictureBox::AddOverlay(PictureOverlay* overlay) {
    overlays_.push_back(overlay);
    update();
}

void PictureBox::RemoveOverlay(PictureOverlay* overlay) {
    std::erase(overlays_, overlay);
    if (holder_ == overlay) {
        holder_ = nullptr;
    }
    update();
}

OverlayInput PictureBox::InputAt(const QSinglePointEvent& event) const {
    const QTransform toPicture = ToWidget().inverted();
    return {toPicture.map(event.position()),
            hitReach * toPicture.m11(),
            event.buttons(),
            event.modifiers(),
            toPicture.m11(),
            event.type() == QEvent::MouseButtonDblClick};
}

void PictureBox::ShowCursorFor(const OverlayInput& input) {
    for (auto overlay = overlays_.rbegin(); overlay != overlays_.rend(); ++overlay) {
        if (const std::optional<QCursor> cursor = (*overlay)->CursorAt(input)) {
            setCursor(*cursor);
            return;
        }
    }
    unsetCursor();
}

bool PictureBox::OverlaysTake(const OverlayInput& input) {
    const auto taker = std::find_if(overlays_.rbegin(), overlays_.rend(),
                                    [&](PictureOverlay* overlay) { return overlay->Press(input); });
    if (taker == overlays_.rend()) {
        return false;
    }
    holder_ = *taker;
    return true;
}

// The tools come first; without one that uses them, arrows and plus and minus move the visible
// part.
void PictureBox::keyPressEvent(QKeyEvent* event) {
    OverlayKey key = KeyOf(*event);
    key.pixel = Empty() ? 0.0 : ToWidget().inverted().m11();
    key.modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (Empty() || holder_ != nullptr || dragFrom_ || !UseKey(key)) {
        QWidget::keyPressEvent(event);
    }
}

bool PictureBox::UseKey(const OverlayKey& key) {
    if (std::any_of(overlays_.rbegin(), overlays_.rend(),
                    [&](PictureOverlay* overlay) { return overlay->Key(key); })) {
        return true;
    }
    const QPointF middle = QRectF(rect()).center();
    if (key.key == Qt::Key_Escape) {
        Q_EMIT LeaveWanted();
    } else if (key.key == Qt::Key_Return || key.key == Qt::Key_Enter) {
        Q_EMIT ToggleWanted(middle);
    } else if (key.grows != 0) {
        Q_EMIT ZoomWanted(middle, key.grows);
    } else if (!key.arrow.isNull() && Zoomed()) {
        Q_EMIT Dragged({-key.arrow.x() * View().width() * panShare,
                        -key.arrow.y() * View().height() * panShare});
    } else {
        return false;
    }
    return true;
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    if (Empty() || holder_ != nullptr || dragFrom_) {
        return;
    }
    const bool left = event->button() == Qt::LeftButton;
    const bool panning = event->button() == Qt::MiddleButton || (left && panHeld_);
    if (!panning && OverlaysTake(InputAt(*event))) {
        return;
    }
    if (Zoomed() && (panning || left)) {
        dragFrom_ = ViewPoint(event->position());
        setCursor(Qt::ClosedHandCursor);
    }
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    if (Empty()) {
        return;
    }
    if (holder_ != nullptr) {
        holder_->Move(InputAt(*event));
    } else if (dragFrom_) {
        const QPointF to = ViewPoint(event->position());
        Q_EMIT Dragged(to - std::exchange(*dragFrom_, to));
    } else if (!panHeld_) {
        ShowCursorFor(InputAt(*event));
    }
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton && dragFrom_) {
        dragFrom_.reset();
        HoldPan(panHeld_);
    }
    if (holder_ == nullptr) {
        Q_EMIT Released(event->position().toPoint(), event->button(), event->modifiers());
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        std::exchange(holder_, nullptr)->Release(InputAt(*event));
        ShowCursorFor(InputAt(*event));
    }
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (Empty() || holder_ != nullptr || event->button() != Qt::LeftButton ||
        OverlaysTake(InputAt(*event))) {
        return;
    }
    Q_EMIT ToggleWanted(event->position());
}

void PictureBox::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / 120.0;
    if (Empty()) {
        event->ignore();
        return;
    }
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        Q_EMIT ZoomWanted(event->position(), steps);
        return;
    }
    const OverlayInput input = InputAt(*event);
    event->setAccepted(
        std::any_of(overlays_.rbegin(), overlays_.rend(),
                    [&](PictureOverlay* overlay) { return overlay->Wheel(input, steps); }));
}

}  // namespace varnel
