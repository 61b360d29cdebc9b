// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/empty_state.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "app/picture/picture_box.h"

namespace varnel {

namespace {

constexpr QColor litSurround(112, 112, 112);
constexpr QColor textColour(235, 235, 235);
constexpr QColor frameColour(170, 170, 170);
constexpr int margin = 24;  // logical pixels around the frame and within

}  // namespace

EmptyState::EmptyState(QWidget* window, const WindowParts& parts)
    : QWidget(parts.pictures), parts_(parts) {
    setObjectName(QStringLiteral("EmptyState"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(2 * margin, 2 * margin, 2 * margin, 2 * margin);
    column->addStretch();
    QLabel* const where = AddLabel("LabelDrop", tr("Drop fisheye photos here"));
    QFont large = where->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    where->setFont(large);
    AddLabel("LabelNext",
             tr("or choose File, Open image(s); then choose a projection under \"Remap\"."));
    column->addStretch();
    hide();
    parts.pictures->installEventFilter(this);
    window->installEventFilter(this);
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, [this] {
        setVisible(parts_.list->List()->count() == 0 && parts_.equipment->Gears()->count() > 0);
    });
    for (const QAbstractItemModel* const lines :
         {parts.list->List()->model(), parts.equipment->Gears()->model()}) {
        const auto soon = [this] { look_.start(0); };
        connect(lines, &QAbstractItemModel::rowsInserted, this, soon);
        connect(lines, &QAbstractItemModel::modelReset, this, soon);
    }
}

QLabel* EmptyState::AddLabel(const char* name, const QString& text) {
    auto* const label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, textColour);
    label->setPalette(colours);
    layout()->addWidget(label);
    return label;
}

void EmptyState::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), pictureSurround);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(lit_ ? textColour : frameColour, lit_ ? 3.0 : 2.0, Qt::DashLine));
    painter.setBrush(lit_ ? litSurround : pictureSurround);
    painter.drawRoundedRect(rect().adjusted(margin, margin, -margin, -margin), 12.0, 12.0);
}

void EmptyState::Light(bool lit) {
    lit_ = lit;
    update();
}

bool EmptyState::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Resize:
            setGeometry(parts_.pictures->rect());
            break;
        case QEvent::DragEnter:
            Light(true);
            break;
        case QEvent::DragLeave:
        case QEvent::Drop:
            Light(false);
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace varnel
