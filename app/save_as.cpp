// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving the current photo: the part of the desk that writes files.

#include <QCoreApplication>
#include <new>

#include "app/desk.h"
#include "app/scoped.h"
#include "pipeline/output_name.h"
#include "pipeline/output_type.h"
#include "remap/run_time_error.h"
#include "remap/save_bitmap.h"

namespace varnel {

namespace {

QString Tr(const char* text) {
    return QCoreApplication::translate("Desk", text);
}

}  // namespace

void Desk::RenderAndSave(const ImageRecord& image, const SaveChoice& choice) {
    const OutputType type = TypeOf(choice);
    RenderDesk desk{state_.bitmaps};
    Render(view_.ChosenProjection(), image, SizeKind::Large, view_.Progress(), desk);
    const SaveResult saved =
        SaveBitmap(FormatOf(type), state_.bitmaps.ResultBitmap.get(), choice.name,
                   SaveFlags(type, state_.settings.JPEGcompression));
    if (saved) {
        view_.ShowStatus(Tr("Saved %1").arg(choice.name));
    } else {
        notices_.Tell(Tr("Could not save %1").arg(choice.name), saved.reason);
    }
}

void Desk::SaveAs(FileChooser& chooser) {
    if (Busy() || Current() == nullptr) {
        return;
    }
    const Raised busy(busy_);
    const ImageRecord image = *Current();
    if (!state_.bitmaps.FullSourceBitmap) {
        notices_.Tell(Tr("Could not open image"), SourcePath(image));
        return;
    }
    const SaveChoice proposal{ProposedName(SourcePath(image), view_.ChosenProjection()),
                              static_cast<int>(OutputTypeFromText(state_.settings.FileType)) + 1};
    const std::optional<SaveChoice> choice =
        AskWhereToSave(chooser, notices_, proposal, SourcePath(image));
    if (!choice) {
        return;
    }
    view_.Lock(true);
    view_.HandleEvents();
    view_.ShowHourglass(true);
    try {
        RenderAndSave(image, *choice);
    } catch (const RunTimeError& error) {
        notices_.Tell(Tr("Could not save %1").arg(choice->name), QString::fromUtf8(error.what()));
    } catch (const std::bad_alloc&) {
        notices_.Tell(Tr("Could not save %1").arg(choice->name), Tr("There is not enough memory."));
    }
    state_.bitmaps.ResultBitmap.reset();  // full size: too much to keep for nothing
    view_.ShowHourglass(false);
    view_.Lock(false);
}

}  // namespace varnel
