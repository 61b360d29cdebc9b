// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/taken_names.h"

#include <QFileInfo>

#include "files/file_identity.h"

namespace varnel {

TakenNames::Place TakenNames::PlaceOf(const QString& path) {
    const QFileInfo file(path);
    if (number_ < 0 || folders_[number_].isEmpty() || file.path() != folder_) {
        folder_ = file.path();
        const QString truePath = QFileInfo(folder_).canonicalFilePath();
        const auto known = numbers_.find(truePath);
        number_ = known != numbers_.end() ? *known : static_cast<int>(folders_.size());
        if (known == numbers_.end()) {
            numbers_.insert(truePath, number_);
            folders_.append(truePath);
        }
    }
    const QString name = file.fileName();
    return {number_, name, qHash(folders_[number_] + u'/' + name.toCaseFolded())};
}

TakenNames::Taken* TakenNames::Find(const Place& place) {
    const std::string name = place.name.toStdString();
    const auto [begin, end] = taken_.equal_range(place.hash);
    for (auto one = begin; one != end; ++one) {
        if (one->second.folder == place.folder && one->second.name == name) {
            return &one->second;
        }
    }
    return nullptr;
}

QString TakenNames::Take(const QString& result, const QString& photo) {
    const Place place = PlaceOf(result);
    if (const Taken* const same = Find(place)) {
        return same->photo;
    }
    const auto [begin, end] = taken_.equal_range(place.hash);
    for (auto one = begin; one != end; ++one) {
        const Taken& taken = one->second;
        if (SameFile(folders_[taken.folder] + u'/' + QString::fromStdString(taken.name), result)) {
            return taken.photo;
        }
    }
    taken_.insert({place.hash, {photo, place.name.toStdString(), place.folder}});
    return {};
}

void TakenNames::NoteWritten(const QString& result, const QString& photo) {
    Taken* const taken = QFileInfo(result).isSymLink() ? nullptr : Find(PlaceOf(result));
    if (taken != nullptr) {
        taken->photo = photo;
        taken->written = true;
    } else {
        throughLinks_.insert(QFileInfo(result).canonicalFilePath(), photo);
    }
}

QString TakenNames::WriterOf(const QString& canonicalPath) {
    const Taken* const taken = Find(PlaceOf(canonicalPath));
    return taken != nullptr && taken->written ? taken->photo : throughLinks_.value(canonicalPath);
}

}  // namespace varnel
