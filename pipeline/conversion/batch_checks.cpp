// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_checks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QStringList>
#include <QTemporaryFile>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/run_time_error.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

// An entry without a name fails in the run and is told there.
QHash<QString, int> UsesOfNames(const RecordArray<ImageRecord>& queue,
                                const BatchChoices& choices) {
    QHash<QString, int> uses;
    for (const ImageRecord& entry : queue) {
        try {
            ++uses[BatchPath(entry, choices)];
        } catch (const RunTimeError&) {
            continue;
        }
    }
    return uses;
}

// Between two points of a table.
double Between(double x, double x0, double y0, double x1, double y1) {
    return y0 + (x - x0) / (x1 - x0) * (y1 - y0);
}

// By how much colour at full resolution makes a JPEG file larger. Measured with photos of
// foliage: 1.16 to 1.31 up to quality 95, 1.34 to 1.48 at 100.
double ChromaFactor(double quality) {
    return quality <= 95.0 ? 1.2 : Between(quality, 95.0, 1.2, 100.0, 1.45);
}

// Measured with converted photos of foliage, which need two to four times what indoor ones do.
double BytesPerPixel(const BatchChoices& choices) {
    switch (choices.type) {
        case OutputType::Tiff:
            return 2.3;
        case OutputType::Png:
            return 2.0;
        case OutputType::Bmp:
            return 3.0;
        case OutputType::Jpeg:
            break;
    }
    const double quality = choices.jpegQuality;
    const double factor = choices.chroma444 ? ChromaFactor(quality) : 1.0;
    if (quality <= 85.0) {
        return factor * Between(std::max(quality, 50.0), 50.0, 0.19, 85.0, 0.36);
    }
    return factor * (quality <= 95.0 ? Between(quality, 85.0, 0.36, 95.0, 0.61)
                                     : Between(quality, 95.0, 0.61, 100.0, 1.07));
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

int CollidingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    const QHash<QString, int> uses = UsesOfNames(queue, choices);
    return static_cast<int>(
        std::count_if(uses.begin(), uses.end(), [](int count) { return count > 1; }));
}

int ExistingNames(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    const QStringList names = UsesOfNames(queue, choices).keys();
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

qint64 ExpectedBytes(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    double pixels = 0.0;
    for (const ImageRecord& entry : queue) {
        pixels += static_cast<double>(entry.Width) * entry.Height;
    }
    return qRound64(pixels * BytesPerPixel(choices));
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
