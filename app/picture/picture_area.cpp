// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/picture_area.h"

#include <algorithm>

namespace varnel {

namespace {

constexpr QColor warningAmber(255, 213, 79);

}  // namespace

PictureArea::PictureArea(QWidget* parent)
    : QWidget(parent),
      from_(new PictureBox(tr("Add photos with \"Add image(s)\" or drop them here."), this)),
      to_(new PictureBox(tr("The converted picture appears here."), this)),
      frame_(new InsetFrame(this)),
      error_(new QLabel(this)) {
    from_->setObjectName(QStringLiteral("PicSmallFrom"));
    from_->setAccessibleName(tr("Photo as shot"));
    to_->setObjectName(QStringLiteral("PicSmallTo"));
    to_->setAccessibleName(tr("Converted picture"));
    from_->setAccessibleDescription(
        tr("Plus and minus zoom, arrow keys move what is seen. While the image circle or the "
           "frame is shown on the photo, they change that."));
    to_->setAccessibleDescription(
        tr("Plus and minus zoom, arrow keys move what is seen. In Rectilinear they turn the camera "
           "by a degree, with Alt by a tenth."));
    error_->setObjectName(QStringLiteral("LabelError"));
    error_->setWordWrap(true);
    error_->setMargin(6);
    error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    error_->setAutoFillBackground(true);
    QPalette warning = error_->palette();
    warning.setColor(QPalette::Window, warningAmber);
    warning.setColor(QPalette::WindowText, Qt::black);
    error_->setPalette(warning);
    error_->hide();
    frame_->hide();
    connect(frame_, &InsetFrame::Wanted, this, [this](const QRect& place) {
        SetInset({place.x() / (1.0 * width()), place.y() / (1.0 * height()),
                  place.width() / (1.0 * width()), place.height() / (1.0 * height())});
    });
    connect(from_, &PictureBox::Shown, this, [this] {
        if (view_ == PictureView::Result) {
            Place();
        }
    });
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, pictureSurround);
    setPalette(colours);
}

void PictureArea::ShowError(const QString& text) {
    error_->setText(text);
    error_->setVisible(!text.isEmpty());
    from_->SetHintShown(text.isEmpty());
    PlaceError();
}

void PictureArea::PlaceError() {
    const QRect photo = from_->geometry();
    const int height = std::min(error_->heightForWidth(photo.width()), photo.height());
    error_->setGeometry(photo.left(), photo.bottom() + 1 - height, photo.width(), height);
}

void PictureArea::SetView(PictureView view) {
    if (view != view_) {
        view_ = view;
        Place();
        Q_EMIT RoomChanged();
    }
}

void PictureArea::SetInset(const QRectF& inset) {
    inset_ = inset;
    if (view_ == PictureView::Result) {
        Place();
        Q_EMIT RoomChanged();
    }
}

QSize PictureArea::Room() const {
    const bool split = view_ == PictureView::Split;
    const int acrossPictures = split && SideBySide() ? 2 : 1;
    const int downPictures = split && !SideBySide() ? 2 : 1;
    return {(width() - pictureMargin * (acrossPictures + 1)) / acrossPictures,
            (height() - pictureMargin * (downPictures + 1)) / downPictures};
}

void PictureArea::Place() {
    frame_->setVisible(view_ == PictureView::Result);
    to_->setVisible(view_ != PictureView::Photo);
    const QRect whole(QPoint(pictureMargin, pictureMargin), Room().expandedTo({1, 1}));
    switch (view_) {
        case PictureView::Split:
            PlaceSplit();
            break;
        case PictureView::Result:
            to_->setGeometry(whole);
            PlaceInset();
            break;
        case PictureView::Photo:
            from_->setGeometry(whole);
            break;
    }
    PlaceError();
}

void PictureArea::PlaceSplit() {
    const QSize box = Room().expandedTo({1, 1});
    const QPoint corner(pictureMargin, pictureMargin);
    const QPoint step = SideBySide() ? QPoint(box.width() + pictureMargin, 0)
                                     : QPoint(0, box.height() + pictureMargin);
    from_->setGeometry(QRect(corner, box));
    to_->setGeometry(QRect(corner + step, box));
}

// Of the photo's shape; wherever it was put, it stays on the area.
void PictureArea::PlaceInset() {
    const QSize wanted(qRound(inset_.width() * width()), qRound(inset_.height() * height()));
    const QSize size = InsetFrame::FittedTo(from_->Picture(), wanted.boundedTo(this->size()));
    const QPoint corner(std::clamp(qRound(inset_.x() * width()), 0, width() - size.width()),
                        std::clamp(qRound(inset_.y() * height()), 0, height() - size.height()));
    frame_->setGeometry(QRect(corner, size));
    from_->setGeometry(frame_->Inside());
    frame_->raise();
    from_->raise();
    error_->raise();
}

void PictureArea::resizeEvent(QResizeEvent* /*event*/) {
    Place();
    Q_EMIT RoomChanged();
}

}  // namespace varnel
