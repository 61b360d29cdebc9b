// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/circle_tools.h"

#include <QLayout>
#include <QLocale>
#include <QScopeGuard>
#include <algorithm>
#include <cmath>
#include <new>

#include "app/panels/menu_entry.h"
#include "base/shortage.h"
#include "gear/store/gear_store.h"
#include "remap/analysis/photo_circle.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

QString Number(double value) {
    return QLocale().toString(value, 'f', 1);
}

// A gear's offsets lead to the right and down.
QString NumbersText(const GearCircle& circle) {
    QStringList places;
    const auto add = [&places](float offset, const QString& positive, const QString& negative) {
        const double shown = std::round(static_cast<double>(offset) * 10.0) / 10.0;
        if (shown != 0.0) {
            places.append((shown > 0.0 ? positive : negative).arg(Number(std::fabs(shown))));
        }
    };
    add(circle.OfsetX, CircleTools::tr("%1 ‰ right"), CircleTools::tr("%1 ‰ left"));
    add(circle.OfsetY, CircleTools::tr("%1 ‰ down"), CircleTools::tr("%1 ‰ up"));
    const QString place = places.isEmpty() ? CircleTools::tr("in the middle of the photo")
                                           : places.join(QStringLiteral(", "));
    // The ratio is the photo's longer side in percent of the diameter.
    const auto ratio = static_cast<double>(circle.GearRatio);
    return CircleTools::tr("Centre %1, diameter %2 %")
        .arg(place, Number(ratio > 0.0 ? 10000.0 / ratio : 0.0));
}

// Where to begin when the gear defines no circle.
ImageCircle Inscribed(PixelSize picture) {
    return {picture.width / 2.0, picture.height / 2.0,
            std::min(picture.width, picture.height) / 2.0};
}

}  // namespace

CircleTools::CircleTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                         Workspace& workspace, SettingsStore& store,
                         std::function<std::unique_ptr<PictureReader>()> newReader)
    : QObject(window),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(workspace.model.state),
      store_(store),
      newReader_(std::move(newReader)),
      overlay_([this] { return Shown(); },
               [this](const ImageCircle& circle) {
                   Put(circle, {circleKey, workspace_.model.list.CurrentLine()});
               },
               [this] { workspace_.model.steps.Seal(); }),
      bar_(new CircleBar(parts.pictures->parentWidget())),
      entry_(AddMenuEntry(parts.viewMenu, "CmdViewCircle", tr("&Image circle"),
                          {Qt::CTRL | Qt::Key_I})) {
    entry_->setCheckable(true);
    parts_.pictures->parentWidget()->layout()->addWidget(bar_);
    Connect();
}

void CircleTools::Connect() {
    connect(entry_, &QAction::toggled, this, &CircleTools::OnToggled);
    connect(bar_, &CircleBar::FindWanted, this, &CircleTools::Find);
    connect(bar_, &CircleBar::ResetWanted, this, &CircleTools::Reset);
    connect(bar_, &CircleBar::TakeWanted, this, &CircleTools::Ask);
    connect(bar_, &CircleBar::Agreed, this, &CircleTools::Take);
    connect(bar_, &CircleBar::Declined, this, &CircleTools::Decline);
    // After what these do to the current record.
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, &CircleTools::Decline,
            Qt::QueuedConnection);
    connect(parts_.equipment->Gears(), &QComboBox::activated, this, &CircleTools::Refresh,
            Qt::QueuedConnection);
    connect(&workspace_.model.steps, &ListSteps::Changed, this, &CircleTools::Refresh,
            Qt::QueuedConnection);
    connect(&view_, &WindowView::ResultShown, this, [this] { Refresh(); });
    connect(&workspace_.model.steps, &ListSteps::GearRestored, this, &CircleTools::RestoreGear);
}

void CircleTools::OnToggled(bool on) {
    PrepareCurrent();
    PictureBox* const photo = parts_.pictures->From();
    photo->RemoveOverlay(&overlay_);
    if (on) {
        photo->AddOverlay(&overlay_);
    }
    bar_->setVisible(on);
    if (!on && parts_.status->text() == found_) {
        view_.ShowStatus({});
    }
    Decline();
}

