// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/stitch_photos.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/thread_runner.h"
#include "cli/conversion_records.h"
#include "cli/report/failure_text.h"
#include "cli/report/file_digest.h"
#include "cli/report/run_reports.h"
#include "cli/until_stopped.h"
#include "pipeline/conversion/conversion_targets.h"
#include "pipeline/conversion/free_names.h"
#include "remap/analysis/photo_circle.h"
#include "remap/encode/save_bitmap.h"
#include "remap/projection/projection_info.h"
#include "remap/render/stitch.h"

namespace varnel {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double usualAngle = 190.0;  // degrees across the circles of such cameras
constexpr double widestBlend = 4.0;   // degrees
constexpr double narrowestBlend = 0.1;

double AngleAcross(const Options& options) {
    double angle = usualAngle;
    for (const Adjustment& adjustment : options.adjustments) {
        if (adjustment.field == u"InputAOV") {
            angle = static_cast<double>(adjustment.value);
        }
    }
    return angle;
}

// The largest that fits where none is found.
ImageCircle CircleOn(const Bitmap& photo) {
    if (const auto found = FindPhotoCircle(&photo)) {
        return *found;
    }
    const PixelSize size = photo.Size();
    return {size.width / 2.0, size.height / 2.0, std::min(size.width, size.height) / 2.0};
}

// An unknown lens: the radius grows as the angle does, which such cameras come close to. With so
// small a factor the sine is its argument to one part in a million.
void GiveEvenLens(double angleAcross, ImageRecord& record) {
    constexpr float factor = 0.001F;
    record.LensMapFactor = factor;
    record.LensMapScale =
        static_cast<float>(static_cast<double>(record.ImageCircleRadius) /
                           std::sin(angleAcross / 2.0 * degree * static_cast<double>(factor)));
}

// Degrees across the circle; nothing where the lens has no such limit.
std::optional<double> FieldOf(const ImageRecord& record) {
    const double angle =
        2.0 / degree *
        LensAngle(LensKindOf(record), static_cast<double>(record.ImageCircleRadius),
                  LensCurveOf(record));
    return angle > 0.0 ? std::optional(angle) : std::nullopt;
}

class StitchRun {
  public:
    StitchRun(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
              const Console& console)
        : options_(options),
          gears_(gears),
          settings_(settings),
          console_(console),
          reports_(options, console),
          runner_(options.jobs.value_or(QThread::idealThreadCount())) {
        time_.start();
    }

    int Go() {
        report_.photo = options_.files.front();
        report_.projection = ToText(Projection::Equirectangular);
        const Reason error = Attempt([this] { Work(); });
        if (console_.StopSignal() != 0) {
            return exitStopped + console_.StopSignal();
        }
        if (!error.isEmpty()) {
            Fail(ErrorText(error));
        }
        reports_.Finish();
        return reports_.AllWell() ? exitAllWritten : exitSomeFailed;
    }

  private:
    void Fail(const QString& reason) {
        report_.status = FileStatus::Failed;
        report_.reason = reason;
        reports_.Failed(report_);
    }

    void Work() {
        std::vector<StitchHalf> halves = Halves();
        if (halves.size() != 2 || !ChooseTarget(halves.front().record)) {
            return;
        }
        const StitchPlan plan = PlanFor(halves.front());
        BitmapHandle result =
            Stitch(std::move(halves[0]), std::move(halves[1]), plan, reports_.Bar(), &runner_);
        if (console_.StopSignal() == 0) {
            Write(std::move(result));
        }
    }

    // Two with their records; fewer when something was reported.
    std::vector<StitchHalf> Halves() {
        const std::unique_ptr<PictureReader> reader = console_.TakeReader();
        UntilStopped wait(console_);
        PhotoLoader loader(*reader, &wait, &settings_, options_.raw);
        std::vector<StitchHalf> halves;
        for (const QString& file : options_.files) {
            LoadedPicture loaded = loader.Load(file);
            if (loaded.outcome != LoadOutcome::Loaded) {
                report_.photo = file;
                Fail(ErrorText(loaded.reason));
                return {};
            }
            if (options_.files.size() == 2) {
                halves.push_back({std::move(loaded.bitmap), {}});
            } else {
                auto [first, second] = SplitInTwo(*loaded.bitmap);
                halves.push_back({std::move(first), {}});
                halves.push_back({std::move(second), {}});
            }
        }
        const bool known = GiveRecord(options_.files.front(), halves.front()) &&
                           GiveRecord(options_.files.back(), halves.back());
        return known ? std::move(halves) : std::vector<StitchHalf>();
    }

