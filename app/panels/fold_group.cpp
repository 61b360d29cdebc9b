// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/fold_group.h"

#include <QEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "app/panels/spacing.h"

namespace varnel {

namespace {

// Its arrow shows the state; it does not look pressed besides.
class Header : public QToolButton {
  public:
    using QToolButton::QToolButton;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QStylePainter painter(this);
        QStyleOptionToolButton option;
        initStyleOption(&option);
        option.state.setFlag(QStyle::State_On, false);
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
    }
};

}  // namespace

FoldGroup::FoldGroup(const char* name, const QString& title, QWidget* parent)
    : QGroupBox(title, parent), header_(new Header(this)), body_(new QWidget(this)) {
    setObjectName(QString::fromLatin1(name));
    setContentsMargins({});
    header_->setObjectName(QStringLiteral("Fold") + objectName());
    header_->setText(title);
    header_->setCheckable(true);
    header_->setAutoRaise(true);
    header_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    header_->setFocusPolicy(Qt::StrongFocus);
    header_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    header_->setIconSize({10, 10});
    column_ = new QVBoxLayout(body_);
    column_->setContentsMargins(foldMargin, 0, foldMargin, rowGap);
    column_->setSpacing(rowGap);
    auto* const both = new QVBoxLayout(this);
    both->setContentsMargins({});
    both->setSpacing(0);
    auto* const top = new QHBoxLayout;
    top->setSpacing(0);
    top->addWidget(header_);
    both->addLayout(top);
    both->addWidget(body_);
    connect(header_, &QToolButton::toggled, this, [this](bool open) { Fold(!open); });
    header_->setChecked(true);
}

void FoldGroup::SetLabel(QLabel* label) {
    label_ = label;
    header_->setAccessibleName(header_->text());
    header_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    header_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    label_->installEventFilter(this);
    auto* const top = qobject_cast<QHBoxLayout*>(layout()->itemAt(0)->layout());
    top->addWidget(label_, 1);
}

void FoldGroup::Fold(bool folded) {
    header_->setArrowType(folded ? Qt::RightArrow : Qt::DownArrow);
    header_->setToolTip(folded ? tr("Shows what is in this group")
                               : tr("Hides what is in this group"));
    body_->setVisible(!folded);
    Q_EMIT FoldedChanged(folded);
}

// The header is the title.
void FoldGroup::paintEvent(QPaintEvent* /*event*/) {}

// The group box would keep room for a title of its own.
void FoldGroup::resizeEvent(QResizeEvent* /*event*/) {}

bool FoldGroup::eventFilter(QObject* watched, QEvent* event) {
    if (watched == label_ && event->type() == QEvent::MouseButtonRelease) {
        header_->toggle();
        return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void FoldGroup::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    setContentsMargins({});
}

}  // namespace varnel