// A gear that was given to all photos is applied to the photo before its circle is shown or
// changed.
void CircleTools::PrepareCurrent() {
    if (workspace_.model.list.Current() != nullptr) {
        workspace_.preparation.PreparedCurrent();
    }
}

PixelSize CircleTools::PhotoSize() const {
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    return photo == nullptr ? PixelSize{} : SizeOf(photo);
}

std::optional<ImageCircle> CircleTools::Shown() {
    const ImageRecord* const image = workspace_.model.list.Current();
    const PixelSize size = PhotoSize();
    if (image == nullptr || size.width == 0) {
        return std::nullopt;
    }
    const ImageCircle circle = CircleOf(*image, size);
    return circle.radius > 0.0 ? circle : Inscribed(size);
}

int CircleTools::GearNumber() {
    const ImageRecord* const image = workspace_.model.list.Current();
    return image == nullptr ? 0 : state_.Gear.Find(image->GearName);
}

GearRecord CircleTools::CurrentGear() {
    if (const int n = GearNumber(); n != 0) {
        return state_.Gear(n);
    }
    const ImageRecord& image = *workspace_.model.list.Current();
    const QString photo = SourcePath(image) + u'\n' + image.GearName;
    if (unlistedPhoto_ != photo) {
        unlistedPhoto_ = photo;
        unlisted_ = GearOf(image);
        unlisted_.SensorWidth = image.SensorWidth;
        unlisted_.SensorHeight = image.SensorHeight;
        unlisted_.hAOV = unlisted_.vAOV = image.InputAOV;
    }
    return unlisted_;
}

bool CircleTools::Put(const ImageCircle& circle, const StepKey& key) {
    return Change([&](ImageRecord& image) { PutCircle(circle, CurrentGear(), image); }, key);
}

bool CircleTools::Change(const std::function<void(ImageRecord&)>& change, const StepKey& key) {
    if (PhotoSize().width == 0 || workspace_.model.list.Current() == nullptr ||
        workspace_.model.activity.Busy() || view_.Locked()) {
        return false;
    }
    PrepareCurrent();
    ImageRecord& image = *workspace_.model.list.Current();
    change(image);
    workspace_.model.steps.Note(StepKind::Circle, {}, key);
    workspace_.model.ShowInControls(image);
    asked_.clear();
    Refresh();
    workspace_.preview.Preview();
    return true;
}

void CircleTools::Reset() {
    if (const int n = GearNumber(); n != 0) {
        Change([&](ImageRecord& image) { ResetCircle(state_.Gear(n), image); }, {});
    }
}

void CircleTools::Refresh() {
    if (!entry_->isChecked()) {
        return;
    }
    parts_.pictures->From()->RedrawOverlays();
    const std::optional<ImageCircle> circle = Shown();
    const bool isNew = circle && IsNewToGear(*circle);
    if (isNew && asked_ == Question(*circle)) {
        return;  // a new preview does not answer the question
    }
    asked_.clear();
    bar_->ShowNumbers(
        circle ? NumbersText(GearCircleFor(*circle, *workspace_.model.list.Current(), PhotoSize()))
               : QString(),
        circle.has_value(), isNew);
}

bool CircleTools::IsNewToGear(const ImageCircle& circle) {
    const int n = GearNumber();
    if (n == 0 || CircleOf(*workspace_.model.list.Current(), PhotoSize()).radius <= 0.0) {
        return false;
    }
    const GearCircle numbers = GearCircleFor(circle, *workspace_.model.list.Current(), PhotoSize());
    const GearRecord& gear = state_.Gear(n);
    const auto differ = [](float one, float other) { return std::fabs(one - other) > 0.05F; };
    return differ(numbers.OfsetX, gear.OfsetX) || differ(numbers.OfsetY, gear.OfsetY) ||
           differ(numbers.GearRatio, gear.GearRatio);
}

