// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/contact_sheet_box.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "base/shortage.h"
#include "remap/display/paint.h"
#include "remap/image/preview_size.h"

namespace varnel {

namespace {

constexpr int mostBeside = 4;  // projections in a row
constexpr int margin = 8;      // logical pixels around and between the tiles
constexpr int gap = 4;         // between a tile and its title
constexpr QColor surround(72, 72, 72);
constexpr QColor emptyTile(84, 84, 84);
constexpr QColor markedFrame(255, 255, 255);
constexpr QColor currentFrame(255, 213, 79);
constexpr QColor titleText(235, 235, 235);
constexpr PixelSize largestTile{1200, 1200};

}  // namespace

ContactSheetBox::ContactSheetBox(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ContactSheet"));
    setAccessibleName(tr("Contact sheet"));
    setAccessibleDescription(tr("The photo in every projection and three strengths"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    hide();
    parent->installEventFilter(this);
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, &ContactSheetBox::DrawNext);
}

void ContactSheetBox::Open(const ImageRecord& image, const Bitmap* photo, bool smooth) {
    image_ = image;
    smooth_ = smooth;
    tiles_ = ContactTiles(image);
    const auto current = std::ranges::find(tiles_, true, &ContactTile::isCurrent);
    marked_ = current == tiles_.end() ? 0 : static_cast<int>(current - tiles_.begin());
    const QString shortage = Shortage([&] {
        photo_ = ReducedCopy(photo, PreviewSize(SizeOf(photo), largestTile, largestTile));
        Restart();
    });
    if (GiveUpFor(shortage)) {
        return;
    }
    focusBefore_ = window()->focusWidget();
    show();
    raise();
    setFocus();
}

bool ContactSheetBox::GiveUpFor(const QString& shortage) {
    if (shortage.isEmpty()) {
        return false;
    }
    hide();
    Drop();
    Q_EMIT GivenUp(shortage);
    return true;
}

void ContactSheetBox::Drop() {
    idle_.stop();
    photo_.reset();
    source_.reset();
}

void ContactSheetBox::Restart() {
    setGeometry(parentWidget()->rect());
    columns_ = Columns();
    const QSize room = CellSize(columns_) - QSize(0, fontMetrics().height() + gap);
    const auto side = [this](int logical) {
        return std::max(static_cast<int>(logical * devicePixelRatioF()), 1);
    };
    const PixelSize box{side(room.width()), side(room.height())};
    source_ = ReducedCopy(photo_.get(), PreviewSize(SizeOf(photo_.get()), box, box));
    pictures_.assign(tiles_.size(), QImage());
    next_ = 0;
    idle_.start(0);
}

void ContactSheetBox::DrawNext() {
    if (IsDrawn()) {
        return;
    }
    if (GiveUpFor(Shortage([this] { Draw(next_); }))) {
        return;
    }
    ++next_;
    update();
    if (!IsDrawn()) {
        idle_.start(0);
    }
}

void ContactSheetBox::Draw(std::size_t tile) {
    QImage& picture = pictures_[tile];
    try {
        const BitmapHandle bitmap = TilePicture(tiles_[tile], source_.get(), smooth_);
        picture = ImageOf(bitmap.get());
        picture.setDevicePixelRatio(devicePixelRatioF());
    } catch (const RunTimeError&) {
        picture = QImage();  // stays empty, as its preview would
    }
}

// Where projections stand beside one another, their names stand above their pictures.
int ContactSheetBox::HeadingHeight(int columns) const {
    return columns > strengthsPerProjection ? fontMetrics().height() : 0;
}

QSize ContactSheetBox::CellSize(int columns) const {
    const int rows = (static_cast<int>(tiles_.size()) + columns - 1) / columns;
    return {(width() - margin * (columns + 1)) / columns,
            rows == 0 ? 0 : (height() - margin * (rows + 1)) / rows - HeadingHeight(columns)};
}

// As many projections beside one another as make the pictures largest.
int ContactSheetBox::Columns() const {
    const PixelSize photo = photo_ == nullptr ? PixelSize{3, 2} : SizeOf(photo_.get());
    int best = strengthsPerProjection;
    double largest = 0.0;
    for (int beside = 1; beside <= mostBeside; ++beside) {
        const QSize cell = CellSize(beside * strengthsPerProjection);
        const double across = static_cast<double>(cell.width()) / photo.width;
        const double down =
            static_cast<double>(cell.height() - fontMetrics().height() - gap) / photo.height;
        if (const double size = std::min(across, down); size > largest) {
            largest = size;
            best = beside * strengthsPerProjection;
        }
    }
    return best;
}

QRect ContactSheetBox::CellOf(std::size_t tile) const {
    const int n = static_cast<int>(tile);
    const QSize cell = CellSize(columns_);
    const int heading = HeadingHeight(columns_);
    return {QPoint(margin + n % columns_ * (cell.width() + margin),
                   margin + heading + n / columns_ * (cell.height() + heading + margin)),
            cell};
}

int ContactSheetBox::TileAt(QPoint position) const {
    for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
        if (CellOf(tile).contains(position)) {
            return static_cast<int>(tile);
        }
    }
    return -1;
}

void ContactSheetBox::PaintTile(QPainter& painter, std::size_t tile) const {
    const QRect cell = CellOf(tile);
    const int line = fontMetrics().height();
    const QRect room = cell.adjusted(0, 0, 0, -line - gap);
    const QImage& picture = pictures_[tile];
    QRectF place = room;
    if (!picture.isNull()) {
        const QSizeF size = picture.deviceIndependentSize();
        place = QRectF(QPointF(room.center()) - QPointF(size.width() / 2, size.height() / 2), size);
        painter.drawImage(place.topLeft().toPoint(), picture);
    } else {
        painter.fillRect(room, emptyTile);
    }
    const bool marked = static_cast<int>(tile) == marked_;
    if (marked || tiles_[tile].isCurrent) {
        painter.setPen(QPen(marked ? markedFrame : currentFrame, 2));
        painter.drawRect(place.toRect().adjusted(-2, -2, 1, 1));
    }
    PaintTitle(painter, tile);
}

void ContactSheetBox::PaintTitle(QPainter& painter, std::size_t tile) const {
    const QRect cell = CellOf(tile);
    const int line = fontMetrics().height();
    const bool grouped = HeadingHeight(columns_) > 0;
    if (grouped && tile % strengthsPerProjection == 0) {
        painter.setPen(titleText);
        const int across = strengthsPerProjection * (cell.width() + margin) - margin;
        painter.drawText(QRect(cell.left(), cell.top() - line, across, line), Qt::AlignCenter,
                         tiles_[tile].projection);
    }
    QString title = grouped ? tiles_[tile].strength : tiles_[tile].title;
    if (tiles_[tile].isCurrent && !grouped) {  // its colour says it as well
        title += tr(" (as it is)");
    }
    painter.setPen(tiles_[tile].isCurrent ? currentFrame : titleText);
    painter.drawText(QRect(cell.left(), cell.bottom() - line + 1, cell.width(), line),
                     Qt::AlignCenter,
                     fontMetrics().elidedText(title, Qt::ElideRight, cell.width()));
}

void ContactSheetBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), surround);
    for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
        PaintTile(painter, tile);
    }
}

