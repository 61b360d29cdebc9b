// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/raw_pairs.h"

#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <array>

namespace varnel {

namespace {

constexpr std::array words{u"raw", u"jpeg", u"both"};

// Of the makers whose cameras write JPEG beside raw files.
constexpr std::array rawEndings{u"3fr", u"arw", u"cr2", u"cr3", u"crw", u"dng", u"erf",
                                u"fff", u"gpr", u"iiq", u"kdc", u"mef", u"mos", u"mrw",
                                u"nef", u"nrw", u"orf", u"pef", u"raf", u"raw", u"rw2",
                                u"rwl", u"sr2", u"srf", u"srw", u"x3f"};
constexpr std::array jpegEndings{u"jpg", u"jpeg", u"jpe"};

template <class Endings>
bool HasEnding(const QString& name, const Endings& endings) {
    const QString ending = QFileInfo(name).suffix();
    return std::ranges::any_of(endings, [&](const char16_t* known) {
        return ending.compare(QStringView(known), Qt::CaseInsensitive) == 0;
    });
}

// The path without its ending; names differ in case on memory cards.
QString StemOf(const QString& path) {
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName().toCaseFolded();
}

}  // namespace

std::optional<RawJpeg> RawJpegFromText(QStringView text) {
    for (std::size_t n = 0; n < words.size(); ++n) {
        if (text.compare(QStringView(words[n]), Qt::CaseInsensitive) == 0) {
            return static_cast<RawJpeg>(n);
        }
    }
    return std::nullopt;
}

QStringList RawJpegTexts() {
    QStringList texts;
    for (const char16_t* word : words) {
        texts.append(QString::fromUtf16(word));
    }
    return texts;
}

bool IsRawName(const QString& name) {
    return HasEnding(name, rawEndings);
}

std::vector<RawPair> RawPairsIn(const QStringList& paths) {
    QHash<QString, QString> jpegs;
    for (const QString& path : paths) {
        if (const QString stem = StemOf(path);
            HasEnding(path, jpegEndings) && !jpegs.contains(stem)) {
            jpegs.insert(stem, path);
        }
    }
    std::vector<RawPair> pairs;
    for (const QString& path : paths) {
        const auto jpeg = IsRawName(path) ? jpegs.find(StemOf(path)) : jpegs.end();
        if (jpeg != jpegs.end()) {
            pairs.push_back({path, *jpeg});
            jpegs.erase(jpeg);
        }
    }
    return pairs;
}

}  // namespace varnel
