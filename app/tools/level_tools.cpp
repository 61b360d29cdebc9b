// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/level_tools.h"
#include "app/panels/menu_entry.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LevelTools)
};

int Whole(double degrees) {
    return static_cast<int>(std::lround(degrees));
}

QString BeyondText(SliderId id, double value, double beyond) {
    return Texts::tr("it takes %1, %2° more than the slider has")
        .arg(SliderCaption(SliderRowOf(id), Whole(value)))
        .arg(std::fabs(beyond), 0, 'f', 0);
}

QString OutOfReachText(const Levelling& level) {
    QStringList parts;
    if (level.beyondX != 0.0) {
        parts.append(BeyondText(SliderId::X, level.rotateX, level.beyondX));
    }
    if (level.beyondZ != 0.0) {
        parts.append(BeyondText(SliderId::Z, level.rotateZ, level.beyondZ));
    }
    return Texts::tr("Not levelled: %1.").arg(parts.join(Texts::tr(" and ")));
}

}  // namespace

QString LevelText(const Levelling& level) {
    switch (level.error) {
        case LevelError::NoLens:
            return Texts::tr("Not levelled: the gear's numbers make no lens.");
        case LevelError::TooShort:
            return Texts::tr("Not levelled: the line is too short.");
        case LevelError::NotStraight:
            return Texts::tr("Not levelled: through this lens no horizon is bent like this line.");
        case LevelError::OutOfReach:
            return OutOfReachText(level);
        case LevelError::None:
            break;
    }
    QStringList turns;
    for (const auto& [id, angle] :
         {std::pair(SliderId::X, level.rotateX), std::pair(SliderId::Z, level.rotateZ)}) {
        if (Whole(angle) != 0) {
            turns.append(SliderCaption(SliderRowOf(id), Whole(angle)));
        }
    }
    return turns.isEmpty() ? Texts::tr("The horizon is level already.")
                           : Texts::tr("Levelled: %1.").arg(turns.join(QStringLiteral(", ")));
}

LevelTools::LevelTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                       Workspace& workspace, WorkingState& state)
    : QObject(window),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(state),
      leave_(new QShortcut(QKeySequence(Qt::Key_Escape), window)),
      stroke_([this] { parts_.pictures->From()->RedrawOverlays(); }, [this] { Level(); }) {
    QAction* const neighbour = window->findChild<QAction*>(QStringLiteral("CmdToolsStretch"));
    entry_ = AddMenuEntry(qobject_cast<QMenu*>(neighbour->parent()), "CmdToolsLevel",
                          tr("&Level the horizon"), {Qt::CTRL | Qt::Key_L});
    entry_->setCheckable(true);
    connect(entry_, &QAction::toggled, this, &LevelTools::OnToggled);
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, [this] { stroke_.Clear(); });
    leave_->setEnabled(false);
    connect(leave_, &QShortcut::activated, this, &LevelTools::Leave);
}

// Tells why not.
bool LevelTools::MayLevel() {
    const Projection projection = workspace_.model.controls.ChosenProjection();
    const bool may = InfoOf(projection).levels != LevelKind::None;
    if (!may) {
        view_.ShowStatus(
            tr("%1 cannot be levelled: it does not turn the camera.").arg(TitleOf(projection)));
    }
    return may;
}

void LevelTools::OnToggled(bool on) {
    if (on && !MayLevel()) {
        Leave();
        return;
    }
    PictureBox* const photo = parts_.pictures->From();
    stroke_.Clear();
    photo->RemoveOverlay(&stroke_);
    if (on) {
        photo->AddOverlay(&stroke_);
        if (!photo->Empty()) {
            photo->setFocus();  // for the arrow keys
        }
    }
    leave_->setEnabled(on);
}

void LevelTools::Level() {
    const ImageRecord* const image = workspace_.model.list.Current();
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    if (image == nullptr || photo == nullptr || workspace_.model.activity.Busy() ||
        view_.Locked()) {
        return;
    }
    if (!MayLevel()) {
        return;
    }
    std::vector<PicturePoint> traced;
    for (const QPointF point : stroke_.Points()) {
        traced.push_back({point.x(), point.y()});
    }
    const Levelling level = LevelHorizon(*image, SizeOf(photo), traced);
    if (level.error == LevelError::None) {
        Store(level);
        Leave();  // the mouse is free for the next tool
    }
    view_.ShowStatus(LevelText(level));
}

// As if both sliders had been moved, but one step to be undone.
void LevelTools::Store(const Levelling& level) {
    workspace_.model.controls.Set(SliderId::X, Whole(level.rotateX));
    workspace_.model.controls.Set(SliderId::Z, Whole(level.rotateZ));
    if (level.unpanned) {
        workspace_.model.controls.Set(SliderId::Y, 0);
    }
    for (const int line : workspace_.model.list.SelectedLines()) {
        ImageRecord& image = state_.Images(line + 1);
        // The others get their gear first, from the workspace.
        if (image.SettingsApplied || line == workspace_.model.list.CurrentLine()) {
            workspace_.model.controls.StoreInto(image);
        }
    }
    workspace_.model.steps.Note(StepKind::Level);
    workspace_.adjustments.StoreControls(true);
}

}  // namespace varnel
