// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/photo_list.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>
#include <cstdlib>

#include "state/editing/list_order.h"

namespace varnel {

namespace {

constexpr QSize pictureSize(42, 28);
constexpr int gap = 3;  // between marks

// Draws the marks and keeps the name and the small picture clear of them.
class LineDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setFont(MarkFont(option));
        const QString letters = index.data(PhotoList::marksRole).toString();
        const int side = MarkSide(option);
        int left = option.rect.right() - static_cast<int>(letters.size()) * (side + gap);
        for (const QChar letter : letters) {
            const QRect mark(left, option.rect.center().y() - side / 2, side, side);
            painter->setPen(Qt::NoPen);
            painter->setBrush(ColourOf(letter));
            painter->drawRoundedRect(mark, 3, 3);
            painter->setPen(Qt::white);
            painter->drawText(mark, Qt::AlignCenter, letter);
            left += side + gap;
        }
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize plain = QStyledItemDelegate::sizeHint(option, index);
        return {plain.width(), std::max(plain.height(), pictureSize.height() + 4)};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        // The names form one column, whether the pictures are made yet or not.
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = pictureSize;
        const auto marks = index.data(PhotoList::marksRole).toString().size();
        const int room = option->rect.width() - pictureSize.width() - 16 -
                         static_cast<int>(marks) * (MarkSide(*option) + gap);
        if (option->rect.width() > 0) {
            option->text =
                option->fontMetrics.elidedText(option->text, Qt::ElideMiddle, std::max(room, 0));
        }
    }

  private:
    static int MarkSide(const QStyleOptionViewItem& option) {
        return option.fontMetrics.height() - 1;
    }
    static QFont MarkFont(const QStyleOptionViewItem& option) {
        QFont font = option.font;
        font.setBold(true);
        font.setPixelSize(std::max(MarkSide(option) * 2 / 3, 6));
        return font;
    }
    // Dark enough for white letters on light and dark backgrounds alike.
    static QColor ColourOf(QChar letter) {
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
};

}  // namespace

PhotoList::PhotoList(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new LineDelegate(this));
    setIconSize(pictureSize);
    setUniformItemSizes(true);
    setDragDropMode(InternalMove);
    setDropIndicatorShown(true);
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
    if (alone && event->key() == Qt::Key_Up) {
        Q_EMIT MoveWanted(TargetOneUp(SelectedLines()));
    } else if (alone && event->key() == Qt::Key_Down) {
        Q_EMIT MoveWanted(TargetOneDown(count(), SelectedLines()));
    } else {
        const QScopedValueRollback handling(handlingInput_, true);
        const QPersistentModelIndex before = currentIndex();
        QListWidget::keyPressEvent(event);
        KeepCurrentSelected(before);
    }
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
        target = row(item) + (position.y() > visualItemRect(item).center().y() ? 1 : 0);
    }
    event->setDropAction(Qt::IgnoreAction);
    event->ignore();
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
    QTimer::singleShot(0, this, [this, target] { Q_EMIT MoveWanted(target); });
}

}  // namespace varnel
