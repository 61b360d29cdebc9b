// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_checks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QSet>
#include <QStringList>
#include <QTemporaryFile>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/run_time_error.h"
#include "pipeline/output/save_wish.h"
#include "pipeline/photos/raw_pairs.h"
#include "remap/encode/output_format.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

// An entry without a name fails in the run and is reported there.
QHash<QString, int> UsesOfNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                                const PhotoDays& days) {
    QHash<QString, int> uses;
    for (int entry = 1; entry <= queue.UpperBound(); ++entry) {
        try {
            ++uses[BatchPath(queue(entry), choices, FactsOf(queue, entry, choices, days))];
        } catch (const RunTimeError&) {
            continue;
        }
    }
    return uses;
}

double PixelsOf(const ImageRecord& entry) {
    const PixelSize size = ResultSizeOf(entry, {entry.Width, entry.Height});
    return static_cast<double>(size.width) * size.height;
}

// Only the photo itself would tell; raw files always have more than 8 bits.
SampleKind LikelySamples(const QString& name) {
    return IsRawName(name) ? SampleKind::Word : SampleKind::Byte;
}

}  // namespace

QString FolderError(const QString& folder) {
    const QString shown = QDir::toNativeSeparators(folder);
    if (folder.isEmpty() || !QFileInfo::exists(folder)) {
        return Texts::tr("The folder %1 does not exist").arg(shown);
    }
    if (!QFileInfo(folder).isDir()) {
        return Texts::tr("%1 is not a folder").arg(shown);
    }
    // Trying is the only answer that counts: permissions say nothing of write-protected cards.
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".varnel-XXXXXX")));
    if (!probe.open()) {
        return Texts::tr("Nothing can be written into the folder %1 (%2)")
            .arg(shown, probe.errorString());
    }
    return {};
}

QString FoldersError(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    if (!choices.nextToPhoto) {
        return FolderError(choices.folder);
    }
    QSet<QString> folders;
    for (const ImageRecord& entry : queue) {
        const QString folder = BatchFolder(entry, choices);
        if (folders.contains(folder)) {
            continue;
        }
        folders.insert(folder);
        if (QString error = FolderError(folder); !error.isEmpty()) {
            return error;
        }
    }
    return {};
}

int CollidingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                   const PhotoDays& days) {
    const QHash<QString, int> uses = UsesOfNames(queue, choices, days);
    return static_cast<int>(
        std::count_if(uses.begin(), uses.end(), [](int count) { return count > 1; }));
}

int ExistingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                  const PhotoDays& days) {
    const QStringList names = UsesOfNames(queue, choices, days).keys();
    return static_cast<int>(std::count_if(
        names.begin(), names.end(), [](const QString& name) { return QFileInfo::exists(name); }));
}

QString NamesText(int colliding, int existing) {
    QStringList sentences;
    if (colliding == 1) {
        sentences +=
            Texts::tr("1 name collides: of the images of one name only the last one stays.");
    } else if (colliding > 1) {
        sentences +=
            Texts::tr("%1 names collide: of the images of one name only the last one stays.")
                .arg(colliding);
    }
    if (existing == 1) {
        sentences += Texts::tr("1 file in this folder will be replaced.");
    } else if (existing > 1) {
        sentences += Texts::tr("%1 files in this folder will be replaced.").arg(existing);
    }
    return sentences.join(u' ');
}

qint64 UsualBytesOf(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    qint64 bytes = 0;
    for (const ImageRecord& entry : queue) {
        bytes += UsualBytes(PixelsOf(entry), EncodingOf(choices), LikelySamples(entry.FileName));
    }
    return bytes;
}

qint64 ExpectedBytes(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    double bytes = 0.0;
    const OutputEncoding encoding = EncodingOf(choices);
    for (const ImageRecord& entry : queue) {
        const SampleKind samples = SamplesOfFile(encoding, LikelySamples(entry.FileName));
        bytes += PixelsOf(entry) * FormatOf(choices.type).bytesPerPixel(encoding, samples);
    }
    return qRound64(bytes);
}

qint64 FreeBytes(const QString& folder) {
    // Asked of the folder itself: in a container there may be no mount that holds it.
    std::error_code failed;
    const auto space = std::filesystem::space(QFile::encodeName(folder).toStdString(), failed);
    return failed ? -1 : static_cast<qint64>(space.available);
}

QString SpaceWarning(qint64 expectedBytes, qint64 freeBytes) {
    if (freeBytes < 0 || expectedBytes <= freeBytes) {
        return {};
    }
    const QLocale locale;
    return Texts::tr("The images may need up to %1, but only %2 are free there.")
        .arg(locale.formattedDataSize(expectedBytes, 1, QLocale::DataSizeSIFormat),
             locale.formattedDataSize(freeBytes, 1, QLocale::DataSizeSIFormat));
}

}  // namespace varnel
