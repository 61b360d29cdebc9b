// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/save_dialog.h"

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <algorithm>
#include <utility>

#include "remap/encode/output_format.h"

namespace varnel {

SaveDialog::SaveDialog(const QString& title, const QString& proposal, const QStringList& filters,
                       int filter)
    : QFileDialog(QApplication::activeWindow(), title, QFileInfo(proposal).absolutePath()) {
    setAcceptMode(QFileDialog::AcceptSave);
    setNameFilters(filters);
    selectNameFilter(filters.value(filter));  // first: it changes the ending of the name
    selectFile(QFileInfo(proposal).fileName());
}

void SaveDialog::Add(OutputPanel& panel, const SaveOffer& offer) {
    setOption(DontUseNativeDialog);
    auto* const grid = qobject_cast<QGridLayout*>(layout());
    if (grid == nullptr) {
        return;
    }
    panel.HideType();
    panel.Show(offer.wish, offer.pattern);
    grid->addWidget(&panel, grid->rowCount(), 0, 1, grid->columnCount());
    connect(this, &QFileDialog::filterSelected, &panel, [this, &panel](const QString& filter) {
        panel.SetType(AllOutputTypes()[static_cast<std::size_t>(nameFilters().indexOf(filter))]);
    });
    FollowPattern(panel, offer);
    FollowFolder(panel, offer.photoFolder);
    resize(std::max(width(), 720), height() + panel.sizeHint().height());
}

// What makes another name puts it in place of the one that was typed.
void SaveDialog::FollowPattern(OutputPanel& panel, const SaveOffer& offer) {
    const auto show = [&panel, offer] {
        const SaveWish wish = panel.Wish();
        const OutputType type = wish.encoding.type;
        panel.ShowExample(WithExtension(offer.nameBy(wish), type));
        panel.ShowSize(QStringLiteral("%1, %2").arg(
            UsualSizeText(UsualBytes(offer.pixels, wish.encoding, offer.samples)),
            DepthText(wish.encoding, offer.samples)));
    };
    connect(&panel, &OutputPanel::WishChanged, this,
            [this, &panel, offer, show, last = offer.nameBy(offer.wish)]() mutable {
                show();
                const QString name = offer.nameBy(panel.Wish());
                auto* const edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                if (edit != nullptr && std::exchange(last, name) != name) {
                    edit->setText(name);
                }
            });
    show();
}

void SaveDialog::FollowFolder(OutputPanel& panel, const QString& photoFolder) {
    const auto show = [this, &panel, photoFolder] {
        panel.SetNextToPhoto(directory() == QDir(photoFolder));
    };
    connect(this, &QFileDialog::directoryEntered, &panel, show);
    connect(&panel, &OutputPanel::NextToPhotoToggled, this, [this, photoFolder, show](bool on) {
        if (on && directory() != QDir(photoFolder)) {
            const QString name = TypedName();
            setDirectory(photoFolder);
            findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        }
        show();  // another folder is chosen above
    });
    show();
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
