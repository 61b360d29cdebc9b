// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/empty_state.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "app/looks/tool_icon.h"
#include "app/panels/named_button.h"
#include "app/picture/picture_box.h"

namespace varnel {

namespace {

constexpr QColor litSurround(112, 112, 112);
constexpr QColor textColour(235, 235, 235);
constexpr QColor frameColour(170, 170, 170);
constexpr int margin = 24;  // logical pixels around the frame and within
constexpr int pictureSide = 72;

}  // namespace

EmptyState::EmptyState(QMainWindow* window, const WindowParts& parts)
    : QWidget(parts.pictures),
      window_(window),
      parts_(parts),
      column_(new QVBoxLayout(this)),
      picture_(ToolIcon("add", textColour)) {
    setObjectName(QStringLiteral("EmptyState"));
    column_->setContentsMargins(2 * margin, 2 * margin + pictureSide, 2 * margin, 2 * margin);
    column_->setSpacing(margin / 2);
    column_->addStretch();
    QLabel* const where = AddLabel("LabelDrop", tr("Drop fisheye photos here"));
    QFont large = where->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    where->setFont(large);
    AddLabel("LabelNext",
             tr("Each gets the gear that took it; then choose what the result shall be "
                "under \"Remap\"."));
    AddButtons();
    column_->addStretch();
    hide();
    parts.pictures->installEventFilter(this);
    window->installEventFilter(this);
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, [this] {
        setVisible(parts_.list->List()->count() == 0);
        raise();
    });
    const QAbstractItemModel* const lines = parts.list->List()->model();
    const auto soon = [this] { look_.start(0); };
    connect(lines, &QAbstractItemModel::rowsInserted, this, soon);
    connect(lines, &QAbstractItemModel::modelReset, this, soon);
    soon();
}

// They do what the entries of the menu do, one of which is made later.
void EmptyState::AddButtons() {
    auto* const row = new QHBoxLayout;
    row->addStretch();
    const auto add = [this, row](QPushButton* button, const char* entry) {
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, entry] {
            window_->findChild<QAction*>(QString::fromLatin1(entry))->trigger();
        });
    };
    add(NamedButton("CmdEmptyAdd", tr("Choose photos..."), tr("Adds photos to the list"), this),
        "CmdFileOpenFreeImage");
    add(NamedButton("CmdEmptySample", tr("Try the sample photo"),
                    tr("Opens a photo that is drawn by this program"), this),
        "CmdOpenSample");
    row->addStretch();
    column_->addLayout(row);
}

QLabel* EmptyState::AddLabel(const char* name, const QString& text) {
    auto* const label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, textColour);
    label->setPalette(colours);
    column_->addWidget(label);
    return label;
}

void EmptyState::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), pictureSurround);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(lit_ ? textColour : frameColour, lit_ ? 3.0 : 2.0, Qt::DashLine));
    painter.setBrush(lit_ ? litSurround : pictureSurround);
    painter.drawRoundedRect(rect().adjusted(margin, margin, -margin, -margin), 12.0, 12.0);
    const QRect texts = column_->itemAt(1)->geometry();
    picture_.paint(&painter,
                   QRect(texts.center().x() - pictureSide / 2,
                         texts.top() - pictureSide - margin / 2, pictureSide, pictureSide));
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
