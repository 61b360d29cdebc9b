// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/save_dialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>

namespace varnel {

SaveDialog::SaveDialog(const QString& title, const QString& proposal, const QStringList& filters,
                       int filter)
    : QFileDialog(QApplication::activeWindow(), title, QFileInfo(proposal).absolutePath()) {
    setAcceptMode(QFileDialog::AcceptSave);
    setNameFilters(filters);
    selectNameFilter(filters.value(filter));  // first: it changes the ending of the name
    selectFile(QFileInfo(proposal).fileName());
}

QString SaveDialog::Choose() {
    quoted_.clear();
    if (exec() != QDialog::Accepted) {
        return {};
    }
    return quoted_.isEmpty() ? selectedFiles().value(0) : quoted_;
}

bool SaveDialog::AgreesToReplace(const QString& name) {
    return QMessageBox::question(QApplication::activeWindow(), QStringLiteral("Varnel"),
                                 QObject::tr("%1 already exists. Replace it?").arg(name),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

QString SaveDialog::TypedName() const {
    const auto* const edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    return edit == nullptr ? QString() : edit->text();  // none in a platform's own dialog
}

void SaveDialog::accept() {
    const QString name = TypedName();
    if (!name.contains(u'"')) {
        QFileDialog::accept();
        return;
    }
    QFileInfo file(directory(), name);
    if (file.isDir()) {
        setDirectory(file.absoluteFilePath());
        return;
    }
    if (file.suffix().isEmpty() && !defaultSuffix().isEmpty()) {
        file.setFile(file.filePath() + u'.' + defaultSuffix());
    }
    if (file.exists() && !testOption(DontConfirmOverwrite) &&
        !AgreesToReplace(file.absoluteFilePath())) {
        return;
    }
    quoted_ = file.absoluteFilePath();
    // QFileDialog's own would check what it takes for the name.
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
}

}  // namespace varnel
