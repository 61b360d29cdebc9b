// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving the current photo: the part of the workspace that writes files.

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <new>

#include "app/workspace/workspace.h"
#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "pipeline/conversion/output_name.h"
#include "remap/encode/output_type.h"
#include "remap/encode/save_bitmap.h"
#include "remap/image/photo_metadata.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

}  // namespace

SaveResult Workspace::RenderAndSave(const ImageRecord& image, const SaveChoice& choice,
                                    const CancelFlag& cancelled) {
    const QScopedValueRollback saving(saving_, true);
    const QScopedValueRollback rendering(rendering_, true);
    RenderContext workspace{.bitmaps = state_.bitmaps, .runner = &state_.pool};
    CancellableProgress progress(view_.Progress(), cancelled);
    try {
        Render(view_.ChosenProjection(), image, SizeKind::Large, progress, workspace);
        Bitmap* const result = state_.bitmaps.ResultBitmap.get();
        if (!state_.settings.WriteMetadata) {
            DropMetadata(result);
        }
        ImageRecord shown = image;
        shown.Projection = static_cast<std::int16_t>(view_.ChosenProjection());
        NoteSettings(result, shown, state_.settings.WriteSettings,
                     state_.settings.WriteMetadata ? choice.name : QString());
        const OutputEncoding encoding(TypeOf(choice), state_.settings.JPEGcompression,
                                      state_.settings.JPEGchroma444);
        return SaveMeanwhile({encoding, choice.name}, result, state_.pool, view_.Progress(),
                             cancelled);
    } catch (const SavingCancelled&) {
        return {};
    } catch (const RunTimeError& error) {
        return {false, ReasonFor(error)};
    } catch (const std::bad_alloc&) {
        return {false, {ReasonCode::Words, Texts::tr("There is not enough memory.")}};
    }
}

void Workspace::SaveAs(FileChooser& chooser) {
    if (Busy() || Current() == nullptr) {
        return;
    }
    const ImageRecord image = PreparedCurrent();
    if (!state_.bitmaps.FullSourceBitmap) {
        TellNotOpened(image);
        return;
    }
    const SaveChoice proposal{ProposedName(SourcePath(image), view_.ChosenProjection()),
                              FilterIndexOf(OutputTypeFromText(state_.settings.FileType))};
    const std::optional<SaveChoice> choice =
        AskWhereToSave(chooser, notices_, proposal, SourcePath(image));
    if (!choice) {
        return;
    }
    CancelFlag cancelled = false;
    SaveResult saved;
    {
        const QScopedValueRollback busy(busy_, true);
        view_.Lock(true);
        view_.LetCancel([&cancelled] { cancelled = true; });
        view_.HandleEvents();
        auto hourglass = view_.Hourglass();
        saved = RenderAndSave(image, *choice, cancelled);
        state_.bitmaps.ResultBitmap.reset();  // full size: too much to keep for nothing
        hourglass.reset();
        view_.LetCancel(nullptr);
        view_.Lock(false);
    }
    if (!saved && cancelled) {
        view_.ShowStatus(CancelledText());
    } else {
        TellSaved(saved, choice->name);
    }
    if (saved) {
        MarkWritten(image, choice->name);
    }
    view_.Idle();
}

void Workspace::TellSaved(const SaveResult& saved, const QString& name) {
    if (!saved) {
        notices_.Tell(Texts::tr("Could not save %1").arg(name), ErrorText(saved.reason));
    } else if (saved.note.isEmpty()) {
        view_.ShowStatus(Texts::tr("Saved %1").arg(name));
    } else {
        view_.ShowStatus(Texts::tr("Saved %1, %2").arg(name, ErrorText(saved.note)));
    }
}

}  // namespace varnel
