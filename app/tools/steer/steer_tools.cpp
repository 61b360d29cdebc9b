// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/steer/steer_tools.h"

namespace varnel {

namespace {

constexpr int burstPause = 600;  // ms without another turn of the wheel or another key

}  // namespace

SteerTools::SteerTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
                       QObject* parent)
    : QObject(parent),
      to_(parts.pictures->To()),
      view_(view),
      workspace_(workspace),
      overlay_(*this) {
    to_->AddOverlay(&overlay_);
    draw_.setSingleShot(true);
    burst_.setSingleShot(true);
    burst_.setInterval(burstPause);
    connect(&draw_, &QTimer::timeout, this, [this] { workspace_.preview.PreviewControls(); });
    connect(&burst_, &QTimer::timeout, this, [this] { workspace_.model.steps.Seal(); });
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, [this] { overlay_.LetGo(); });
    connect(&workspace_.model.controls, &ControlModel::Shown, this, [this] { overlay_.LetGo(); });
}

bool SteerTools::MaySteer() const {
    const WorkspaceModel& model = workspace_.model;
    return !view_.Locked() && !model.activity.Busy() && !model.state.loadingControls &&
           model.list.Current() != nullptr && model.state.bitmaps.FullSourceBitmap != nullptr &&
           !to_->StoodInFor() && !model.showsWholeFrame &&
           CanTurn(model.controls.ChosenProjection());
}

Steered SteerTools::Now() const {
    Steered now{*workspace_.model.list.Current(),
                SizeOf(workspace_.model.state.bitmaps.FullSourceBitmap.get())};
    workspace_.model.controls.StoreInto(now.image);
    return now;
}

void SteerTools::TakeControls(const ImageRecord& image) {
    ControlModel& controls = workspace_.model.controls;
    const ControlValues values = ValuesFor(image);
    for (const SliderId id : {SliderId::AovOutput, SliderId::X, SliderId::Y, SliderId::Z}) {
        const std::optional<double> value = ValueOf(id, values);
        if (value && value != ValueOf(id, controls.Values())) {
            controls.Set(id, *value);
        }
    }
}

void SteerTools::Try(const ImageRecord& image) {
    TakeControls(image);
    draw_.start(0);
}

void SteerTools::StoreTried(StepKind kind) {
    draw_.stop();
    workspace_.adjustments.StoreSteered(kind, {});
    workspace_.preview.Preview();
}

void SteerTools::Step(const ImageRecord& image, StepKind kind) {
    TakeControls(image);
    const StepKey key{steerKey, static_cast<int>(kind), workspace_.model.list.CurrentLine()};
    workspace_.adjustments.StoreSteered(kind, key);
    burst_.start();
    draw_.start(0);
}

void SteerTools::TakeKeyboard() {
    to_->setFocus(Qt::MouseFocusReason);
}

}  // namespace varnel
