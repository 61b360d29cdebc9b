// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/size_tools.h"

#include "base/error_text.h"
#include "pipeline/output/frame_text.h"
#include "pipeline/output/save_wish.h"
#include "state/adjustments/outside_text.h"

namespace varnel {

SizeTools::SizeTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace)
    : QObject(window), parts_(parts), view_(view), workspace_(workspace), commands_(workspace) {
    connect(parts_.size, &SizePanel::SizeWanted, this, &SizeTools::TakeSize);
    connect(parts_.size, &SizePanel::OutsideWanted, this, &SizeTools::TakeOutside);
    connect(&workspace.model, &WorkspaceModel::CurrentShown, this, &SizeTools::Refresh);
    connect(&workspace.model.list, &ImageSelection::Refilled, this, &SizeTools::Refresh);
    connect(&workspace.model.steps, &ListSteps::Changed, this, &SizeTools::Refresh,
            Qt::QueuedConnection);
    connect(&view, &WindowView::ResultShown, this, &SizeTools::Refresh);
    Refresh();
}

void SizeTools::TakeSize(const QString& text) {
    const std::optional<FrameWish> wish = FrameWishFromText(text);
    if (!wish) {
        view_.ShowStatus(tr("No size: %1. A width (4000), both sides (4000x3000) and a shape "
                            "(16:9) are.")
                             .arg(text));
    } else if (!view_.Locked()) {
        view_.ShowStatus(ErrorText(commands_.SizeSelected(*wish)));
    }
    Refresh();
}

void SizeTools::TakeOutside(const QString& text) {
    const std::optional<OutsideFill> outside = OutsideFromText(text);
    if (!outside) {
        view_.ShowStatus(tr("No colour: %1. One like #ff8000 is.").arg(text));
    } else if (!view_.Locked()) {
        view_.ShowStatus({});
        commands_.ChangeSelected(StepKind::Outside,
                                 [&outside](ImageRecord& image) { image.Outside = *outside; });
    }
    Refresh();
}

void SizeTools::Refresh() {
    const ImageRecord* const image = workspace_.model.list.Current();
    parts_.size->Body()->setEnabled(image != nullptr);
    const ImageRecord shown = image != nullptr ? *image : ImageRecord();
    parts_.size->ShowSize(SizeText(shown));
    parts_.size->ShowOutside(ToText(shown.Outside));
    parts_.save->ShowSize(image != nullptr && image->Width > 0 ? NumbersOf(shown) : QString());
}

QString SizeTools::NumbersOf(const ImageRecord& image) const {
    const PixelSize size = ResultSizeOf(image, {image.Width, image.Height});
    const OutputEncoding encoding = WishOf(workspace_.model.state.settings).encoding;
    const double pixels = static_cast<double>(size.width) * size.height;
    const Bitmap* const photo = workspace_.model.state.bitmaps.FullSourceBitmap.get();
    const SampleKind samples = photo != nullptr ? SampleKindOf(photo->Format()) : SampleKind::Byte;
    return tr("%1 x %2, %3 as %4, %5")
        .arg(size.width)
        .arg(size.height)
        .arg(UsualSizeText(UsualBytes(pixels, encoding, samples)), ToText(encoding.type),
             DepthText(encoding, samples));
}

}  // namespace varnel
