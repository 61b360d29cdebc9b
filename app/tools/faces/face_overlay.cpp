// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/faces/face_overlay.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnel {

namespace {

constexpr QColor faceColour(255, 215, 90);
constexpr double knobAway = 18.0;   // logical pixels from the rim
constexpr double knobSize = 4.5;    // logical pixels
constexpr double leastHalf = 4.0;   // logical pixels
constexpr double newShare = 0.125;  // of the picture's shorter side: half of one made by keyboard
constexpr double newShape = 1.35;   // a head is so much higher than wide

QPointF KnobOf(const PictureEllipse& face, double pixel) {
    return face.PointAt({0.0, face.halfHeight + knobAway * pixel});
}

// Between two corners; with Shift a circle.
PictureEllipse Between(QPointF one, QPointF other, bool round) {
    double halfWidth = std::fabs(other.x() - one.x()) / 2.0;
    double halfHeight = std::fabs(other.y() - one.y()) / 2.0;
    if (round) {
        halfWidth = halfHeight = std::max(halfWidth, halfHeight);
    }
    return {{one.x() + std::copysign(halfWidth, other.x() - one.x()),
             one.y() + std::copysign(halfHeight, other.y() - one.y())},
            halfWidth,
            halfHeight,
            0.0};
}

// The rim follows the mouse: both axes by how far each leads there.
PictureEllipse Sized(const PictureEllipse& before, QPointF from, QPointF to, double least) {
    const QPointF was = before.Within(from);
    const QPointF is = before.Within(to);
    const double across = std::fabs(was.x() / before.halfWidth);
    const double up = std::fabs(was.y() / before.halfHeight);
    PictureEllipse face = before;
    face.halfWidth =
        std::max(before.halfWidth + across * (std::fabs(is.x()) - std::fabs(was.x())), least);
    face.halfHeight =
        std::max(before.halfHeight + up * (std::fabs(is.y()) - std::fabs(was.y())), least);
    return face;
}

PictureEllipse TurnedTo(const PictureEllipse& before, QPointF to) {
    PictureEllipse face = before;
    const double right = to.x() - before.middle.x();
    const double up = before.middle.y() - to.y();
    face.angle = std::remainder(std::atan2(up, right) * 180.0 / std::numbers::pi - 90.0, 360.0);
    return face;
}

}  // namespace

void FaceOverlay::LetGo() {
    held_ = Part::Nothing;
    drawing_ = false;
    chosen_ = 0;
}

void FaceOverlay::RemoveChosen() {
    std::vector<PictureEllipse> faces = port_.Faces();
    if (chosen_ < faces.size()) {
        faces.erase(faces.begin() + static_cast<std::ptrdiff_t>(chosen_));
        chosen_ = faces.empty() ? 0 : std::min(chosen_, faces.size() - 1);
        port_.Held();
        port_.Put(faces);
        port_.Held();
    }
}

void FaceOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    picture_ = picture;
    painter.setClipRect(toWidget.mapRect(QRectF(QPointF(), QSizeF(picture))), Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t n = 0; n < port_.Faces().size(); ++n) {
        PaintFace(painter, toWidget, n);
    }
}

void FaceOverlay::PaintFace(QPainter& painter, const QTransform& toWidget, std::size_t n) const {
    const PictureEllipse face = port_.Faces()[n];
    const double scale = toWidget.m11();
    const QPointF middle = toWidget.map(face.middle);
    const bool chosen = n == chosen_;
    painter.save();
    painter.translate(middle);
    painter.rotate(-face.angle);
    const double top = -face.halfHeight * scale;
    for (const QPen& pen :
         {QPen(QColor(0, 0, 0, 160), chosen ? 4.5 : 3.5), QPen(faceColour, chosen ? 2.5 : 1.5)}) {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(), face.halfWidth * scale, face.halfHeight * scale);
        if (chosen) {
            painter.drawLine(QPointF(0.0, top), QPointF(0.0, top - knobAway + knobSize));
            painter.drawEllipse(QPointF(0.0, top - knobAway), knobSize, knobSize);
        }
    }
    painter.restore();
}

// The chosen one first, then the one drawn last.
FaceOverlay::Hit FaceOverlay::HitAt(const OverlayInput& input) const {
    const std::vector<PictureEllipse> faces = port_.Faces();
    const auto partOf = [&input](const PictureEllipse& face) {
        const double half = std::max(std::min(face.halfWidth, face.halfHeight), 1e-9);
        const double level = face.LevelAt(input.point);
        return std::fabs(level - 1.0) * half <= input.reach ? Part::Rim
               : level < 1.0                                ? Part::Inside
                                                            : Part::Nothing;
    };
    if (chosen_ < faces.size()) {
        if (QLineF(input.point, KnobOf(faces[chosen_], input.pixel)).length() <= input.reach) {
            return {chosen_, Part::Knob};
        }
        if (const Part part = partOf(faces[chosen_]); part != Part::Nothing) {
            return {chosen_, part};
        }
    }
    for (std::size_t n = faces.size(); n-- > 0;) {
        if (const Part part = partOf(faces[n]); part != Part::Nothing) {
            return {n, part};
        }
    }
    return {};
}

