// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/failure_text.h"

#include <QFileInfo>

#include "base/error_text.h"
#include "cli/options/advice.h"

namespace varnel {

namespace {

QString With(const Options& options, QStringView reason, QStringView advice) {
    return options.advises ? QStringLiteral("%1; %2").arg(reason, advice) : reason.toString();
}

QString RepeatedNameText(const Options& options, const QString& photo, const QString& first) {
    if (SameFile(photo, first)) {
        return With(options, u"the same photo has this result already",
                    u"give each photo and projection once");
    }
    const bool endingsDiffer =
        QFileInfo(photo).fileName().compare(QFileInfo(first).fileName(), Qt::CaseInsensitive) != 0;
    return With(
        options,
        QStringLiteral("%1 was not converted, %2 of this command has the same result name")
            .arg(photo, first),
        endingsDiffer && !options.keepEnding
            ? u"--keep-ending tells them apart"
            : u"convert them into different folders (--keep-ending tells only endings apart)");
}

}  // namespace

QString RefusalText(const Options& options, const QString& photo, const TargetRefusal& refusal) {
    switch (refusal.error) {
        case TargetError::IsFolder:
            return With(options, u"this is a folder", u"give the name of a file, or --output-dir");
        case TargetError::IsThePhoto:
            return With(options, u"this is the photo itself",
                        u"--output or --output-dir names another place");
        case TargetError::IsPhotoOfRun:
            return With(options, u"this is one of the photos to convert",
                        u"--output-dir names another place");
        case TargetError::IsResultOfRun:
            return RepeatedNameText(options, photo, refusal.photo);
        case TargetError::Exists:
            return With(options, u"the file exists",
                        u"--force replaces it, --skip-existing leaves it alone");
        case TargetError::DamagedPhoto:
            return With(options, u"a damaged photo does not replace an existing file",
                        u"--output or --output-dir names another place");
        case TargetError::None:
            break;
    }
    return {};
}

QString FailureText(const Options& options, const QString& photo, const Conversion& conversion,
                    const ConversionOutcome& outcome) {
    const auto advice = [&options](const QString& text) {
        return options.advises ? text : QString();
    };
    QString reason = ErrorText(outcome.reason);
    switch (outcome.end) {
        case ConversionEnd::NotRead:
            return reason + PhotoAdvice(photo);
        case ConversionEnd::Refused:
            return RefusalText(options, photo, outcome.refusal);
        case ConversionEnd::NotConverted:
            return outcome.reason.Is(ReasonCode::NotEnoughMemory)
                       ? reason + advice(QStringLiteral("; --jobs 1 takes less"))
                       : reason;
        case ConversionEnd::NotSaved:
            return reason + advice(ResultAdvice(conversion.target, outcome.reason));
        case ConversionEnd::NoRecords:
        case ConversionEnd::Written:
        case ConversionEnd::Skipped:
            break;
    }
    return reason;
}

QString HowToGoOn(const Options& options) {
    return options.skipExisting ? QStringLiteral("the same command does the rest")
           : options.force
               ? QStringLiteral(
                     "with --skip-existing instead of --force the same command does what is "
                     "missing")
               : QStringLiteral("with --skip-existing the same command does the rest");
}

}  // namespace varnel
