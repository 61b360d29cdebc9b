// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/form_add_images.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "pipeline/small_picture.h"
#include "remap/paint.h"
#include "ui_form_add_images.h"

namespace varnel {

FormAddImages::FormAddImages(RecordArray<ImageRecord>& images, SettingsStore& store,
                             Notices& notices, const PhotoPlaces& places, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormAddImages>()),
      images_(images),
      store_(store),
      notices_(notices),
      places_(places) {
    ui_->setupUi(this);
    FillVolumes();
    SetUpFolders();
    SetUpFiles();
    ConnectControls();
    ShowStartPlace();
}

FormAddImages::~FormAddImages() = default;

void FormAddImages::FillVolumes() {
    volumes_ = places_.volumes();
    for (const Volume& volume : volumes_) {
        ui_->Drive1->addItem(VolumeLabel(volume), volume.path);
    }
}

void FormAddImages::SetUpFolders() {
    folders_.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders_.setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    folders_.setRootPath(QDir::rootPath());
    ui_->Dir1->setModel(&folders_);
    for (int column = 1; column < folders_.columnCount(); ++column) {
        ui_->Dir1->hideColumn(column);
    }
    ui_->Dir1->installEventFilter(this);
    ui_->CmdHome->setEnabled(QDir(places_.homeFolder).exists());
    ui_->CmdPictures->setEnabled(QDir(places_.picturesFolder).exists());
}

void FormAddImages::SetUpFiles() {
    ui_->File1->setGridSize(CellSize() + QSize(0, 14));
    ui_->SplitterPlaces->setSizes({300, 620});
    previews_ = std::make_unique<IdlePreviews>(
        *ui_->File1, [this](const QString& fileName) { return SmallImage(fileName); });
    previews_->GiveWayTo(*ui_->Dir1);
}

void FormAddImages::ConnectControls() {
    connect(ui_->Drive1, &QComboBox::currentIndexChanged, this, &FormAddImages::EnterVolume);
    connect(ui_->Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FormAddImages::OnFolder);
    // The folders above the shown one arrive later and push it down.
    connect(&folders_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (folder_.startsWith(loaded)) {
            ui_->Dir1->scrollTo(ui_->Dir1->currentIndex());
        }
    });
    connect(ui_->CmdHome, &QPushButton::clicked, this, [this] { ShowFolder(places_.homeFolder); });
    connect(ui_->CmdPictures, &QPushButton::clicked, this,
            [this] { ShowFolder(places_.picturesFolder); });
    connect(ui_->Option1, &QRadioButton::toggled, this, &FormAddImages::RefillFiles);
    connect(ui_->File1, &QListWidget::itemSelectionChanged, this, &FormAddImages::ShowCounts);
    connect(ui_->File1, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { Add({item->text()}); });
    connect(ui_->CmdAddImages, &QPushButton::clicked, this, &FormAddImages::AddSelected);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FormAddImages::ShowStartPlace() {
    const StartPlace place = ChooseStartPlace(store_, places_.programFolder);
    ShowFolder(place.folder);
    const auto last = std::find_if(volumes_.begin(), volumes_.end(), [&](const Volume& volume) {
        return DriveName(volume.path) == place.drive;
    });
    if (last != volumes_.end()) {
        SelectVolume(static_cast<int>(last - volumes_.begin()));
    }
    ui_->File1->setFocus();
}

bool FormAddImages::CanEnter(const Volume& volume) const {
    const std::vector<Volume> now = places_.volumes();
    return QDir(volume.path).isReadable() &&
           std::any_of(now.begin(), now.end(), [&](const Volume& other) {
               return other.path == volume.path && other.ready;
           });
}

void FormAddImages::EnterVolume(int index) {
    const Volume volume = volumes_.at(static_cast<std::size_t>(index));
    if (CanEnter(volume)) {
        ShowFolder(volume.path);
        return;
    }
    notices_.Tell(VolumeMissingText(volume.path), QString());
    SelectVolume(VolumeHolding(folder_, volumes_));
}

void FormAddImages::SelectVolume(int index) {
    const QSignalBlocker quiet(ui_->Drive1);
    ui_->Drive1->setCurrentIndex(index);
}

void FormAddImages::ShowFolder(const QString& folder) {
    const QModelIndex index = folders_.index(folder);
    ui_->Dir1->setCurrentIndex(index);
    ui_->Dir1->expand(index);
}

void FormAddImages::OnFolder(const QModelIndex& index) {
    if (!index.isValid()) {
        return;
    }
    folder_ = folders_.filePath(index);
    SelectVolume(VolumeHolding(folder_, volumes_));
    ui_->LabelFolder->setText(QDir::toNativeSeparators(folder_));
    ui_->LabelFolder->setToolTip(ui_->LabelFolder->text());
    RefillFiles();
}

void FormAddImages::RefillFiles() {
    const QIcon plain = style()->standardIcon(QStyle::SP_FileIcon);
    const QStringView patterns = ui_->Option1->isChecked() ? photoPatterns : anyPattern;
    ui_->File1->clear();
    for (const QString& fileName : FilesIn(folder_, patterns)) {
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

void FormAddImages::ShowCounts() {
    const int count = ui_->File1->count();
    if (!QDir(folder_).isReadable()) {
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
    AppendImages(images_, folder_, fileNames);
    SaveStartPlace(store_, {DriveName(ui_->Drive1->currentData().toString()), folder_});
    accept();
}

// One picture and one line of text.
QSize FormAddImages::CellSize() const {
    return ui_->File1->iconSize() + QSize(34, fontMetrics().height() + 8);
}

QImage FormAddImages::SmallImage(const QString& fileName) const {
    const QSize box = ui_->File1->iconSize() * devicePixelRatioF();
    const BitmapHandle small =
        SmallPicture(QDir(folder_).filePath(fileName), {box.width(), box.height()});
    QImage image = ImageOf(small.get());
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

bool FormAddImages::eventFilter(QObject* watched, QEvent* event) {
    // Enter opens or closes the folder; it must not close the dialog under somebody who is still on
    // the way to the photos.
    if (watched == ui_->Dir1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const QModelIndex index = ui_->Dir1->currentIndex();
            ui_->Dir1->setExpanded(index, !ui_->Dir1->isExpanded(index));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
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
