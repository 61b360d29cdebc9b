// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/photo_list.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include "state/editing/list_order.h"

namespace varnel {

namespace {

constexpr QSize linePicture(42, 28);
constexpr QSize stripPicture(96, 64);
constexpr int gap = 3;     // between marks
constexpr int margin = 4;  // around the pictures of the strip

int MarkSide(const QStyleOptionViewItem& option) {
    return option.fontMetrics.height() - 1;
}

QFont MarkFont(const QStyleOptionViewItem& option) {
    QFont font = option.font;
    font.setBold(true);
    font.setPixelSize(std::max(MarkSide(option) * 2 / 3, 6));
    return font;
}

// Dark enough for white letters on light and dark backgrounds alike.
QColor ColourOf(QChar letter) {
    switch (letter.unicode()) {
        case u'A':
            return {0x2f, 0x6f, 0xb5};
        case u'Q':
            return {0x2e, 0x7d, 0x45};
        case u'!':
            return {0xc0, 0x39, 0x2b};
        default:
            return {0x6b, 0x6b, 0x6b};
    }
}

// Each letter in a square, the last one at the right end.
void DrawMarks(QPainter& painter, const QStyleOptionViewItem& option, const QString& letters,
               QPoint middleOfRight) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(MarkFont(option));
    const int side = MarkSide(option);
    int left = middleOfRight.x() - static_cast<int>(letters.size()) * (side + gap);
    for (const QChar letter : letters) {
        const QRect mark(left, middleOfRight.y() - side / 2, side, side);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ColourOf(letter));
        painter.drawRoundedRect(mark, 3, 3);
        painter.setPen(Qt::white);
        painter.drawText(mark, Qt::AlignCenter, letter);
        left += side + gap;
    }
    painter.restore();
}

// Draws the marks and keeps the name and the small picture clear of them.
class LineDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        DrawMarks(*painter, option, index.data(PhotoList::marksRole).toString(),
                  {option.rect.right(), option.rect.center().y()});
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize plain = QStyledItemDelegate::sizeHint(option, index);
        return {plain.width(), std::max(plain.height(), linePicture.height() + 4)};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        // The names form one column, whether the pictures are made yet or not.
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = linePicture;
        const auto marks = index.data(PhotoList::marksRole).toString().size();
        const int room = option->rect.width() - linePicture.width() - 16 -
                         static_cast<int>(marks) * (MarkSide(*option) + gap);
        if (option->rect.width() > 0) {
            option->text =
                option->fontMetrics.elidedText(option->text, Qt::ElideMiddle, std::max(room, 0));
        }
    }
};

// A picture, its name below it and the marks in its lower right corner. A selected one keeps its
// colours.
class StripDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem shown = option;
        initStyleOption(&shown, index);
        const QStyle& style = *shown.widget->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &shown, painter, shown.widget);
        const QRect room = option.rect.adjusted(margin, margin, -margin, -margin);
        const QRect picture(room.topLeft(), stripPicture);
        shown.icon.paint(painter, picture);
        style.drawItemText(painter, room, Qt::AlignHCenter | Qt::AlignBottom, shown.palette,
                           shown.state.testFlag(QStyle::State_Enabled),
                           shown.fontMetrics.elidedText(shown.text, Qt::ElideMiddle, room.width()),
                           shown.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText
                                                                        : QPalette::Text);
        DrawMarks(*painter, option, index.data(PhotoList::marksRole).toString(),
                  {picture.right(), picture.bottom() - MarkSide(option) / 2});
        if (shown.state.testFlag(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect frame;
            frame.QStyleOption::operator=(shown);
            frame.rect = option.rect;
            style.drawPrimitive(QStyle::PE_FrameFocusRect, &frame, painter, shown.widget);
        }
    }

    QSize sizeHint(const QStyleOptionViewItem& option,
                   const QModelIndex& /*index*/) const override {
        return {stripPicture.width() + 2 * margin,
                stripPicture.height() + option.fontMetrics.height() + 2 * margin};
    }
};

}  // namespace

PhotoList::PhotoList(QWidget* parent) : QListWidget(parent) {
    SetStrip(false);
    setUniformItemSizes(true);
    setDragDropMode(InternalMove);
    setDropIndicatorShown(true);
}

