// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/lens_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

// Letters and digits of any script; the rest would be special to a shell or a file system.
QString SafeFileName(const QString& name) {
    constexpr qsizetype longest = 60;  // characters: at most 240 bytes
    QString safe;
    for (const QChar character : name.left(longest)) {
        const bool plain = character.isLetterOrNumber() || character == u'-' || character == u'.';
        safe += plain ? character : QChar(u'_');
    }
    while (safe.startsWith(u'.')) {
        safe.remove(0, 1);
    }
    return safe.isEmpty() ? QStringLiteral("lens") : safe;
}

}  // namespace

LensFolder LensFolder::Beside(const QString& settingsFile) {
    return LensFolder(QFileInfo(settingsFile).absoluteDir().filePath(QStringLiteral("lenses")));
}

LensFolder::Listing LensFolder::List() const {
    Listing listing;
    const QStringList names =
        QDir(folder_).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        const QString path = QDir(folder_).filePath(name);
        LensReading reading = ReadLensFile(path);
        if (reading.lens) {
            listing.entries.push_back(
                {path, std::make_shared<const SampledLens>(*std::move(reading.lens))});
        } else {
            listing.reasons.append(reading.reason);
        }
    }
    std::ranges::stable_sort(listing.entries, [](const Entry& one, const Entry& other) {
        return one.lens->name.compare(other.lens->name, Qt::CaseInsensitive) < 0;
    });
    return listing;
}

LensFolder::Entry LensFolder::EntryOf(const QString& name) const {
    const Listing listing = List();
    const auto found = std::ranges::find_if(
        listing.entries, [&](const Entry& entry) { return entry.lens->name == name; });
    return found == listing.entries.end() ? Entry() : *found;
}

SampledLensPointer LensFolder::Find(const QString& name) const {
    return EntryOf(name).lens;
}

QString LensFolder::FreeName(const QString& name) const {
    const Listing listing = List();
    const auto taken = [&](const QString& candidate) {
        return std::ranges::any_of(
            listing.entries, [&](const Entry& entry) { return entry.lens->name == candidate; });
    };
    QString free = name;
    for (int n = 2; taken(free); ++n) {
        free = QStringLiteral("%1 (%2)").arg(name.left(longestLensName - 10), QString::number(n));
    }
    return free;
}

QString LensFolder::FreePath(const QString& name) const {
    const QString start = QDir(folder_).filePath(SafeFileName(name));
    QString path = start + QStringLiteral(".json");
    for (int n = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++n) {
        path = QStringLiteral("%1-%2.json").arg(start, QString::number(n));
    }
    return path;
}

Reason LensFolder::Add(SampledLens lens) const {
    lens.name = TidyLensName(lens.name);
    if (lens.name.isEmpty()) {
        return ReasonCode::LensNameUnusable;
    }
    if (Find(lens.name)) {
        return ReasonCode::LensNameTaken;
    }
    if (!QDir().mkpath(folder_)) {
        return {ReasonCode::Of, folder_, ReasonCode::FolderNotMade};
    }
    return WriteLensFile(FreePath(lens.name), lens).reason;
}

Reason LensFolder::Replace(SampledLens lens) const {
    lens.name = TidyLensName(lens.name);
    const Entry entry = EntryOf(lens.name);
    return entry.lens ? WriteLensFile(entry.path, lens).reason : Add(std::move(lens));
}

Reason LensFolder::Rename(const QString& name, const QString& newName) const {
    const QString tidy = TidyLensName(newName);
    const Entry entry = EntryOf(name);
    if (!entry.lens) {
        return ReasonCode::NoSuchLens;
    }
    if (tidy == name) {
        return {};
    }
    SampledLens renamed = *entry.lens;
    renamed.name = tidy;
    // The new file first: a power cut in between leaves two lenses rather than none.
    const Reason reason = Add(std::move(renamed));
    return reason.isEmpty() ? Delete(name) : reason;
}

Reason LensFolder::Delete(const QString& name) const {
    const Entry entry = EntryOf(name);
    if (!entry.lens) {
        return ReasonCode::NoSuchLens;
    }
    QFile file(entry.path);
    return file.remove()
               ? Reason()
               : Reason(ReasonCode::Of, entry.path, Reason(ReasonCode::Words, file.errorString()));
}

}  // namespace varnel
