// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/message_boxes.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QShortcut>
#include <QSpacerItem>
#include <QStyle>
#include <algorithm>

#include "app/dialogs/save_dialog.h"
#include "gear/dialogs/form_gear_edit.h"
#include "pipeline/photos/add_images.h"
#include "remap/encode/output_type.h"

namespace varnel {

namespace {

// The quit shortcut in a modal window, where the main window's own is out of reach.
void QuitFrom(QDialog& dialog, bool& quitWanted) {
    auto* const quit = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), &dialog);
    QObject::connect(quit, &QShortcut::activated, &dialog, [&dialog, &quitWanted] {
        quitWanted = true;
        dialog.reject();
    });
}

// A box is as wide as its text, which may be a few words, while the detail has whole paths.
void Widen(QMessageBox& box) {
    constexpr int readable = 64;  // characters of a line
    int widest = 0;
    for (const QString& line : (box.text() + u'\n' + box.informativeText()).split(u'\n')) {
        widest = std::max(widest, box.fontMetrics().horizontalAdvance(line));
    }
    const int room = std::min(widest, readable * box.fontMetrics().averageCharWidth());
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid != nullptr) {
        const int icon = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
        grid->addItem(new QSpacerItem(room + 2 * icon, 0), grid->rowCount(), 0, 1,
                      grid->columnCount());
    }
}

QStringList Filters() {
    QStringList filters;
    for (const OutputType type : AllOutputTypes()) {
        filters.append(FilterOf(type));
    }
    return filters;
}

// Another file type must not change the name in the box: the widget would take all that follows the
// last dot for an extension and replace it.
void KeepNameAcrossFilters(QFileDialog& dialog) {
    auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (edit == nullptr ||
        dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo")) == nullptr) {
        return;  // the platform's own dialog does not change the name
    }
    auto* const types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    // The name as it was while the present filter was chosen.
    edit->setProperty("ownName", edit->text());
    edit->setProperty("ownFilter", types->currentIndex());
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit, types](const QString& name) {
        if (types->currentIndex() == edit->property("ownFilter").toInt()) {
            edit->setProperty("ownName", name);
        }
    });
    QObject::connect(&dialog, &QFileDialog::filterSelected, edit, [edit, types] {
        edit->setProperty("ownFilter", types->currentIndex());
        edit->setText(edit->property("ownName").toString());
    });
}

QString PresetFilter() {
    return QObject::tr("Varnel's presets (%1)").arg(QStringLiteral("*.json"));
}

QString PhotoFilters() {
    const QString photos = photoPatterns.toString().replace(u';', u' ');
    return QObject::tr("Photos (%1)").arg(photos) + QStringLiteral(";;") +
           QObject::tr("All files (*)");
}

}  // namespace

void MessageBoxes::Inform(const QString& text) {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Varnel"), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.exec();
}

void MessageBoxes::Tell(const QString& text, const QString& detail) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Varnel"), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setInformativeText(detail);
    Widen(box);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.exec();
}

void FirstGearPrompt::Explain(const QString& text) {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Varnel"), text, QMessageBox::Ok,
                    QApplication::activeWindow());
    QuitFrom(box, quitWanted_);
    box.exec();
}

bool FirstGearPrompt::DefineGear(GearTable& table) {
    if (!quitWanted_) {
        FormGearEdit editor(table, ports_, QApplication::activeWindow());
        QuitFrom(editor, quitWanted_);
        editor.exec();
    }
    return !quitWanted_;
}

std::optional<SaveChoice> SaveFileDialog::ChooseSave(const SaveChoice& proposal) {
    const QStringList filters = Filters();
    SaveDialog dialog(QObject::tr("Save image as ..."), QFileInfo(proposal.name).absoluteFilePath(),
                      filters, proposal.filterIndex - 1);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked when the extension is known
    OutputPanel panel;
    if (proposal.output) {
        dialog.Add(panel, *proposal.output);
    }
    KeepNameAcrossFilters(dialog);
    const QString name = dialog.Choose();
    if (name.isEmpty()) {
        return std::nullopt;
    }
    SaveChoice choice{name, static_cast<int>(filters.indexOf(dialog.selectedNameFilter())) + 1,
                      proposal.output};
    if (choice.output) {
        choice.output->wish = panel.Wish();
    }
    return choice;
}

bool SaveFileDialog::AgreesToReplace(const QString& name) {
    return SaveDialog::AgreesToReplace(name);
}

QString ChoosePhoto(const QString& folder) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), QObject::tr("Open image"),
                                        folder, PhotoFilters());
}

QStringList ChoosePhotos(const QString& folder) {
    return QFileDialog::getOpenFileNames(QApplication::activeWindow(), QObject::tr("Open image"),
                                         folder, PhotoFilters());
}

QString ChooseLensFile() {
    return QFileDialog::getOpenFileName(
        QApplication::activeWindow(), QObject::tr("Import lenses"), QDir::homePath(),
        QObject::tr("Lens files (%1)")
                .arg(QStringLiteral("*.json *.xml *.yaml *.yml *.pto *.lcp")) +
            QStringLiteral(";;") + QObject::tr("All files (*)"));
}

QString ChooseLensExport(const QString& lens) {
    QString name = lens;
    const QString proposal =
        QDir::home().filePath(name.replace(u'/', u'_') + QStringLiteral(".json"));
    const QStringList endings{QStringLiteral(".json"), QStringLiteral(".yaml"),
                              QStringLiteral(".xml")};
    const QStringList filters{QObject::tr("Varnel's lens file (%1)").arg(u'*' + endings[0]),
                              QObject::tr("Calibration for OpenCV (%1)").arg(u'*' + endings[1]),
                              QObject::tr("Entry for lensfun (%1)").arg(u'*' + endings[2])};
    SaveDialog dialog(QObject::tr("Export the lens"), proposal, filters);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        QString path = dialog.selectedFiles().value(0);
        for (const QString& ending : endings) {
            path.chop(path.endsWith(ending) ? ending.size() : 0);
        }
        dialog.selectFile(QFileInfo(path).fileName() + endings.value(filters.indexOf(filter)));
    });
    return dialog.Choose();
}

QString ChoosePresetImport() {
    return QFileDialog::getOpenFileName(
        QApplication::activeWindow(), QObject::tr("Import presets"), QDir::homePath(),
        PresetFilter() + QStringLiteral(";;") + QObject::tr("All files (*)"));
}

QString ChoosePresetExport() {
    SaveDialog dialog(QObject::tr("Export presets"),
                      QDir::home().filePath(QStringLiteral("presets.json")), {PresetFilter()});
    dialog.setDefaultSuffix(QStringLiteral("json"));
    return dialog.Choose();
}

}  // namespace varnel
