// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/workspace.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <new>
#include <utility>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/shortage.h"
#include "remap/image/preview_size.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

}  // namespace

ImageRecord* Workspace::Current() {
    const int n = view_.CurrentLine() + 1;
    return n >= 1 && n <= state_.Images.UpperBound() ? &state_.Images(n) : nullptr;
}

const ImageRecord& Workspace::PreparedCurrent() {
    Prepare(*Current());
    RefreshCurrent();
    return *Current();
}

QString Workspace::CurrentPath() {
    const ImageRecord* const image = Current();
    return image != nullptr ? SourcePath(*image) : QString();
}

void Workspace::ShowInControls(const ImageRecord& image) {
    const QScopedValueRollback loading(state_.loadingControls, true);
    view_.ShowRecord(image);
}

void Workspace::TellNotOpened(const ImageRecord& image) {
    notices_.Tell(Texts::tr("Could not open image"),
                  QStringLiteral("%1: %2").arg(SourcePath(image), ErrorText(loadError_)));
}

bool Workspace::LoadFull(int line) {
    NoteStep(StepKind::Other);  // all that comes now is nobody's deed
    history_.Seal();
    ImageRecord& image = state_.Images(line + 1);
    state_.bitmaps.ResultBitmap.reset();
    state_.bitmaps.PreviewSourceBitmap.reset();
    state_.bitmaps.FullSourceBitmap.reset();
    view_.ShowResult(nullptr);  // never another photo's
    view_.ShowError({});
    LoadedPicture loaded = photos_.Load(SourcePath(image));
    loadError_ = loaded.bitmap ? Reason() : loaded.reason;
    if (!loaded.reason.isEmpty()) {
        view_.ShowError(QStringLiteral("%1: %2").arg(image.FileName, ErrorText(loaded.reason)));
    }
    if (!loaded.bitmap) {
        view_.ShowSource(nullptr);
        view_.ShowStatus({});
        ShowInControls(image);
        return false;
    }
    unreadable_.remove(SourcePath(image));
    state_.bitmaps.FullSourceBitmap = std::move(loaded.bitmap);
    TakeSize({SizeOf(state_.bitmaps.FullSourceBitmap.get()), loaded.orientation}, image);
    GiveOwnGear(image);
    Absorb();
    ShowInControls(image);
    view_.ShowStatus(Texts::tr("%1 x %2 pixels").arg(image.Width).arg(image.Height));
    return true;
}

void Workspace::ShowLine(int line) {
    if (Busy() || line < 0 || line >= state_.Images.UpperBound()) {
        return;
    }
    {
        const QScopedValueRollback busy(busy_, true);
        if (LoadAndReduce(line)) {
            Preview();
        } else if (!loadError_.Is(ReasonCode::Cancelled) && Unreadable(CurrentPath()).isEmpty()) {
            TellNotOpened(state_.Images(line + 1));
        }
    }
    view_.Idle();
}

bool Workspace::LoadAndReduce(int line) {
    const auto hourglass = view_.Hourglass();
    try {
        if (!LoadFull(line)) {
            return false;
        }
        Reduce();
        return true;
    } catch (const std::bad_alloc&) {
        state_.bitmaps = {};
        loadError_ = ReasonCode::NotEnoughMemory;
        view_.ShowError(ErrorText(loadError_));
        view_.ShowSource(nullptr);
        return false;
    }
}

void Workspace::Reduce() {
    const Bitmap* const full = state_.bitmaps.FullSourceBitmap.get();
    const PixelSize size = PreviewSize(SizeOf(full), view_.PreviewBox(), view_.PictureRoom());
    state_.bitmaps.PreviewSourceBitmap.reset();
    state_.bitmaps.PreviewSourceBitmap = ReducedCopy(full, size);
    view_.ShowSource(state_.bitmaps.PreviewSourceBitmap.get());
}

bool Workspace::RebuildThumbnail() {
    if (!state_.bitmaps.FullSourceBitmap) {
        return false;
    }
    const QString shortage = Shortage([this] { Reduce(); });
    if (!shortage.isEmpty()) {
        loadError_ = {ReasonCode::Words, shortage};
        view_.ShowSource(nullptr);
        view_.ShowResult(nullptr);
        view_.ShowStatus(shortage);
    }
    return shortage.isEmpty();
}

// A preview that is asked for while one is drawn is drawn after it, with what is current then: a
// second one inside the first would take the result away under it.
void Workspace::RenderPreview(const ImageRecord& image) {
    if (!state_.bitmaps.PreviewSourceBitmap) {
        return;
    }
    if (rendering_) {
        drawAgain_ = !saving_;
        return;
    }
    {
        const QScopedValueRollback rendering(rendering_, true);
        const auto hourglass = view_.Hourglass();
        RenderThumbnail(image);
    }
    if (std::exchange(drawAgain_, false) && Current() != nullptr) {
        RenderPreview(*Current());
    }
    view_.Idle();
}

