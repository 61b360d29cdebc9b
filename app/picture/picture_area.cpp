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
      error_(new QLabel(this)) {
    from_->setObjectName(QStringLiteral("PicSmallFrom"));
    from_->setAccessibleName(tr("Photo as shot"));
    to_->setObjectName(QStringLiteral("PicSmallTo"));
    to_->setAccessibleName(tr("Converted picture"));
    for (PictureBox* const box : {from_, to_}) {
        box->setAccessibleDescription(
            tr("Plus and minus zoom, arrow keys move what is seen. While the image circle or the "
               "frame is shown on the photo, they change that."));
    }
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

void PictureArea::SetWanted(QSize size) {
    wanted_ = size;
    Place();
}

void PictureArea::SetRoomy(bool roomy) {
    roomy_ = roomy;
    Place();
}

QSize PictureArea::Room() const {
    const int acrossPictures = SideBySide() ? 2 : 1;
    const int downPictures = SideBySide() ? 1 : 2;
    return {(width() - pictureMargin * (acrossPictures + 1)) / acrossPictures,
            (height() - pictureMargin * (downPictures + 1)) / downPictures};
}

void PictureArea::Place() {
    const QSize room = Room().expandedTo({1, 1});
    const QSize box = roomy_ ? room : wanted_.boundedTo(room);
    const QSize step = SideBySide() ? QSize(box.width() + pictureMargin, 0)
                                    : QSize(0, box.height() + pictureMargin);
    const QSize both = box + step;
    const QPoint corner((width() - both.width()) / 2, (height() - both.height()) / 2);
    from_->setGeometry(QRect(corner, box));
    to_->setGeometry(QRect(corner + QPoint(step.width(), step.height()), box));
    PlaceError();
}

void PictureArea::resizeEvent(QResizeEvent* /*event*/) {
    Place();
    Q_EMIT RoomChanged();
}

}  // namespace varnel