void PhotoList::SetStrip(bool strip) {
    const QAbstractItemDelegate* const before = itemDelegate();
    QAbstractItemDelegate* delegate = nullptr;
    if (strip) {
        delegate = new StripDelegate(this);
    } else {
        delegate = new LineDelegate(this);
    }
    setItemDelegate(delegate);
    delete before;
    setIconSize(strip ? stripPicture : linePicture);
    setFlow(strip ? LeftToRight : TopToBottom);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(strip ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(strip ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    updateGeometry();
}

int PhotoList::StripHeight() const {
    return stripPicture.height() + fontMetrics().height() + 2 * margin + 2 * frameWidth() +
           horizontalScrollBar()->sizeHint().height();
}

QSize PhotoList::sizeHint() const {
    return Strip() ? QSize(400, StripHeight()) : QSize(200, 220);
}

QSize PhotoList::minimumSizeHint() const {
    return Strip() ? QSize(120, StripHeight()) : QSize(120, 110);
}

std::vector<int> PhotoList::SelectedLines() const {
    std::vector<int> lines;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        lines.push_back(index.row());
    }
    std::ranges::sort(lines);
    return lines;
}

void PhotoList::keyPressEvent(QKeyEvent* event) {
    const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
    const bool back = event->key() == Qt::Key_Up || (Strip() && event->key() == Qt::Key_Left);
    const bool on = event->key() == Qt::Key_Down || (Strip() && event->key() == Qt::Key_Right);
    if (alone && back) {
        Q_EMIT MoveWanted(TargetOneUp(SelectedLines()));
    } else if (alone && on) {
        Q_EMIT MoveWanted(TargetOneDown(count(), SelectedLines()));
    } else {
        const QScopedValueRollback handling(handlingInput_, true);
        const QPersistentModelIndex before = currentIndex();
        QListWidget::keyPressEvent(event);
        KeepCurrentSelected(before);
    }
}

// Up and down walk along the strip as well.
QModelIndex PhotoList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (!Strip()) {
        return QListWidget::moveCursor(action, modifiers);
    }
    const int page = std::max(viewport()->width() / (stripPicture.width() + 2 * margin), 1);
    const int row = currentIndex().isValid() ? currentIndex().row() : -1;
    int target = 0;
    switch (action) {
        case MoveUp:
        case MoveLeft:
        case MovePrevious:
            target = row - 1;
            break;
        case MoveDown:
        case MoveRight:
        case MoveNext:
            target = row + 1;
            break;
        case MovePageUp:
            target = row - page;
            break;
        case MovePageDown:
            target = row + page;
            break;
        case MoveHome:
            break;
        case MoveEnd:
            target = count() - 1;
            break;
    }
    return count() == 0 ? QModelIndex() : model()->index(std::clamp(target, 0, count() - 1), 0);
}

// The wheel turns up and down; the strip goes to the side.
void PhotoList::wheelEvent(QWheelEvent* event) {
    if (Strip() && event->angleDelta().x() == 0) {
        QScrollBar* const bar = horizontalScrollBar();
        bar->setValue(bar->value() - event->angleDelta().y() * stripPicture.width() / 120);
        event->accept();
        return;
    }
    QListWidget::wheelEvent(event);
}

// The view makes a line current and selects it in two steps; only after both can it be seen what is
// missing.
bool PhotoList::viewportEvent(QEvent* event) {
    if (!event->isPointerEvent()) {
        return QListWidget::viewportEvent(event);
    }
    const QScopedValueRollback handling(handlingInput_, true);
    const QPersistentModelIndex before = currentIndex();
    const bool used = QListWidget::viewportEvent(event);
    KeepCurrentSelected(before);
    return used;
}

void PhotoList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListWidget::selectionChanged(selected, deselected);
    KeepLater();
}

void PhotoList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListWidget::currentChanged(current, previous);
    KeepLater();
}

// For changes by neither mouse nor key, a screen reader for example.
void PhotoList::KeepLater() {
    QTimer::singleShot(0, this, [this] {
        if (!handlingInput_) {
            KeepCurrentSelected(currentIndex());
        }
    });
}

// A line that became current is selected with the others; where the current one was taken off the
// selection, the nearest of the others becomes current, or it stays when it was the last.
void PhotoList::KeepCurrentSelected(const QModelIndex& before) {
    const QModelIndex current = currentIndex();
    if (count() == 0 || (current.isValid() && selectionModel()->isSelected(current))) {
        return;
    }
    const std::vector<int> selected = SelectedLines();
    if (selected.empty() || (current.isValid() && current != before)) {
        selectionModel()->setCurrentIndex(current.isValid() ? current : model()->index(0, 0),
                                          QItemSelectionModel::Select);
        return;
    }
    const int nearest = *std::ranges::min_element(
        selected, {}, [&current](int line) { return std::abs(line - current.row()); });
    selectionModel()->setCurrentIndex(model()->index(nearest, 0), QItemSelectionModel::NoUpdate);
}

// The records move first and the lines follow them; if the drop were accepted, the view would
// remove lines itself.
void PhotoList::dropEvent(QDropEvent* event) {
    const QPoint position = event->position().toPoint();
    int target = count();
    if (const QListWidgetItem* const item = itemAt(position)) {
        const QPoint middle = visualItemRect(item).center();
        const bool behind = Strip() ? position.x() > middle.x() : position.y() > middle.y();
        target = row(item) + (behind ? 1 : 0);
    }
    event->setDropAction(Qt::IgnoreAction);
    event->ignore();
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
    QTimer::singleShot(0, this, [this, target] { Q_EMIT MoveWanted(target); });
}

}  // namespace varnel
