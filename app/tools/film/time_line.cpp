// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/film/time_line.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace varnel {

namespace {

// Logical pixels.
constexpr double margin = 9.0;
constexpr double barTop = 18.0;
constexpr double barHeight = 12.0;
constexpr double reach = 6.0;  // of the mouse around what can be dragged
constexpr double keyHalf = 5.0;
constexpr double leastBetweenMarks = 70.0;

constexpr std::array markSteps{0.1,  0.2,  0.5,   1.0,   2.0,   5.0,    10.0,  15.0,
                               30.0, 60.0, 120.0, 300.0, 600.0, 1800.0, 3600.0};

QPolygonF Diamond(QPointF centre) {
    return QPolygonF({centre + QPointF(0, -keyHalf), centre + QPointF(keyHalf, 0),
                      centre + QPointF(0, keyHalf), centre + QPointF(-keyHalf, 0)});
}

}  // namespace

QString TimeText(double seconds) {
    const qint64 milliseconds = std::llround(seconds * 1000.0);
    const qint64 hours = milliseconds / 3600000;
    const qint64 minutes = milliseconds / 60000 % 60;
    const QString rest = QStringLiteral("%1.%2")
                             .arg(milliseconds / 1000 % 60, 2, 10, QLatin1Char('0'))
                             .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
    return hours > 0 ? QStringLiteral("%1:%2:%3")
                           .arg(hours)
                           .arg(minutes, 2, 10, QLatin1Char('0'))
                           .arg(rest)
                     : QStringLiteral("%1:%2").arg(minutes).arg(rest);
}

TimeLine::TimeLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("TimeLine"));
    setAccessibleName(tr("Time line of the film"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
}

void TimeLine::Show(double seconds, double framesPerSecond, const FilmCourse& film, double now) {
    seconds_ = seconds;
    framesPerSecond_ = framesPerSecond;
    film_ = film;
    now_ = now;
    setAccessibleDescription(tr("%1 of %2").arg(TimeText(now), TimeText(seconds)));
    update();
}

double TimeLine::PlaceOf(double seconds) const {
    const double room = width() - 2.0 * margin;
    return margin + (seconds_ > 0.0 ? std::clamp(seconds / seconds_, 0.0, 1.0) * room : 0.0);
}

double TimeLine::TimeAt(double place) const {
    const double room = std::max(width() - 2.0 * margin, 1.0);
    return std::clamp((place - margin) / room, 0.0, 1.0) * seconds_;
}

int TimeLine::KeyAt(QPointF place) const {
    int nearest = -1;
    double least = reach;
    for (std::size_t n = 0; n < film_.keys.size(); ++n) {
        const double away = std::abs(PlaceOf(film_.keys[n].time) - place.x());
        if (away <= least) {
            least = away;
            nearest = static_cast<int>(n);
        }
    }
    return place.y() >= barTop - reach ? nearest : -1;
}

// Keys lie on the bar, the ends of the part around it, the scale above is all for scrubbing.
TimeLine::Part TimeLine::PartAt(QPointF place) const {
    if (KeyAt(place) >= 0) {
        return Part::Key;
    }
    const auto isNear = [&](double seconds) {
        return std::abs(PlaceOf(seconds) - place.x()) <= reach && place.y() >= barTop;
    };
    if (isNear(film_.in) && film_.in > 0.0) {
        return Part::In;
    }
    return isNear(Out()) && film_.out ? Part::Out : Part::Now;
}

void TimeLine::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || seconds_ <= 0.0) {
        return;
    }
    dragged_ = PartAt(event->position());
    key_ = dragged_ == Part::Key ? KeyAt(event->position()) : -1;
    draggedTo_ = TimeAt(event->position().x());
    if (dragged_ == Part::Now) {
        Drag(event->position());
    }
}