    bool GiveRecord(const QString& path, StitchHalf& half) {
        const auto gear = GearFor(gears_, half.photo->metadata.photo.origin);
        if (const auto* const error = std::get_if<QString>(&gear)) {
            Fail(*error);
            return false;
        }
        Options own = options_;
        own.frame = {};  // the whole's, not a half's
        if (options_.circle == CircleUse::Found) {
            own.circle = CircleUse::Given;
            own.givenCircle = CircleOn(*half.photo);
        }
        const auto& known = std::get<std::optional<GearRecord>>(gear);
        const ConvertRequest request{own, gears_, settings_};
        StartedRecord started =
            StartRecord(request, path, {half.photo->Size()}, known, half.photo.get());
        if (!known && !started.record.Lens) {
            GiveEvenLens(AngleAcross(options_), started.record);
        }
        PhotoRecords records = RecordsFor(request, started.record, runner_);
        if (records.all.empty()) {
            Fail(ErrorText(records.error));
            return false;
        }
        half.record = std::move(records.all.front());
        half.record.OutputAOV = 360.0F;  // also in its name
        report_.gear = half.record.GearName;
        report_.gearSource = ToText(started.reading.source);
        report_.uncertain = started.reading.doubts.Names();
        return true;
    }

    bool ChooseTarget(const ImageRecord& record) {
        const ConvertRequest request{options_, gears_, settings_};
        report_.result = TargetFor(request, report_.photo, record);
        if (options_.keepBoth) {
            report_.result = FreeNames().Take(report_.result);
        }
        ConversionTargets targets(options_.files, RulesOf(options_));
        if (targets.IsSkipped(report_.result)) {
            report_.status = FileStatus::Skipped;
            reports_.Skipped(report_);
            return false;
        }
        const TargetRefusal refusal = targets.Check(report_.photo, report_.result, false);
        if (refusal) {
            Fail(RefusalText(options_, report_.photo, refusal));
        }
        return !refusal;
    }

    StitchPlan PlanFor(const StitchHalf& front) {
        const double field = FieldOf(front.record).value_or(360.0);
        if (field < 180.0) {
            const QString note =
                QStringLiteral(
                    "each circle shows %1 degrees, so a gap stays black at the seam "
                    "(--input-aov D: the angle across each circle)")
                    .arg(field, 0, 'f', 1);
            report_.notes.append(note);
            reports_.Say(report_.photo + QStringLiteral(": ") + note);
        }
        const std::int32_t wanted = options_.frame.size.width / 4 * 4;
        return {wanted > 0 ? wanted : NaturalWidth(front.record, front.photo->Size()),
                std::clamp(field - 180.0, narrowestBlend, widestBlend)};
    }

    void Write(BitmapHandle result) {
        if (!settings_.WriteMetadata || options_.noMetadata) {
            DropMetadata(result.get());
        }
        result->metadata.settings.clear();  // no record makes this picture from one photo
        const ConvertRequest request{options_, gears_, settings_};
        const SaveResult saved =
            SaveBitmap(EncodingFor(request), result.get(), report_.result, &runner_);
        report_.seconds = static_cast<double>(time_.elapsed()) / 1000.0;
        if (!saved) {
            return Fail(ErrorText(saved.reason));
        }
        report_.size = result->Size();
        report_.bytes = QFileInfo(report_.result).size();
        report_.sha256 = DigestFor(options_, report_.result);
        report_.depth = DepthText(saved.samples);
        reports_.Note(report_.result, saved.note);
        reports_.Written(report_);
    }

    const Options& options_;
    const GearChoice& gears_;
    const GeneralSettings& settings_;
    const Console& console_;
    RunReports reports_;
    ThreadRunner runner_;
    FileReport report_;
    QElapsedTimer time_;
};

}  // namespace

int StitchPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                 const Console& console) {
    return StitchRun(options, gears, settings, console).Go();
}

}  // namespace varnel