bool FaceOverlay::Press(const OverlayInput& input) {
    if (!input.buttons.testFlag(Qt::LeftButton)) {
        return false;
    }
    const Hit hit = HitAt(input);
    held_ = hit.part;
    drawing_ = held_ == Part::Nothing;
    pressed_ = input.point;
    if (!drawing_) {
        chosen_ = hit.face;
        before_ = port_.Faces()[chosen_];
    }
    port_.Held();
    port_.Redraw();
    return true;
}

void FaceOverlay::Move(const OverlayInput& input) {
    const double least = leastHalf * input.pixel;
    if (drawing_) {
        const PictureEllipse face =
            Between(pressed_, input.point, input.modifiers.testFlag(Qt::ShiftModifier));
        if (std::min(face.halfWidth, face.halfHeight) < least) {
            return;
        }
        if (held_ == Part::Nothing) {  // from now on it is there
            held_ = Part::Rim;
            chosen_ = port_.Faces().size();
        }
        return PutFace(face);
    }
    PictureEllipse face = before_;
    if (held_ == Part::Inside) {
        face.middle += input.point - pressed_;
    } else if (held_ == Part::Rim) {
        face = Sized(before_, pressed_, input.point, least);
    } else if (held_ == Part::Knob) {
        face = TurnedTo(before_, input.point);
    }
    PutFace(face);
}

void FaceOverlay::Release(const OverlayInput& /*input*/) {
    held_ = Part::Nothing;
    drawing_ = false;
    port_.Held();
}

void FaceOverlay::PutFace(const PictureEllipse& face) {
    std::vector<PictureEllipse> faces = port_.Faces();
    if (chosen_ < faces.size()) {
        faces[chosen_] = face;
    } else {
        chosen_ = faces.size();
        faces.push_back(face);
    }
    port_.Put(faces);
}

void FaceOverlay::MakeAtMiddle() {
    const double half = newShare * std::min(picture_.width(), picture_.height());
    chosen_ = port_.Faces().size();
    PutFace({QRectF(QPointF(), QSizeF(picture_)).center(), half, half * newShape, 0.0});
}

bool FaceOverlay::Key(const OverlayKey& key) {
    bool isUsed = true;
    if (key.key == Qt::Key_Insert) {
        MakeAtMiddle();
    } else if (HasChosen()) {
        isUsed = KeyForChosen(key);
    } else {
        isUsed = false;
    }
    if (isUsed) {
        port_.Redraw();
    }
    return isUsed;
}

bool FaceOverlay::KeyForChosen(const OverlayKey& key) {
    if (key.key == Qt::Key_Space) {
        chosen_ = (chosen_ + 1) % port_.Faces().size();
        return true;
    }
    if (key.key == Qt::Key_Delete || key.key == Qt::Key_Backspace) {
        RemoveChosen();
        return true;
    }
    return ChangeByKey(key);
}

bool FaceOverlay::ChangeByKey(const OverlayKey& key) {
    const double by = key.pixel * key.Times();
    const double least = leastHalf * key.pixel;
    PictureEllipse face = port_.Faces()[chosen_];
    if (!key.arrow.isNull() && !key.modifiers.testFlag(Qt::ShiftModifier)) {
        face.middle += QPointF(key.arrow) * by;
    } else if (!key.arrow.isNull() || key.grows != 0) {
        const int wider = key.arrow.x() + key.grows;
        const int higher = key.grows - key.arrow.y();
        face.halfWidth = std::max(face.halfWidth + wider * by, least);
        face.halfHeight = std::max(face.halfHeight + higher * by, least);
    } else if (key.key == Qt::Key_BracketLeft || key.key == Qt::Key_BracketRight) {
        const int turn = key.key == Qt::Key_BracketLeft ? 1 : -1;
        face.angle = std::remainder(face.angle + turn * key.Times(), 360.0);
    } else {
        return false;
    }
    PutFace(face);
    return true;
}

std::optional<QCursor> FaceOverlay::CursorAt(const OverlayInput& input) const {
    switch (HitAt(input).part) {
        case Part::Inside:
            return QCursor(Qt::SizeAllCursor);
        case Part::Rim:
            return QCursor(Qt::SizeFDiagCursor);
        case Part::Knob:
            return QCursor(Qt::PointingHandCursor);
        case Part::Nothing:
            break;
    }
    return QCursor(Qt::CrossCursor);
}

}  // namespace varnel