void Workspace::RenderThumbnail(const ImageRecord& image) {
    RenderContext workspace{state_.bitmaps, [this] { return view_.Antialiased(); }, &state_.pool};
    try {
        Render(view_.ChosenProjection(), image, SizeKind::Thumbnails, view_.Progress(), workspace);
        view_.NoteDrawn(image);
        view_.ShowResult(state_.bitmaps.ResultBitmap.get());
    } catch (const RunTimeError& error) {
        view_.ShowResult(nullptr);
        view_.ShowStatus(ErrorText(ReasonFor(error)));
    } catch (const std::bad_alloc&) {
        view_.ShowResult(nullptr);
        view_.ShowStatus(ShortageText(Scarce::Memory));
    }
}

void Workspace::Preview() {
    NoteStep(StepKind::Other);  // whatever has no name
    if (const ImageRecord* const image = Current(); image != nullptr && view_.AutoPreview()) {
        RenderPreview(*image);
    }
}

void Workspace::PreviewNow() {
    if (Busy() || Current() == nullptr) {
        return;
    }
    StoreControls(false);
    if (RebuildThumbnail()) {
        RenderPreview(*Current());
    } else {
        TellNotOpened(*Current());
    }
}

void Workspace::PreviewControls() {
    if (busy_ || rendering_ || Current() == nullptr || !view_.AutoPreview()) {
        return;
    }
    ImageRecord trial = *Current();
    varnel::StoreControls(view_.Controls(), trial);
    RenderPreview(trial);
}

bool Workspace::PrepareAll() {
    bool prepared = true;
    {
        const auto hourglass = view_.Hourglass();
        const QScopedValueRollback busy(busy_, true);
        const PhotoLoader::Together together(photos_);
        for (int n = 1; prepared && n <= state_.Images.UpperBound(); ++n) {
            Prepare(state_.Images(n));
            prepared = !photos_.GivenUp();
        }
    }
    RefreshCurrent();
    view_.Idle();
    return prepared;
}

void Workspace::RefreshCurrent() {
    Absorb();
    const ImageRecord* const image = Current();
    if (image == nullptr) {
        return;
    }
    const ControlValues before = view_.Controls();
    ShowInControls(*image);
    if (!(view_.Controls() == before)) {
        Preview();
    }
}

void Workspace::StoreControls(bool withPreview) {
    if (state_.loadingControls || saving_) {
        return;
    }
    const ControlValues values = view_.Controls();
    const std::vector<int> lines = view_.SelectedLines();
    std::vector<ControlValues> before;
    for (const int line : lines) {
        ImageRecord& image = state_.Images(line + 1);
        Prepare(image);
        before.push_back(ValuesFor(image));
    }
    Absorb();
    for (const int line : lines) {
        varnel::StoreControls(values, state_.Images(line + 1));
    }
    NoteStored(lines, before);
    view_.HandleEvents();
    if (withPreview) {
        Preview();
    }
}

void Workspace::AdoptTile(const ContactTile& tile) {
    if (Busy() || Current() == nullptr) {
        return;
    }
    for (const int line : view_.SelectedLines()) {
        ImageRecord& image = state_.Images(line + 1);
        Prepare(image);
        Adopt(tile, image);
    }
    NoteStep(StepKind::ContactSheet);
    ShowInControls(*Current());
    Preview();
}

void Workspace::ApplySettings() {
    if (Current() == nullptr) {
        return;
    }
    if (PrepareAll()) {
        ApplySettingsToAll(state_.Images, view_.CurrentLine() + 1);
        NoteStep(StepKind::SettingsToAll, {.onAllLines = true, .gear = {}});
    }
}

void Workspace::RemoveSelected() {
    RecordArray<ImageRecord> kept;
    const std::vector<int> removed = view_.SelectedLines();
    std::size_t next = 0;
    for (int line = 0; line < state_.Images.UpperBound(); ++line) {
        if (next < removed.size() && removed[next] == line) {
            ++next;
        } else {
            kept.Append(std::move(state_.Images(line + 1)));
        }
    }
    state_.Images = std::move(kept);
    NoteStep(StepKind::Remove);
    ShowNewList(0);
}

int Workspace::AddToBatchQueue() {
    if (PrepareAll()) {
        for (const ImageRecord& image : state_.Images) {
            state_.BatchQueue.Append(image);
        }
    }
    return state_.BatchQueue.UpperBound();
}

}  // namespace varnel
