// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/folder_model.h"

#include <QDir>
#include <QFile>

namespace varnel {

namespace {

constexpr qsizetype longestName = 255;  // bytes, NAME_MAX of all common file systems

// Why a folder in the given one cannot have the name; empty when it can.
QString WhyNot(const QDir& place, const QString& name) {
    if (name.contains(u'/')) {
        return FolderModel::tr("A name cannot hold a slash.");
    }
    if (place.exists(name)) {
        return FolderModel::tr("Something of that name is there already.");
    }
    return QFile::encodeName(name).size() > longestName ? FolderModel::tr("The name is too long.")
                                                        : QString();
}

}  // namespace

bool FolderModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString name = value.toString();
    if (role != Qt::EditRole || name.isEmpty() || name == fileName(index)) {
        return false;
    }
    if (const QString reason = WhyNot(QDir(filePath(index.parent())), name); !reason.isEmpty()) {
        Q_EMIT NameRefused(index, name, reason);
        return false;
    }
    return QFileSystemModel::setData(index, value, role);
}

}  // namespace varnel
