// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/straighten_photo.h"

#include <QDate>

#include "state/adjustments/measured_lens.h"

namespace varnel {

namespace {

QString NoteOn(const Measurement& measured) {
    if (measured.error != MeasureError::None) {
        return QStringLiteral("not straightened: too few straight edges were found");
    }
    const SolvedLens& solved = *measured.solved;
    return solved.improved
               ? QStringLiteral("its lens is measured from %1 edges; expected bend %2 px%3")
                     .arg(std::ranges::count(solved.edges, true, &EdgeResult::used))
                     .arg(solved.expectedBend, 0, 'f', 1)
                     .arg(solved.anglesFixed ? QString() : QStringLiteral(", angles not fixed"))
               : QStringLiteral("not straightened: its edges tell of no better lens");
}

}  // namespace

MeasureOptions MeasureOptionsFor(const Options& options, const StartedRecord& started,
                                 PixelSize size) {
    MeasureOptions measure;
    measure.date = QDate::currentDate();
    if (options.circle == CircleUse::Given) {
        measure.circle = options.givenCircle;
    }
    ImageRecord record = started.record;
    record.Width = static_cast<std::int16_t>(size.width);
    record.Height = static_cast<std::int16_t>(size.height);
    const auto known =
        started.reading.source == GearSource::Guess ? std::nullopt : KnownLensOf(record);
    if (known) {
        measure.present = known->view;
        measure.pixelsPerMillimetre = known->pixelsPerMillimetre;
    }
    measure.focalMillimetres = options.focal;
    measure.colour = options.fringes;
    return measure;
}

void Straighten(const ConvertRequest& request, const Bitmap& photo, StartedRecord& started) {
    MeasureOptions measure = MeasureOptionsFor(request.options, started, photo.Size());
    measure.lensName = QStringLiteral("measured from ") + started.record.FileName;
    measure.stop = request.stop;
    const Measurement measured = MeasureLens({{&photo, started.record.FileName}}, measure);
    if (measured.error == MeasureError::Stopped) {
        return;
    }
    started.notes.append(NoteOn(measured));
    if (measured.error == MeasureError::None && measured.solved->improved) {
        PutLens(std::make_shared<const SampledLens>(measured.lens), started.record);
        started.reading.source = GearSource::Measured;
        started.reading.doubts.centre = false;
        started.reading.doubts.curve = !measured.solved->anglesFixed;
    }
}

}  // namespace varnel