void CircleTools::Find() {
    const ImageRecord* const image = workspace_.model.list.Current();
    const auto& photo = state_.bitmaps.FullSourceBitmap;
    if (!photo || image == nullptr || workspace_.model.activity.Busy() || view_.Locked()) {
        return;
    }
    const bool isFilm = image->Film.has_value();
    try {
        const BitmapHandle frame = isFilm && newReader_ ? FrameForFinding(*image) : nullptr;
        const auto found = FindPhotoCircle(frame ? frame.get() : photo.get());
        if (!found || Put(*found)) {
            found_ = FoundText(found, isFilm);
            view_.ShowStatus(found_);
        }
        if (frame) {
            Q_EMIT workspace_.model.activity.Idle();
        }
    } catch (const std::bad_alloc&) {
        view_.ShowStatus(ShortageText(Scarce::Memory));
    }
}

// Null where the film cannot be read.
BitmapHandle CircleTools::FrameForFinding(const ImageRecord& film) {
    const ReadRequest request{.path = SourcePath(film), .upright = state_.settings.AutoOrient};
    const auto busy = workspace_.model.activity.Occupy();
    const auto hourglass = view_.Hourglass();
    view_.Lock(true);
    const auto unlock = qScopeGuard([this] { view_.Lock(false); });
    const std::unique_ptr<PictureReader> reader = newReader_();
    return ReadPicture(*reader, request,
                       [this] {
                           view_.HandleEvents();
                           return true;
                       })
        .bitmap;
}

QString CircleTools::FoundText(const std::optional<FoundCircle>& found, bool onFilm) {
    if (found) {
        return found->rough ? tr("A rough image circle, from the light inside: it is dark at the "
                                 "rim. Drag the rim where it is not right.")
                            : tr("Image circle found.");
    }
    return onFilm ? tr("No rim of an image circle was found in this film.")
                  : tr("No rim of an image circle was found on this photo.");
}

void CircleTools::Ask() {
    PrepareCurrent();
    if (const auto circle = Shown(); circle && IsNewToGear(*circle)) {
        asked_ = Question(*circle);
        bar_->Ask(asked_);
    }
}

QString CircleTools::Question(const ImageCircle& circle) {
    const ImageRecord& image = *workspace_.model.list.Current();
    return tr("Change the circle of the gear \"%1\"? %2. Photos that are adjusted already keep "
              "their "
              "circle, but for the current one.")
        .arg(image.GearName, NumbersText(GearCircleFor(circle, image, PhotoSize())));
}

void CircleTools::Decline() {
    asked_.clear();
    Refresh();
}

void CircleTools::Take() {
    const int gear = GearNumber();
    const std::optional<ImageCircle> shown = Shown();
    if (!shown || gear == 0 || workspace_.model.activity.Busy() || view_.Locked()) {
        return;
    }
    const GearCircle circle = GearCircleFor(*shown, *workspace_.model.list.Current(), PhotoSize());
    const GearRecord before = state_.Gear(gear);
    TakeCircle(circle, state_.Gear(gear), state_.Images, workspace_.model.list.CurrentLine() + 1);
    SaveGear(store_, state_.Gear);
    workspace_.model.steps.Note(
        StepKind::Circle, {.onAllLines = true, .gear = GearChange{before, state_.Gear(gear)}});
    Decline();
    workspace_.preview.Preview();
    view_.ShowStatus(tr("The gear \"%1\" has the circle now; undo takes it back.")
                         .arg(state_.Gear(gear).GearName));
}

void CircleTools::RestoreGear(const GearChange& change) {
    if (ChangeGear(state_.Gear, change)) {
        SaveGear(store_, state_.Gear);
        view_.ShowStatus(
            tr("The gear \"%1\" has its circle again: %2.")
                .arg(change.to.GearName,
                     NumbersText({change.to.OfsetX, change.to.OfsetY, change.to.GearRatio})));
    } else {
        view_.ShowStatus(tr("The gear \"%1\" stays as it is: it was edited or deleted since.")
                             .arg(change.to.GearName));
    }
    Refresh();
}

}  // namespace varnel
