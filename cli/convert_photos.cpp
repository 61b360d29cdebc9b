// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_photos.h"

#include <QFileInfo>
#include <QMap>
#include <QThread>
#include <new>
#include <optional>

#include "cli/convert_file.h"
#include "cli/progress_bar.h"
#include "gear/gear_offer.h"
#include "pipeline/photo_feed.h"
#include "pipeline/save_worker.h"
#include "remap/engine/thread_runner.h"
#include "remap/photo_metadata.h"
#include "remap/run_time_error.h"

namespace varnel {

namespace {

// While one photo is converted the next is read and the last one written; what is told is told in
// the photos' order all the same.
class Conversions {
  public:
    Conversions(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                const Console& console)
        : settings_(With(options, settings)),
          jobs_(options.jobs.value_or(QThread::idealThreadCount())),
          console_(console),
          reader_(NewPictureReader()),
          feed_(std::in_place, *reader_, MoreReaders(jobs_), wait_, settings_.AutoOrient),
          bar_(console.err),
          runner_(jobs_),
          saveRunner_(jobs_),
          run_{options,
               gears,
               settings_,
               console.bar && !options.quiet ? static_cast<RenderProgress&>(bar_) : silent_,
               runner_,
               FileSet(options.files)},
          worker_(jobs_ > 1) {}

    // True when all were written from sound pictures.
    bool Go() {
        files_ = FilesToDo();
        for (qsizetype n = 0; n < files_.size(); ++n) {
            bar_.SetLabel(files_[n]);
            ConvertPhoto(n);
        }
        FinishWriting();
        TellHowOften();
        if (const WriteResult last = run_.series.Finish(); !last) {
            allWell_ = false;
            Complain(console_, last.reason);
        }
        return allWell_;
    }

  private:
    static GeneralSettings With(const Options& options, GeneralSettings settings) {
        settings.AutoOrient = settings.AutoOrient && !options.noAutoOrient;
        return settings;
    }

    struct Writing {
        ConversionTarget target;
        BitmapHandle result;
    };

    // Without those of which every result lies there already, if the options say so.
    QStringList FilesToDo() {
        QStringList files;
        for (const QString& file : run_.options.files) {
            if (!run_.options.skipExisting || !IsDone(file)) {
                files.append(file);
            }
        }
        return files;
    }

    bool IsDone(const QString& file) {
        const bool nameTellsGear = !run_.options.outputDir.isEmpty() || run_.options.morph;
        if (!run_.gears.forAll && nameTellsGear) {
            return false;  // only the photo itself tells what its results are called
        }
        const std::optional<PhotoSize> size = PhotoLoader(*reader_, nullptr, &settings_).Size(file);
        if (!size) {
            return false;  // its trouble is told in its turn
        }
        try {
            const auto records = RecordsFor(
                run_, StartRecord(run_, file, *size, run_.gears.forAll.value_or(GearRecord())));
            return std::ranges::all_of(records, [&](const ImageRecord& record) {
                return QFileInfo::exists(TargetFor(run_, file, record).file);
            });
        } catch (const RunTimeError&) {
            return false;
        }
    }

    void ConvertPhoto(qsizetype n) {
        LoadedPicture loaded = Load(n);
        if (loaded.outcome != LoadOutcome::Loaded) {
            Report(files_[n], loaded.reason);
        }
        if (loaded.outcome == LoadOutcome::NotLoaded) {
            return;
        }
        const auto gear = GearFor(run_.gears, OriginOf(loaded.bitmap.get()));
        if (const auto* reason = std::get_if<QString>(&gear)) {
            Report(files_[n], *reason);
            return;
        }
        OpenPhoto photo{files_[n],
                        StartRecord(run_, files_[n], {loaded.size, loaded.orientation},
                                    std::get<GearRecord>(gear)),
                        {},
                        loaded.outcome == LoadOutcome::Damaged};
        photo.bitmaps.FullSourceBitmap = std::move(loaded.bitmap);
        photo.bitmaps.ResultBitmap = std::move(spare_);
        if (const QString doubt = run_.gears.forAll ? QString() : ShapeTrouble(photo.record);
            !doubt.isEmpty()) {
            Complain(console_, photo.path + QStringLiteral(": ") + doubt);
        }
        const std::vector<ImageRecord> records = RecordsFor(run_, photo.record);
        for (const ImageRecord& record : records) {
            const bool last = &record == &records.back();
            ConvertOne(photo, record, last);
        }
        if (!spare_) {
            spare_ = std::move(photo.bitmaps.ResultBitmap);
        }
    }