void TimeLine::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_ != Part::Nothing) {
        Drag(event->position());
        return;
    }
    const Part part = PartAt(event->position());
    setCursor(part == Part::Now ? Qt::ArrowCursor : Qt::SizeHorCursor);
}

void TimeLine::Drag(QPointF place) {
    draggedTo_ = TimeAt(place.x());
    if (dragged_ == Part::Now) {
        now_ = draggedTo_;
        Q_EMIT Scrubbed(now_);
    }
    update();
}

void TimeLine::mouseReleaseEvent(QMouseEvent* event) {
    const Part part = std::exchange(dragged_, Part::Nothing);
    const int key = std::exchange(key_, -1);
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const double seconds = TimeAt(event->position().x());
    if (part == Part::In) {
        Q_EMIT InMoved(seconds);
    } else if (part == Part::Out) {
        Q_EMIT OutMoved(seconds);
    } else if (part == Part::Key && std::cmp_less(key, film_.keys.size())) {
        const double before = film_.keys[static_cast<std::size_t>(key)].time;
        const bool isClick = std::abs(PlaceOf(before) - event->position().x()) <= reach / 2.0;
        if (isClick) {
            Q_EMIT Scrubbed(before);
        } else {
            Q_EMIT KeyMoved(key, seconds);
        }
    }
    update();
}

void TimeLine::contextMenuEvent(QContextMenuEvent* event) {
    const int key = KeyAt(event->pos());
    if (key < 0) {
        return;
    }
    QMenu menu(this);
    const KeyEase now = film_.keys[static_cast<std::size_t>(key)].ease;
    for (const auto& [ease, text] : {std::pair{KeyEase::Linear, tr("Evenly to the next key")},
                                     {KeyEase::Ease, tr("Slowly out and slowly in")},
                                     {KeyEase::Hold, tr("Hold until the next key")}}) {
        QAction* const entry = menu.addAction(text);
        entry->setCheckable(true);
        entry->setChecked(ease == now);
        connect(entry, &QAction::triggered, this,
                [this, key, chosen = ease] { Q_EMIT EaseChosen(key, chosen); });
    }
    menu.addSeparator();
    connect(menu.addAction(tr("Remove the key")), &QAction::triggered, this,
            [this, key] { Q_EMIT KeyRemoved(key); });
    menu.exec(event->globalPos());
}

void TimeLine::keyPressEvent(QKeyEvent* event) {
    const bool fast = event->modifiers().testFlag(Qt::ShiftModifier);
    const int frames = fast ? static_cast<int>(std::lround(framesPerSecond_)) : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return Q_EMIT Stepped(-frames);
        case Qt::Key_Right:
            return Q_EMIT Stepped(frames);
        case Qt::Key_Up:
            return Q_EMIT KeyWanted(false);
        case Qt::Key_Down:
            return Q_EMIT KeyWanted(true);
        case Qt::Key_Home:
            return Q_EMIT Scrubbed(0.0);
        case Qt::Key_End:
            return Q_EMIT Scrubbed(seconds_);
        case Qt::Key_Space:
            return Q_EMIT PlayWanted();
        case Qt::Key_I:
            return Q_EMIT InWanted();
        case Qt::Key_O:
            return Q_EMIT OutWanted();
        case Qt::Key_K:
            return Q_EMIT NewKeyWanted();
        case Qt::Key_Delete:
            return Q_EMIT RemoveWanted();
        default:
            QWidget::keyPressEvent(event);
    }
}

// A key's numbers in its tool tip.
bool TimeLine::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int key = KeyAt(help->pos());
    QStringList lines{TimeText(TimeAt(help->pos().x()))};
    if (key >= 0) {
        const FilmKey& shown = film_.keys[static_cast<std::size_t>(key)];
        lines = {TimeText(shown.time)};
        for (const auto& [name, value] : shown.set.asKeyValueRange()) {
            lines.append(QStringLiteral("%1 %2").arg(
                name, locale().toString(static_cast<double>(value), 'g', 6)));
        }
    }
    QToolTip::showText(help->globalPos(), lines.join(u'\n'), this);
    return true;
}

void TimeLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& colours = palette();
    const QRectF bar(margin, barTop, width() - 2.0 * margin, barHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.color(QPalette::Mid));
    painter.drawRoundedRect(bar, 3, 3);
    const bool isIn = dragged_ == Part::In;
    const bool isOut = dragged_ == Part::Out;
    const double left = PlaceOf(isIn ? draggedTo_ : film_.in);
    const double right = PlaceOf(isOut ? draggedTo_ : Out());
    QColor part = colours.color(QPalette::Highlight);
    part.setAlphaF(0.55F);
    painter.setBrush(part);
    painter.drawRect(QRectF(left, barTop, std::max(right - left, 0.0), barHeight));
    painter.setBrush(colours.color(QPalette::Highlight));
    for (const double end : {left, right}) {
        painter.drawRect(QRectF(end - 1.5, barTop - 3.0, 3.0, barHeight + 6.0));
    }
    PaintScale(painter);
    PaintKeys(painter);
    PaintNow(painter);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(colours.color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
}

void TimeLine::PaintScale(QPainter& painter) const {
    if (seconds_ <= 0.0) {
        return;
    }
    const double perSecond = (width() - 2.0 * margin) / seconds_;
    const auto* const found = std::ranges::find_if(
        markSteps, [&](double step) { return step * perSecond >= leastBetweenMarks; });
    const double step = found != markSteps.end() ? *found : seconds_;
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.8);
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int marks = static_cast<int>(std::floor(seconds_ / step + 1e-9));
    for (int n = 0; n <= marks; ++n) {
        const double place = PlaceOf(n * step);
        painter.drawLine(QPointF(place, barTop - 4.0), QPointF(place, barTop - 1.0));
        const QString text = TimeText(n * step);
        const QString shown = step >= 1.0 ? text.left(text.lastIndexOf(u'.')) : text.chopped(2);
        const double room = leastBetweenMarks;
        const double start = std::clamp(place - room / 2.0, 0.0, std::max(width() - room, 0.0));
        const Qt::Alignment side = place < room / 2.0             ? Qt::AlignLeft
                                   : place > width() - room / 2.0 ? Qt::AlignRight
                                                                  : Qt::AlignHCenter;
        painter.drawText(QRectF(start, 0.0, room, barTop - 4.0), side | Qt::AlignVCenter, shown);
    }
}

void TimeLine::PaintKeys(QPainter& painter) const {
    painter.setPen(QPen(palette().color(QPalette::Base), 1.0));
    for (std::size_t n = 0; n < film_.keys.size(); ++n) {
        const bool isDragged = dragged_ == Part::Key && std::cmp_equal(n, key_);
        const double time = isDragged ? draggedTo_ : film_.keys[n].time;
        const QPointF centre(PlaceOf(time), barTop + barHeight / 2.0);
        painter.setBrush(palette().color(QPalette::Text));
        if (film_.keys[n].ease == KeyEase::Hold) {
            painter.drawRect(QRectF(centre - QPointF(4, 4), QSizeF(8, 8)));
        } else if (film_.keys[n].ease == KeyEase::Ease) {
            painter.drawEllipse(centre, keyHalf, keyHalf);
        } else {
            painter.drawPolygon(Diamond(centre));
        }
    }
}

void TimeLine::PaintNow(QPainter& painter) const {
    const double place = PlaceOf(now_);
    const QColor colour = palette().color(QPalette::WindowText);
    painter.setPen(QPen(colour, 1.5));
    painter.drawLine(QPointF(place, barTop - 4.0), QPointF(place, height() - 3.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(
        QPolygonF({QPointF(place - 5.0, barTop - 8.0), QPointF(place + 5.0, barTop - 8.0),
                   QPointF(place, barTop - 1.0)}));
}

}  // namespace varnel
