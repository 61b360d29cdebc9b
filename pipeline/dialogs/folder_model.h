// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The folders of a tree. A new name that a folder cannot have is refused with a reason here; the
// model below would put up a box of its own. Throws nothing.
#pragma once

#include <QFileSystemModel>

namespace varnel {

class FolderModel : public QFileSystemModel {
    Q_OBJECT
  public:
    // The folder keeps its name when the new one is empty, its old one, or refused.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  Q_SIGNALS:
    void NameRefused(const QModelIndex& index, const QString& name, const QString& reason);
};

}  // namespace varnel
