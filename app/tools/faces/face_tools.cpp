// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/faces/face_tools.h"

#include <QLayout>
#include <QMenu>
#include <utility>

#include "app/panels/menu_entry.h"
#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"

namespace varnel {

FaceTools::FaceTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace, WorkingState& state)
    : QObject(window),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(state),
      commands_(workspace),
      overlay_(*this),
      bar_(new FaceBar(parts.pictures->parentWidget())) {
    QAction* const neighbour = window->findChild<QAction*>(QStringLiteral("CmdToolsStretch"));
    entry_ = AddMenuEntry(qobject_cast<QMenu*>(neighbour->parent()), "CmdToolsFaces",
                          tr("Soften &faces"), {});
    entry_->setCheckable(true);
    parts_.pictures->parentWidget()->layout()->addWidget(bar_);
    connect(entry_, &QAction::toggled, this, &FaceTools::OnToggled);
    connect(bar_, &FaceBar::RemoveWanted, this, [this] { overlay_.RemoveChosen(); });
    connect(bar_, &FaceBar::ClearWanted, this, &FaceTools::Clear);
    connect(bar_, &FaceBar::LeaveWanted, this, &FaceTools::Leave);
    connect(parts_.pictures->To(), &PictureBox::LeaveWanted, this, &FaceTools::Leave);
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, [this] { overlay_.LetGo(); });
    connect(&workspace_.model.steps, &ListSteps::Changed, this, &FaceTools::Refresh,
            Qt::QueuedConnection);
    connect(&view_, &WindowView::ResultShown, this, [this] { Refresh(); });
}

bool FaceTools::Softens() const {
    return InfoOf(workspace_.model.controls.ChosenProjection()).faces;
}

void FaceTools::OnToggled(bool on) {
    if (on && !Softens()) {
        view_.ShowStatus(tr("Only Rectilinear draws faces out; the others have none to soften."));
        return Leave();
    }
    PictureBox* const result = parts_.pictures->To();
    result->RemoveOverlay(&overlay_);
    overlay_.LetGo();
    if (on) {
        result->AddOverlay(&overlay_);
        if (!result->Empty()) {
            result->setFocus();  // for the keys
        }
    }
    bar_->setVisible(on);
    Refresh();
}

std::optional<QRectF> FaceTools::Frame() const {
    const ImageRecord* const image = workspace_.model.list.Current();
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    if (image == nullptr || photo == nullptr) {
        return std::nullopt;
    }
    try {
        return FrameOnResult(FramesOf(*image, SizeOf(photo)).output);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::vector<PictureEllipse> FaceTools::Faces() const {
    std::vector<PictureEllipse> faces;
    if (const std::optional<QRectF> frame = Frame(); frame && Softens()) {
        for (const FaceEllipse& face : workspace_.model.list.Current()->Faces) {
            faces.push_back(OnResult(face, *frame));
        }
    }
    return faces;
}

bool FaceTools::MayPut() const {
    return Softens() && !workspace_.model.activity.Busy() && !view_.Locked();
}

void FaceTools::Put(const std::vector<PictureEllipse>& faces) {
    const std::optional<QRectF> frame = Frame();
    if (!frame || !MayPut()) {
        return;
    }
    std::vector<FaceEllipse> placed;
    for (const PictureEllipse& face : faces) {
        placed.push_back(OnFrame(face, *frame));
    }
    commands_.SoftenFacesOfCurrent(std::move(placed),
                                   {facesKey, workspace_.model.list.CurrentLine()});
    Refresh();
}

void FaceTools::Held() {
    workspace_.model.steps.Seal();
}

void FaceTools::Redraw() {
    parts_.pictures->To()->RedrawOverlays();
}

void FaceTools::Clear() {
    overlay_.LetGo();
    Held();
    Put({});
    Held();
}

void FaceTools::Refresh() {
    if (entry_->isChecked()) {
        bar_->ShowFaces(static_cast<int>(Faces().size()));
        Redraw();
    }
}

}  // namespace varnel
