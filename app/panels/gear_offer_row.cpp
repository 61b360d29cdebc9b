// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/gear_offer_row.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

namespace varnel {

namespace {

// Ends in dots where it has too little space, instead of widening the window.
class ShortenedLabel : public QLabel {
  public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return {40, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        style()->drawItemText(
            &painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, width()), foregroundRole());
    }
};

}  // namespace

GearOfferRow::GearOfferRow(QWidget* parent)
    : QWidget(parent),
      sign_(new QLabel(this)),
      error_(new QLabel(this)),
      line_(new ShortenedLabel(this)),
      button_(new QPushButton(this)) {
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    sign_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    error_->setObjectName(QStringLiteral("LabelGearError"));
    error_->setTextFormat(Qt::PlainText);
    QFont bold = error_->font();
    bold.setBold(true);
    error_->setFont(bold);
    line_->setObjectName(QStringLiteral("LabelTakenWith"));
    line_->setTextFormat(Qt::PlainText);
    button_->setObjectName(QStringLiteral("CmdOfferedGear"));
    setMinimumHeight(button_->sizeHint().height());
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 0, 0);
    layout->addWidget(sign_);
    layout->addWidget(error_);
    layout->addWidget(line_);
    layout->addWidget(button_);
    layout->addStretch();
    button_->hide();
    sign_->hide();
    error_->hide();
}

void GearOfferRow::Show(const GearOffer& offer, const GearTable& gears) {
    offer_ = offer;
    sign_->setVisible(!offer.error.isEmpty());
    error_->setVisible(!offer.error.isEmpty());
    error_->setText(offer.error);
    error_->setToolTip(
        tr("The camera or the lens of the gear in use is not the photo's: the "
           "circle and the angles do not fit."));
    line_->setText(offer.line);
    line_->setToolTip(offer.reason.isEmpty() ? offer.line
                                             : offer.line + QStringLiteral("\n") + offer.reason);
    if (offer.gear > 0) {
        const QString name = gears(offer.gear).GearName;
        const int longest = fontMetrics().averageCharWidth() * 40;
        // A plain "&" would be taken for the mark of a shortcut.
        button_->setText(tr("Use %1").arg(fontMetrics()
                                              .elidedText(name, Qt::ElideRight, longest)
                                              .replace(QStringLiteral("&"), QStringLiteral("&&"))));
        button_->setToolTip(tr("Gives this photo the gear \"%1\"").arg(name));
    } else if (offer.define) {
        button_->setText(tr("Define this gear..."));
        button_->setToolTip(
            offer.lost
                ? tr("Puts the gear that this photo was adjusted with into the list; the photo "
                     "stays as it is")
                : tr("Opens the gear editor with the camera and the lens chosen"));
    }
    button_->setVisible(offer.gear > 0 || offer.define);
}

}  // namespace varnel
