// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_add_images.h"

#include <QDir>

#include "remap/display/paint.h"
#include "ui_form_add_images.h"

namespace varnel {

FormAddImages::FormAddImages(RecordArray<ImageRecord>& images, SettingsStore& store,
                             Notices& notices, const PhotoPlaces& places,
                             const SmallPictures& pictures, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormAddImages>()),
      images_(images),
      store_(store),
      places_(places),
      pictures_(pictures) {
    ui_->setupUi(this);
    place_ = std::make_unique<FolderChooser>(*ui_->Drive1, *ui_->Dir1, notices, places_.volumes);
    SetUpFiles();
    ConnectControls();
    ShowStartPlace();
}

FormAddImages::~FormAddImages() {
    previews_->Stop();
}

void FormAddImages::SetUpFiles() {
    ui_->File1->setGridSize(CellSize() + QSize(0, 14));
    ui_->SplitterPlaces->setSizes({300, 620});
    PreviewMaker& maker = *this;
    previews_ = std::make_unique<IdlePreviews>(*ui_->File1, maker);
    previews_->GiveWayTo(*ui_->Dir1);
}

void FormAddImages::ConnectControls() {
    connect(place_.get(), &FolderChooser::FolderChanged, this, &FormAddImages::OnFolder);
    ui_->CmdHome->setEnabled(QDir(places_.homeFolder).exists());
    ui_->CmdPictures->setEnabled(QDir(places_.picturesFolder).exists());
    connect(ui_->CmdHome, &QPushButton::clicked, this,
            [this] { place_->Show(places_.homeFolder); });
    connect(ui_->CmdPictures, &QPushButton::clicked, this,
            [this] { place_->Show(places_.picturesFolder); });
    connect(ui_->Option1, &QRadioButton::toggled, this, &FormAddImages::RefillFiles);
    connect(ui_->File1, &QListWidget::itemSelectionChanged, this, &FormAddImages::ShowCounts);
    connect(ui_->File1, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { Add({item->text()}); });
    connect(ui_->CmdAddImages, &QPushButton::clicked, this, &FormAddImages::AddSelected);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FormAddImages::ShowStartPlace() {
    const bool pictures = !QDir(places_.picturesFolder).isEmpty();
    const StartPlace start =
        ChooseStartPlace(store_, pictures ? places_.picturesFolder : places_.homeFolder);
    place_->Show(start.folder);
    place_->PutDriveInFront(start.drive);
    ui_->File1->setFocus();
}

void FormAddImages::OnFolder() {
    ui_->LabelFolder->setText(QDir::toNativeSeparators(place_->Folder()));
    ui_->LabelFolder->setToolTip(ui_->LabelFolder->text());
    RefillFiles();
}

void FormAddImages::RefillFiles() {
    const QIcon plain = style()->standardIcon(QStyle::SP_FileIcon);
    QString patterns = (ui_->Option1->isChecked() ? photoPatterns : anyPattern).toString();
    if (films_ && ui_->Option1->isChecked()) {
        patterns += u';';
        patterns += filmPatterns;
    }
    ui_->File1->clear();
    for (const QString& fileName : FilesIn(place_->Folder(), patterns)) {
        auto* const item = new QListWidgetItem(plain, fileName, ui_->File1);
        item->setToolTip(fileName);
        item->setSizeHint(CellSize());
    }
    ui_->File1->scrollToTop();
    ShowCounts();
    if (isVisible()) {
        previews_->Start();
    }
}

void FormAddImages::OfferFilms() {
    films_ = true;
    RefillFiles();
}

void FormAddImages::ShowCounts() {
    const int count = ui_->File1->count();
    if (!QDir(place_->Folder()).isReadable()) {
        ui_->LabelCount->setText(tr("This folder cannot be read"));
    } else if (count == 0) {
        ui_->LabelCount->setText(tr("No photos here"));
    } else {
        ui_->LabelCount->setText(
            tr("%1 of %2 selected").arg(ui_->File1->selectedItems().size()).arg(count));
    }
}

void FormAddImages::AddSelected() {
    QStringList fileNames;
    for (int row = 0; row < ui_->File1->count(); ++row) {
        if (ui_->File1->item(row)->isSelected()) {
            fileNames.append(ui_->File1->item(row)->text());
        }
    }
    Add(fileNames);
}

void FormAddImages::Add(const QStringList& fileNames) {
    if (fileNames.isEmpty()) {
        reject();
        return;
    }
    AppendImages(images_, place_->Folder(), fileNames);
    SaveStartPlace(store_, {place_->Drive(), place_->Folder()});
    accept();
}

// One picture and one line of text.
QSize FormAddImages::CellSize() const {
    return ui_->File1->iconSize() + QSize(34, fontMetrics().height() + 8);
}

void FormAddImages::Begin(const QString& fileName) {
    const QSize box = ui_->File1->iconSize() * devicePixelRatioF();
    pictures_.reader.Begin({QDir(place_->Folder()).filePath(fileName),
                            ReadKind::Small,
                            {box.width(), box.height()},
                            pictures_.upright});
}

std::optional<QImage> FormAddImages::Take() {
    if (!pictures_.reader.Wait(0)) {
        return std::nullopt;
    }
    QImage image = ImageOf(pictures_.reader.Take().bitmap.get());
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

void FormAddImages::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    previews_->Start();
}

void FormAddImages::hideEvent(QHideEvent* event) {
    previews_->Stop();
    QDialog::hideEvent(event);
}

}  // namespace varnel