    PhotoOrigin OriginOf(FIBITMAP* bitmap) const {
        return run_.gears.forAll ? PhotoOrigin() : MetadataOf(bitmap).origin;
    }

    LoadedPicture Load(qsizetype n) {
        if (begun_ <= n) {
            FinishWriting();  // it may be what is written, however odd that is
            begun_ = n + 1;
        }
        LoadedPicture loaded = feed_->Take(files_[n]);
        while (jobs_ > 1 && begun_ < files_.size() && begun_ <= n + feed_->Ahead() &&
               HasRoomAhead(begun_ - n, loaded.size) && QFileInfo::exists(files_[begun_])) {
            feed_->ReadAhead(files_[begun_++]);
        }
        if (n + 1 == files_.size()) {
            feed_.reset();  // its decoders' memory is better used now
            reader_.reset();
        }
        return loaded;
    }

    void ConvertOne(OpenPhoto& photo, const ImageRecord& record, bool last) {
        QString file = photo.path;
        try {
            const ConversionTarget target = TargetFor(run_, photo.path, record);
            file = target.file;
            if (writing_ && MayBeSameFile(writing_->target.file, file)) {
                FinishWriting();
            }
            if (run_.options.skipExisting && QFileInfo::exists(file)) {
                return;
            }
            if (const QString trouble = TargetTrouble(run_, photo, file); !trouble.isEmpty()) {
                Report(file, trouble);
                return;
            }
            RenderInto(run_, photo, record, file);
            if (last) {
                photo.bitmaps.FullSourceBitmap.reset();  // encoding needs room of its own
                photo.bitmaps.PreviewSourceBitmap.reset();
            }
            FinishWriting();
            // What was written meanwhile may be the same file under another name.
            if (const QString trouble = TargetTrouble(run_, photo, file); !trouble.isEmpty()) {
                Report(file, trouble);
                return;
            }
            BeginWriting(target, photo);
        } catch (const RunTimeError& error) {
            Report(file, QString::fromUtf8(error.what()));
        } catch (const std::bad_alloc&) {
            Report(file, QStringLiteral("there is not enough memory"));
        }
    }

    void BeginWriting(const ConversionTarget& target, OpenPhoto& photo) {
        writing_ = {target, std::move(photo.bitmaps.ResultBitmap)};
        photo.bitmaps.ResultBitmap = std::move(spare_);
        worker_.Begin([this, target, result = writing_->result.get()] {
            return SaveTo(run_, target, result, saveRunner_);
        });
    }

    void FinishWriting() {
        if (!writing_) {
            return;
        }
        while (!worker_.Wait(1000)) {
        }
        const SaveResult saved = worker_.Take();
        const Writing done = {writing_->target, nullptr};
        spare_ = std::move(writing_->result);
        writing_.reset();
        if (!saved) {
            Report(done.target.file, saved.reason);
            return;
        }
        TellOnce(done.target.file, saved.note);
        run_.written.insert(QFileInfo(done.target.file).canonicalFilePath());
        if (!run_.options.quiet) {
            console_.out << LocalText(done.target.file) << std::endl;
        }
    }

    // Many files may be without the same.
    void TellOnce(const QString& file, const QString& note) {
        if (!note.isEmpty() && notes_[note]++ == 0) {
            Complain(console_, file + QStringLiteral(": ") + note);
        }
    }

    void TellHowOften() {
        for (const auto& [note, files] : notes_.asKeyValueRange()) {
            if (files > 1) {
                Complain(console_, QStringLiteral("%1 more: ").arg(files - 1) + note);
            }
        }
    }

    // After what came before it.
    void Report(const QString& file, const QString& reason) {
        FinishWriting();
        allWell_ = false;
        Complain(console_, file + QStringLiteral(": ") + reason);
    }

    const GeneralSettings settings_;
    const int jobs_;
    const Console& console_;
    ReadingWait wait_;
    std::unique_ptr<PictureReader> reader_;  // early: it gets ready meanwhile
    std::optional<PhotoFeed> feed_;
    TerminalBar bar_;
    SilentProgress silent_;
    ThreadRunner runner_;
    ThreadRunner saveRunner_;  // on the writing thread
    ConversionRun run_;
    QStringList files_;
    qsizetype begun_ = 0;  // files that were begun to be read
    std::optional<Writing> writing_;
    BitmapHandle spare_;
    bool allWell_ = true;
    QMap<QString, int> notes_;  // what files are without, and how many
    SaveWorker worker_;         // last: it ends before what it works with
};

}  // namespace

int ConvertPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                  const Console& console) {
    return Conversions(options, gears, settings, console).Go() ? exitAllWritten : exitSomeFailed;
}

}  // namespace varnel
