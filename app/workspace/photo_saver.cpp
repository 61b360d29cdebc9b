// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/photo_saver.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <new>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "pipeline/output/name_pattern.h"
#include "remap/encode/output_type.h"
#include "remap/encode/save_bitmap.h"
#include "remap/image/photo_date.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

// A picture that is saved by itself tells no settings in its name.
constexpr QLatin1StringView savePattern("{name}.{projection}");

}  // namespace

SaveResult PhotoSaver::RenderAndSave(const ImageRecord& image, const SaveChoice& choice,
                                     const CancelFlag& cancelled) {
    const auto saving = model_.activity.Save();
    const auto rendering = model_.activity.Render();
    RenderContext context{
        .bitmaps = model_.state.bitmaps, .runner = &model_.state.pool, .keepsTransparency = true};
    CancellableProgress progress(ports_.view.Progress(), cancelled);
    try {
        Render(model_.controls.ChosenProjection(), image, SizeKind::Large, progress, context);
        Bitmap* const result = model_.state.bitmaps.ResultBitmap.get();
        if (!model_.state.settings.WriteMetadata) {
            DropMetadata(result);
        }
        ImageRecord shown = image;
        shown.Projection = static_cast<std::int16_t>(model_.controls.ChosenProjection());
        NoteSettings(result, shown, model_.state.settings.WriteSettings,
                     model_.state.settings.WriteMetadata ? choice.name : QString());
        OutputEncoding encoding = EncodingOf(model_.state.settings);
        encoding.type = TypeOf(choice);
        return SaveMeanwhile({encoding, choice.name}, result, model_.state.pool,
                             ports_.view.Progress(), cancelled);
    } catch (const SavingCancelled&) {
        return {};
    } catch (const RunTimeError& error) {
        return {false, ReasonFor(error)};
    } catch (const std::bad_alloc&) {
        return {false, {ReasonCode::Words, Texts::tr("There is not enough memory.")}};
    }
}

SaveResult PhotoSaver::SaveLocked(const ImageRecord& image, const SaveChoice& choice,
                                  CancelFlag& cancelled) {
    const auto busy = model_.activity.Occupy();
    ports_.view.Lock(true);
    ports_.view.LetCancel([&cancelled] { cancelled = true; });
    ports_.view.HandleEvents();
    auto hourglass = ports_.view.Hourglass();
    SaveResult saved = RenderAndSave(image, choice, cancelled);
    model_.state.bitmaps.ResultBitmap.reset();  // full size: too much to keep for nothing
    hourglass.reset();
    ports_.view.LetCancel(nullptr);
    ports_.view.Lock(false);
    return saved;
}

SaveChoice PhotoSaver::Proposal(const ImageRecord& image) const {
    const GeneralSettings& settings = model_.state.settings;
    ImageRecord shown = image;
    shown.Projection = static_cast<std::int16_t>(model_.controls.ChosenProjection());
    const NameFacts facts{
        1, 1, PhotoDate(model_.state.bitmaps.FullSourceBitmap->metadata.photo, SourcePath(image))};
    const PixelSize size = ResultSizeOf(shown, {image.Width, image.Height});
    SaveOffer offer{WishOf(settings),
                    static_cast<double>(size.width) * size.height,
                    savePattern,
                    QFileInfo(SourcePath(image)).path(),
                    SampleKindOf(model_.state.bitmaps.FullSourceBitmap->Format()),
                    [shown, facts](const SaveWish& wish) {
                        const QString pattern =
                            wish.pattern.isEmpty() ? QString(savePattern) : wish.pattern;
                        return NameByPattern(AsSaved(shown, wish.sampling), {pattern}, facts);
                    }};
    const QString folder = image.Folder + u'/';
    return {folder + offer.nameBy(offer.wish), FilterIndexOf(OutputTypeFromText(settings.FileType)),
            std::move(offer)};
}

void PhotoSaver::SaveAs(FileChooser& chooser) {
    if (model_.activity.Busy() || model_.list.Current() == nullptr) {
        return;
    }
    const ImageRecord image = preparation_.PreparedCurrent();
    if (!model_.state.bitmaps.FullSourceBitmap) {
        photo_.ReportNotOpened(image);
        return;
    }
    const std::optional<SaveChoice> choice =
        AskWhereToSave(chooser, ports_.notices, Proposal(image), SourcePath(image));
    if (!choice) {
        return;
    }
    if (choice->output) {
        TakeWish(choice->output->wish, model_.state.settings);
        Q_EMIT model_.SavingChanged();
    }
    CancelFlag cancelled = false;
    const SaveResult saved =
        SaveLocked(AsSaved(image, SamplingOf(model_.state.settings)), *choice, cancelled);
    if (!saved && cancelled) {
        ports_.view.ShowStatus(CancelledText());
    } else {
        Report(saved, choice->name);
    }
    if (saved) {
        model_.steps.MarkWritten(image, choice->name);
        Q_EMIT model_.PictureSaved(choice->name);
    }
    Q_EMIT model_.activity.Idle();
}

void PhotoSaver::Report(const SaveResult& saved, const QString& name) {
    if (!saved) {
        ports_.notices.Tell(Texts::tr("Could not save %1").arg(name), ErrorText(saved.reason));
    } else if (saved.note.isEmpty()) {
        ports_.view.ShowStatus(Texts::tr("Saved %1").arg(name));
    } else {
        ports_.view.ShowStatus(Texts::tr("Saved %1, %2").arg(name, ErrorText(saved.note)));
    }
}

}  // namespace varnel
