// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/gears/photo_gears.h"

#include <algorithm>

#include "gear/from_photo/photo_gear.h"
#include "gear/from_photo/photo_lens.h"
#include "gear/store/gear_list.h"
#include "gear/store/gear_store.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

constexpr int pause = 20;  // ms between looks at the reading thread

bool AreAlike(const SurveyedPhoto& one, const SurveyedPhoto& other) {
    const auto sides = [](const SurveyedPhoto& photo) {
        return std::minmax({photo.size.pixels.width, photo.size.pixels.height});
    };
    return one.origin.Make == other.origin.Make && one.origin.Model == other.origin.Model &&
           one.origin.LensModel == other.origin.LensModel &&
           one.origin.FocalLength == other.origin.FocalLength && sides(one) == sides(other);
}

bool HasSizeOf(const SurveyedPhoto& photo, const ImageRecord& image) {
    return photo.size.pixels.width == image.Width && photo.size.pixels.height == image.Height;
}

bool HasCircleOf(const ImageRecord& one, const ImageRecord& other) {
    return one.Ratio == other.Ratio && one.OfsetX == other.OfsetX && one.OfsetY == other.OfsetY;
}

bool IsListed(const GearNames& names, const GearTable& table) {
    for (int n = 1; n <= table.UpperBound(); ++n) {
        if (NamesOf(table(n)) == names) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::vector<GearOption> GearOptionsFor(const CameraInfo& origin, const GearTable& table) {
    std::vector<GearOption> options;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        options.push_back({n, NamesOf(table(n))});
    }
    // Not that of std::ranges, which a clang of some age cannot use.
    std::stable_partition(options.begin(), options.end(), [&](const GearOption& option) {
        return SpeaksFor(origin, table(option.gear));
    });
    constexpr std::size_t few = 8;
    const CatalogueEntry camera = CameraFromExif(origin.Make, origin.Model);
    const PhotoLenses lenses = LensesFromExif(origin, camera);
    if (camera.IsKnown() && lenses.fitting.size() <= few) {
        for (const CatalogueEntry& lens : lenses.fitting) {
            const GearNames names{camera.brand, camera.model, lens.brand, lens.model};
            if (!IsListed(names, table)) {
                options.push_back({0, names});
            }
        }
    }
    return options;
}

PhotoGears::PhotoGears(Workspace& workspace, SettingsStore& store,
                       std::function<std::unique_ptr<PictureReader>()> newReader,
                       std::function<bool()> mayChange)
    : workspace_(workspace),
      model_(workspace.model),
      store_(store),
      mayChange_(std::move(mayChange)),
      reads_(newReader != nullptr),
      survey_(std::move(newReader), workspace.model.state.pool) {
    timer_.setInterval(pause);
    connect(&timer_, &QTimer::timeout, this, &PhotoGears::GoOn);
    connect(&model_, &WorkspaceModel::PhotosAdded, this, &PhotoGears::Want);
    connect(&model_.steps, &ListSteps::NewGearsRestored, this, &PhotoGears::RestoreGears);
    connect(&model_.steps, &ListSteps::Changed, this, &PhotoGears::Changed);
    connect(&model_, &WorkspaceModel::CurrentShown, this, &PhotoGears::Changed);
}

void PhotoGears::Want(const QStringList& paths) {
    if (!reads_ || !model_.state.settings.TakeGear) {
        return;
    }
    ++addition_;
    given_ = 0;
    for (const QString& path : paths) {
        wanted_.push_back({path, addition_});
    }
    timer_.start();
}

void PhotoGears::GoOn() {
    if (survey_.IsUnderWay() && survey_.IsDone()) {
        if (const std::optional<SurveyedPhoto> photo = survey_.Take()) {
            photos_.insert(underWay_.path, *photo);
            read_.push_back(underWay_);
        }
    }
    if (!survey_.IsUnderWay() && !model_.activity.Busy()) {
        BeginNext();
    }
    while (!read_.empty() && !model_.activity.Busy() && mayChange_()) {
        const Wanted read = read_.front();
        read_.pop_front();
        Apply(read);
    }
    if (!survey_.IsUnderWay() && wanted_.empty() && read_.empty()) {
        timer_.stop();
        survey_.Rest();
    }
}

// The current photo comes first.
void PhotoGears::BeginNext() {
    std::erase_if(wanted_, [this](const Wanted& photo) { return IsUndone(photo.addition); });
    if (wanted_.empty()) {
        return;
    }
    const QString current = model_.list.CurrentPath();
    auto next = std::ranges::find(wanted_, current, &Wanted::path);
    next = next == wanted_.end() ? wanted_.begin() : next;
    underWay_ = *next;
    wanted_.erase(next);
    survey_.Begin(underWay_.path, model_.state.settings.AutoOrient);
}

bool PhotoGears::IsUndone(int addition) const {
    return noted_.contains(addition) && !model_.steps.StepsSinceGears(addition);
}

void PhotoGears::Apply(const Wanted& read) {
    const auto photo = photos_.constFind(read.path);
    if (IsUndone(read.addition) || photo == photos_.constEnd()) {
        return;
    }
    model_.steps.Note(StepKind::Other);
    const std::vector<int> lines = PreparedLines(read.path, *photo);
    std::vector<GearRecord> newGears;
    bool changed = false;
    for (const int line : lines) {
        const ReadGear got = GiveReadGear({photo->origin, photo->circle}, model_.state.Gear,
                                          newGears, model_.list.OnLine(line));
        changed = changed || got != ReadGear::Same;
        given_ += got == ReadGear::Own && read.addition == addition_ ? 1 : 0;
    }
    if (!changed) {
        Q_EMIT Changed();
        return;
    }
    noted_.insert(read.addition);
    model_.steps.NoteGears(read.addition, newGears);
    ShowGears(newGears);
    if (read.path == model_.list.CurrentPath()) {
        ShowCurrent();
    }
}

// The untouched lines of the photo, as they are when it was looked at: that is what undoing leads
// back to.
std::vector<int> PhotoGears::PreparedLines(const QString& path, const SurveyedPhoto& photo) {
    std::vector<int> lines;
    for (int line = 0; line < model_.list.Images().UpperBound(); ++line) {
        ImageRecord& image = model_.list.OnLine(line);
        if (photo.size.pixels.width == 0 || SourcePath(image) != path ||
            !IsUntouched(image, model_.state.Gear)) {
            continue;
        }
        if (image.Width == 0) {
            TakeSize(photo.size, image);
            workspace_.preparation.GiveOwnGear(image);
        }
        if (HasSizeOf(photo, image)) {
            lines.push_back(line);
        }
    }
    model_.steps.Absorb();
    return lines;
}

void PhotoGears::ShowGears(const std::vector<GearRecord>& newGears) {
    if (!newGears.empty()) {
        SaveGear(store_, model_.state.Gear);
        workspace_.gears.Refill();
    }
}

void PhotoGears::ShowCurrent() {
    if (const ImageRecord* const image = model_.list.Current()) {
        model_.ShowInControls(*image);
        workspace_.preview.Preview();
    }
}

// A gear that something else uses by now stays.
void PhotoGears::RestoreGears(const std::vector<GearRecord>& gears, bool undone) {
    GearTable& table = model_.state.Gear;
    for (const GearRecord& gear : gears) {
        const int n = table.Find(gear.GearName);
        const bool isUsed =
            table.DefaultGearName == gear.GearName || !MayDeleteGear(table) ||
            std::ranges::any_of(model_.list.Images(), [&gear](const ImageRecord& image) {
                return image.GearName == gear.GearName;
            });
        if (undone && n > 0 && table(n) == gear && !isUsed) {
            DeleteGear(table, n);
        } else if (!undone && n == 0) {
            table.Resize(table.UpperBound() + 1);
            table(table.UpperBound()) = gear;
        }
    }
    ShowGears(gears);
    if (const ImageRecord* const image = model_.list.Current()) {
        model_.ShowInControls(*image);
    }
}

int PhotoGears::JustGiven() const {
    return model_.steps.StepsSinceGears(addition_) == 0 ? given_ : 0;
}

std::optional<FoundCircle> PhotoGears::CircleOn(const ImageRecord& image) const {
    const auto photo = photos_.constFind(SourcePath(image));
    return photo != photos_.constEnd() && HasSizeOf(*photo, image) ? photo->circle : std::nullopt;
}

PhotoReading PhotoGears::CurrentReading() const {
    const ImageRecord* const image = model_.list.Current();
    const Bitmap* const photo = model_.state.bitmaps.FullSourceBitmap.get();
    if (image == nullptr || photo == nullptr) {
        return {};
    }
    return {photo->metadata.photo.origin, CircleOn(*image)};
}

FrameChoice PhotoGears::CurrentFrame() const {
    const ImageRecord* const image = model_.list.Current();
    const int gear = image == nullptr ? 0 : model_.state.Gear.Find(image->GearName);
    const bool isKnown = gear > 0 && photos_.contains(SourcePath(*image)) && image->Width > 0;
    return isKnown ? FrameChoiceOf(model_.state.Gear(gear), CircleOn(*image), *image)
                   : FrameChoice();
}

std::vector<int> PhotoGears::Alike() const {
    std::vector<int> lines;
    const ImageRecord* const current = model_.list.Current();
    const auto photo = photos_.constFind(model_.list.CurrentPath());
    if (current == nullptr || photo == photos_.constEnd()) {
        return lines;
    }
    for (int line = 0; line < model_.list.Images().UpperBound(); ++line) {
        const ImageRecord& image = model_.list.OnLine(line);
        const auto other = photos_.constFind(SourcePath(image));
        const bool isOther =
            image.GearName != current->GearName ||
            (&image != current && IsGuessed(image) && !HasCircleOf(image, *current));
        if (isOther && other != photos_.constEnd() && AreAlike(*photo, *other)) {
            lines.push_back(line);
        }
    }
    return lines;
}

GearRecord PhotoGears::GearOfCurrent() const {
    const ImageRecord& image = *model_.list.Current();
    const int gear = model_.state.Gear.Find(image.GearName);
    // A guess is not in the table.
    return gear > 0 ? model_.state.Gear(gear) : WholeGearOf(image);
}

void PhotoGears::Use(const GearOption& option) {
    ImageRecord* const image = model_.list.Current();
    if (image == nullptr || image->Width == 0 || model_.activity.Busy() || !mayChange_()) {
        return;
    }
    GearTable& table = model_.state.Gear;
    std::vector<GearRecord> newGears;
    int gear = option.gear;
    if (gear == 0) {
        newGears.push_back(BuiltGear(option.names));
        newGears.front().GearName = UniqueGearName(table, newGears.front().GearName);
        table.Resize(table.UpperBound() + 1);
        gear = table.UpperBound();
        table(gear) = newGears.front();
    }
    GiveGearAndFrame(table(gear), CircleOn(*image), *image);
    model_.steps.Note(StepKind::Gear, {.gear = {}, .newGears = newGears});
    ShowGears(newGears);
    ShowCurrent();
}

void PhotoGears::TakeOtherFrame() {
    const FrameChoice choice = CurrentFrame();
    if (choice.use == FrameUse::Only || model_.activity.Busy() || !mayChange_()) {
        return;
    }
    *model_.list.Current() = choice.other;
    model_.steps.Note(StepKind::Circle);
    ShowCurrent();
}

// A gear of the table is seen as each picture says; a guess with its circle goes as it is.
void PhotoGears::GiveToAlike() {
    const std::vector<int> lines = Alike();
    if (lines.empty() || model_.activity.Busy() || !mayChange_()) {
        return;
    }
    const GearRecord gear = GearOfCurrent();
    const bool isListed = model_.state.Gear.Find(gear.GearName) > 0;
    for (const int line : lines) {
        ImageRecord& image = model_.list.OnLine(line);
        const PhotoSize& size = photos_[SourcePath(image)].size;
        if (image.Width == 0) {
            TakeSize(size, image);
        }
        if (isListed) {
            GiveGearAndFrame(gear, CircleOn(image), image);
        } else {
            image.SettingsApplied = false;
            AssignGear(gear, image);
        }
    }
    model_.steps.Note(StepKind::Gear, {.onAllLines = true, .gear = {}});
    ShowCurrent();
}

}  // namespace varnel