void ContactSheetBox::MoveTo(int tile) {
    if (tile >= 0 && tile < static_cast<int>(tiles_.size())) {
        marked_ = tile;
        update();
    }
}

void ContactSheetBox::Choose(int tile) {
    hide();
    if (tile >= 0) {
        Q_EMIT Chosen(tiles_[static_cast<std::size_t>(tile)]);
    }
}

void ContactSheetBox::mouseMoveEvent(QMouseEvent* event) {
    MoveTo(TileAt(event->position().toPoint()));
}

void ContactSheetBox::mousePressEvent(QMouseEvent* event) {
    if (const int tile = TileAt(event->position().toPoint());
        event->button() == Qt::LeftButton && tile >= 0) {
        Choose(tile);
    }
}

void ContactSheetBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveTo(marked_ - 1);
        case Qt::Key_Right:
            return MoveTo(marked_ + 1);
        case Qt::Key_Up:
            return MoveTo(marked_ - columns_);
        case Qt::Key_Down:
            return MoveTo(marked_ + columns_);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return Choose(marked_);
        case Qt::Key_Escape:
            return hide();
        default:
            QWidget::keyPressEvent(event);
    }
}

bool ContactSheetBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        GiveUpFor(Shortage([this] { Restart(); }));
    }
    return QWidget::eventFilter(watched, event);
}

void ContactSheetBox::hideEvent(QHideEvent* /*event*/) {
    Drop();
    if (hasFocus() && focusBefore_) {
        focusBefore_->setFocus();
    }
}

// With the focus in another control other settings may follow: the sheet closes.
void ContactSheetBox::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        hide();
    }
}

}  // namespace varnel
