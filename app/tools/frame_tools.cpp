// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/frame_tools.h"

#include <QBoxLayout>
#include <chrono>

#include "app/panels/menu_entry.h"
#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr std::chrono::milliseconds untilRest{150};

}  // namespace

FrameTools::FrameTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
                       const WorkingState& state, QObject* parent)
    : QObject(parent),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(state),
      frameOverlay_(*this),
      map_([this] {
          return magnification_->isChecked() && !workspace_.model.showsWholeFrame ? Fresh()
                                                                                  : nullptr;
      }),
      frame_(AddEntry("CmdViewFrame", tr("&Frame on the photo"), Qt::CTRL | Qt::Key_F)),
      magnification_(
          AddEntry("CmdViewMagnification", tr("&Magnification map"), Qt::CTRL | Qt::Key_M)),
      numbers_(new QLabel(parts.pictures->parentWidget())) {
    numbers_->setObjectName(QStringLiteral("LabelNumbers"));
    numbers_->setAlignment(Qt::AlignCenter);
    numbers_->setMargin(4);
    numbers_->setWordWrap(true);
    numbers_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    numbers_->hide();
    if (auto* const column = qobject_cast<QBoxLayout*>(numbers_->parentWidget()->layout())) {
        column->addWidget(numbers_);
        column->setStretchFactor(parts_.pictures, 1);
    }
    parts_.pictures->From()->AddOverlay(&frameOverlay_);
    parts_.pictures->To()->AddOverlay(&map_);
    refine_.setSingleShot(true);
    connect(&refine_, &QTimer::timeout, this, &FrameTools::Update);
    FollowControls();
}

QAction* FrameTools::AddEntry(const char* name, const QString& text, const QKeySequence& keys) {
    QAction* const entry = AddMenuEntry(parts_.viewMenu, name, text, {keys});
    entry->setCheckable(true);
    connect(entry, &QAction::toggled, &update_, [this] { update_.start(0); });
    return entry;
}

void FrameTools::FollowControls() {
    update_.setSingleShot(true);
    connect(&update_, &QTimer::timeout, this, &FrameTools::Update);
    const auto soon = [this] { update_.start(0); };
    for (SliderRow* const row : parts_.adjustments->Rows()) {
        connect(row->Slider(), &QSlider::valueChanged, this, soon);
    }
    connect(&workspace_.model.controls, &ControlModel::ProjectionChosen, this, soon);
    connect(&workspace_.model.controls, &ControlModel::ChoiceMade, this, soon);
    connect(&workspace_.model.controls, &ControlModel::Shown, this, soon);
    connect(&view_, &WindowView::ResultShown, this, soon);
    connect(&workspace_.model.steps, &ListSteps::Changed, this, soon);  // a crop shows no result
}

std::optional<ImageRecord> FrameTools::LiveRecord() const {
    const ImageRecord* const image = workspace_.model.list.Current();
    if (image == nullptr || state_.bitmaps.FullSourceBitmap == nullptr) {
        return std::nullopt;
    }
    ImageRecord live = *image;
    workspace_.model.controls.StoreInto(live);
    return live;
}

PixelSize FrameTools::PhotoSize() const {
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    return photo == nullptr ? PixelSize{} : SizeOf(photo);
}

// While a hand moves, each frame has a few milliseconds: a coarse net does until it rests.
const OverlayGeometry* FrameTools::Fresh() {
    const std::optional<ImageRecord> live = LiveRecord();
    const PixelSize size = PhotoSize();
    const bool inMotion = sinceStudy_.isValid() && !sinceStudy_.hasExpired(untilRest.count());
    if (live == studied_ && size.width == studiedSize_.width &&
        size.height == studiedSize_.height && (inMotion || !coarse_)) {
        return study_.get();
    }
    coarse_ = inMotion;
    sinceStudy_.start();
    studied_ = live;
    studiedSize_ = size;
    study_.reset();
    if (live) {
        try {
            study_ = std::make_unique<OverlayGeometry>(ProjectionFromIndex(live->Projection), *live,
                                                       size, inMotion ? 48 : 128);
        } catch (const RunTimeError&) {
            // The preview reports what is wrong.
        }
    }
    if (coarse_) {
        refine_.start(untilRest + std::chrono::milliseconds(10));
    }
    return study_.get();
}

void FrameTools::Update() {
    const OverlayGeometry* const study = magnification_->isChecked() ? Fresh() : nullptr;
    const auto numbers =
        study == nullptr ? ProjectionMetrics() : MeasureResult(study->grid, study->kept);
    numbers_->setText(study == nullptr ? QString() : NumbersText(numbers));
    numbers_->setToolTip(numbers.halfWay ? tr("The middle of Horizon is a single point of the "
                                              "photo: its resolution is told half way to the rim.")
                                         : QString());
    numbers_->setVisible(magnification_->isChecked());
    parts_.pictures->From()->RedrawOverlays();
    parts_.pictures->To()->RedrawOverlays();
}

FrameSetting FrameTools::Setting() const {
    return {*workspace_.model.list.Current(), workspace_.model.controls.Values(), PhotoSize()};
}

bool FrameTools::MayMove() const {
    return !view_.Locked() && workspace_.model.list.Current() != nullptr;
}

void FrameTools::Try(const ControlValues& controls) {
    for (SliderRow* const row : parts_.adjustments->Rows()) {
        const SliderId id = row->Data().id;
        const std::optional<double> value = ValueOf(id, controls);
        if (value && value != ValueOf(id, workspace_.model.controls.Values())) {
            workspace_.model.controls.Set(id, *value);
            Q_EMIT row->Dragged();
        }
    }
}

void FrameTools::Store(SliderId slider) {
    Q_EMIT parts_.adjustments->Row(slider)->Changed();
}

void FrameTools::Step(SliderId slider, int by) {
    ControlModel& controls = workspace_.model.controls;
    controls.Set(slider, WholeNumber(ValueOf(slider, controls.Values()).value_or(0.0)) + by);
    Q_EMIT parts_.adjustments->Row(slider)->Changed();
}

}  // namespace varnel
