// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/current_photo.h"

#include <QCoreApplication>
#include <new>
#include <optional>
#include <utility>

#include "base/error_text.h"
#include "base/shortage.h"
#include "pipeline/photos/raw_pairs.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

}  // namespace

void CurrentPhoto::ReportNotOpened(const ImageRecord& image) {
    ports_.notices.Tell(Texts::tr("Could not open image"),
                        QStringLiteral("%1: %2").arg(SourcePath(image), ErrorText(loadError_)));
}

// Developing a raw photo takes seconds; the camera's own picture is there at once.
void CurrentPhoto::ShowFirstLook(const QString& path) {
    if (!IsRawName(path)) {
        return;
    }
    if (const BitmapHandle small = ports_.photos.FirstLook(path, ports_.view.PreviewBox())) {
        ports_.view.ShowSource(small.get());
    }
}

ShelvedPhoto CurrentPhoto::Load(const QString& path) {
    std::optional<ShelvedPhoto> ready;
    if (ports_.shelf != nullptr) {
        ready = ports_.shelf->Take(path);
    }
    if (!ready) {
        ShowFirstLook(path);
    }
    return ready ? std::move(*ready) : ShelvedPhoto{ports_.photos.Load(path), nullptr};
}

// The photo that is left may be looked at again soon.
void CurrentPhoto::PutAway() {
    BitmapHandle photo = std::move(model_.state.bitmaps.FullSourceBitmap);
    BitmapHandle reduced = std::move(model_.state.bitmaps.PreviewSourceBitmap);
    if (ports_.shelf != nullptr && photo && !shownPath_.isEmpty()) {
        shown_.bitmap = std::move(photo);
        ports_.shelf->Put(shownPath_, {std::move(shown_), std::move(reduced)});
    }
    shownPath_.clear();
    shown_ = {};
}

// The next photo on the way comes first.
void CurrentPhoto::ReadNeighbours(int line) {
    const int way = line < lastLine_ ? -1 : 1;
    lastLine_ = line;
    QStringList paths;
    for (const int neighbour : {line + way, line - way}) {
        if (neighbour >= 0 && neighbour < model_.list.Images().UpperBound()) {
            paths.append(SourcePath(model_.list.OnLine(neighbour)));
        }
    }
    if (ports_.shelf != nullptr) {
        ports_.shelf->ReadAhead(paths);
    }
}

bool CurrentPhoto::LoadFull(int line) {
    model_.steps.Note(StepKind::Other);
    model_.steps.Seal();  // what comes now is no step of the user
    ImageRecord& image = model_.list.OnLine(line);
    Bitmaps& bitmaps = model_.state.bitmaps;
    bitmaps.ResultBitmap.reset();
    PutAway();
    ports_.view.ShowResult(nullptr);  // never another photo's
    ports_.view.ShowError({});
    auto [loaded, reduced] = Load(SourcePath(image));
    loadError_ = loaded.bitmap ? Reason() : loaded.reason;
    if (!loaded.reason.isEmpty()) {
        ports_.view.ShowError(
            QStringLiteral("%1: %2").arg(image.FileName, ErrorText(loaded.reason)));
    }
    if (!loaded.bitmap) {
        ports_.view.ShowSource(nullptr);
        ports_.view.ShowStatus({});
        model_.ShowInControls(image);
        return false;
    }
    unreadable_.remove(SourcePath(image));
    bitmaps.FullSourceBitmap = std::move(loaded.bitmap);
    bitmaps.PreviewSourceBitmap = std::move(reduced);
    shownPath_ = SourcePath(image);
    shown_ = std::move(loaded);
    TakeSize({SizeOf(bitmaps.FullSourceBitmap.get()), shown_.orientation}, image);
    preparation_.GiveOwnGear(image);
    model_.steps.Absorb();
    model_.ShowInControls(image);
    ports_.view.ShowStatus(Texts::tr("%1 x %2 pixels").arg(image.Width).arg(image.Height));
    return true;
}

void CurrentPhoto::ShowLine(int line) {
    if (model_.activity.Busy() || line < 0 || line >= model_.list.Images().UpperBound()) {
        return;
    }
    {
        const auto busy = model_.activity.Occupy();
        if (LoadAndReduce(line)) {
            preview_.Preview();
        } else if (!loadError_.Is(ReasonCode::Cancelled) &&
                   Unreadable(model_.list.CurrentPath()).isEmpty()) {
            ReportNotOpened(model_.list.OnLine(line));
        }
        ReadNeighbours(line);
    }
    Q_EMIT model_.activity.Idle();
}

void CurrentPhoto::ShowList(int line) {
    model_.list.Refill(line);
    if (model_.list.Images().Empty()) {
        model_.gears.Refill();
    }
    ShowLine(model_.list.CurrentLine());
}

bool CurrentPhoto::LoadAndReduce(int line) {
    const auto hourglass = ports_.view.Hourglass();
    try {
        if (!LoadFull(line)) {
            return false;
        }
        preview_.Reduce();
        return true;
    } catch (const std::bad_alloc&) {
        model_.state.bitmaps = {};
        loadError_ = ReasonCode::NotEnoughMemory;
        ports_.view.ShowError(ErrorText(loadError_));
        ports_.view.ShowSource(nullptr);
        return false;
    }
}

bool CurrentPhoto::RebuildThumbnail() {
    if (!model_.state.bitmaps.FullSourceBitmap) {
        return false;
    }
    model_.state.bitmaps.PreviewSourceBitmap.reset();
    const QString shortage = Shortage([this] { preview_.Reduce(); });
    if (!shortage.isEmpty()) {
        loadError_ = {ReasonCode::Words, shortage};
        ports_.view.ShowSource(nullptr);
        ports_.view.ShowResult(nullptr);
        ports_.view.ShowStatus(shortage);
    }
    return shortage.isEmpty();
}

void CurrentPhoto::NoteUnreadable(const std::vector<BadFile>& bad) {
    for (const BadFile& file : bad) {
        unreadable_.insert(file.path, file.reason);
    }
}

}  // namespace varnel
