// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture_box.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <ranges>
#include <utility>

#include "remap/paint.h"

namespace varnel {

namespace {

constexpr int margin = 12;              // logical pixels around and between the pictures
constexpr double hitReach = 7.0;        // logical pixels
constexpr QColor surround(96, 96, 96);  // neutral, so that it does not tint what one sees
constexpr QColor emptyBox(84, 84, 84);
constexpr QColor warningAmber(255, 213, 79);

}  // namespace

PictureBox::PictureBox(const QString& hint, QWidget* parent) : QWidget(parent), hint_(hint) {
    setMouseTracking(true);  // overlays change the cursor
}

void PictureBox::Show(FIBITMAP* bitmap, QSize full) {
    // In the screen's own form, so that painting copies and converts nothing.
    image_ = ImageOf(bitmap).convertToFormat(QImage::Format_RGB32);
    picture_ = full.isEmpty() ? image_.size() : full;
    image_.setDevicePixelRatio(devicePixelRatioF());
    update();
}

QRectF PictureBox::PictureRect() const {
    const QSizeF size = image_.deviceIndependentSize();
    // Whole device pixels, or the picture would be blurred on a scaled screen.
    const double ratio = devicePixelRatioF();
    const double x = std::floor((width() - size.width()) / 2.0 * ratio) / ratio;
    const double y = std::floor((height() - size.height()) / 2.0 * ratio) / ratio;
    return {QPointF(x, y), size};
}

QTransform PictureBox::ToWidget() const {
    if (picture_.isEmpty()) {
        return {};
    }
    const QRectF place = PictureRect();
    return QTransform::fromTranslate(place.x(), place.y())
        .scale(place.width() / picture_.width(), place.height() / picture_.height());
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

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (image_.isNull()) {
        painter.fillRect(rect(), emptyBox);
        painter.setPen(QColor(225, 225, 225));
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, hint_);
        return;
    }
    painter.fillRect(rect(), surround);
    painter.drawImage(PictureRect().topLeft(), image_);
    const QTransform toWidget = ToWidget();
    for (PictureOverlay* const overlay : overlays_) {
        painter.save();
        overlay->Paint(painter, toWidget, picture_);
        painter.restore();
    }
}

OverlayInput PictureBox::InputAt(const QSinglePointEvent& event) const {
    const QTransform toPicture = ToWidget().inverted();
    return {toPicture.map(event.position()), hitReach * toPicture.m11(), event.buttons(),
            event.modifiers()};
}

void PictureBox::ShowCursorFor(const OverlayInput& input) {
    for (const PictureOverlay* const overlay : std::views::reverse(overlays_)) {
        if (const std::optional<QCursor> cursor = overlay->CursorAt(input)) {
            setCursor(*cursor);
            return;
        }
    }
    unsetCursor();
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    if (Empty() || holder_ != nullptr) {
        return;
    }
    const OverlayInput input = InputAt(*event);
    const auto taker =
        std::ranges::find_if(std::views::reverse(overlays_),
                             [&input](PictureOverlay* overlay) { return overlay->Press(input); });
    holder_ = taker.base() == overlays_.begin() ? nullptr : *taker;
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    if (Empty()) {
        return;
    }
    const OverlayInput input = InputAt(*event);
    if (holder_ != nullptr) {
        holder_->Move(input);
    } else {
        ShowCursorFor(input);
    }
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (holder_ == nullptr) {
        Q_EMIT Released(event->position().toPoint(), event->button(), event->modifiers());
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        std::exchange(holder_, nullptr)->Release(InputAt(*event));
        ShowCursorFor(InputAt(*event));
    }
}

void PictureBox::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / 120.0;
    const OverlayInput input = InputAt(*event);
    const bool used = !Empty() && std::ranges::any_of(std::views::reverse(overlays_),
                                                      [&](PictureOverlay* overlay) {
                                                          return overlay->Wheel(input, steps);
                                                      });
    event->setAccepted(used);
}

PictureArea::PictureArea(QWidget* parent)
    : QWidget(parent),
      from_(new PictureBox(tr("Add photos with \"Add image(s)\" or drop them here."), this)),
      to_(new PictureBox(tr("The converted picture appears here."), this)),
      trouble_(new QLabel(this)) {
    from_->setObjectName(QStringLiteral("PicSmallFrom"));
    from_->setAccessibleName(tr("Photo as shot"));
    to_->setObjectName(QStringLiteral("PicSmallTo"));
    to_->setAccessibleName(tr("Converted picture"));
    trouble_->setObjectName(QStringLiteral("LabelTrouble"));
    trouble_->setWordWrap(true);
    trouble_->setMargin(6);
    trouble_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    trouble_->setAutoFillBackground(true);
    QPalette warning = trouble_->palette();
    warning.setColor(QPalette::Window, warningAmber);
    warning.setColor(QPalette::WindowText, Qt::black);
    trouble_->setPalette(warning);
    trouble_->hide();
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, surround);
    setPalette(colours);
}

void PictureArea::ShowTrouble(const QString& text) {
    trouble_->setText(text);
    trouble_->setVisible(!text.isEmpty());
    PlaceTrouble();
}

void PictureArea::PlaceTrouble() {
    const QRect photo = from_->geometry();
    const int height = std::min(trouble_->heightForWidth(photo.width()), photo.height());
    trouble_->setGeometry(photo.left(), photo.bottom() + 1 - height, photo.width(), height);
}

void PictureArea::SetWanted(QSize size) {
    wanted_ = size;
    Place();
}

QSize PictureArea::Room() const {
    const int acrossPictures = SideBySide() ? 2 : 1;
    const int downPictures = SideBySide() ? 1 : 2;
    return {(width() - margin * (acrossPictures + 1)) / acrossPictures,
            (height() - margin * (downPictures + 1)) / downPictures};
}

void PictureArea::Place() {
    const QSize box = wanted_.boundedTo(Room().expandedTo({1, 1}));
    const QSize step =
        SideBySide() ? QSize(box.width() + margin, 0) : QSize(0, box.height() + margin);
    const QSize both = box + step;
    const QPoint corner((width() - both.width()) / 2, (height() - both.height()) / 2);
    from_->setGeometry(QRect(corner, box));
    to_->setGeometry(QRect(corner + QPoint(step.width(), step.height()), box));
    PlaceTrouble();
}

void PictureArea::resizeEvent(QResizeEvent* /*event*/) {
    Place();
    Q_EMIT RoomChanged();
}

}  // namespace varnel
