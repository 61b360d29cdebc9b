// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/side_panels.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "app/panels/named_button.h"
#include "app/panels/spacing.h"
#include "pipeline/dialogs/elided_label.h"
#include "state/dialogs/wheel_guard.h"

namespace varnel {

QString EquipmentPanel::GearsTip() {
    return tr("Which camera and lens took the selected photos");
}

QString EquipmentPanel::Marked(const QString& gearName) {
    return gearName.isEmpty() ? tr("No gear yet") : tr("%1 (not in the list)").arg(gearName);
}

EquipmentPanel::EquipmentPanel(QWidget* parent)
    : QGroupBox(tr("Equipment"), parent), gears_(new QComboBox(this)) {
    setObjectName(QStringLiteral("FrameEquip"));
    auto* const label = new QLabel(tr("Camera + lens combination"), this);
    label->setObjectName(QStringLiteral("Label2"));
    label->setBuddy(gears_);
    gears_->setObjectName(QStringLiteral("GearCombo"));
    gears_->setAccessibleName(label->text());
    gears_->setToolTip(GearsTip());
    gears_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    gears_->setMinimumContentsLength(16);
    gears_->setFocusPolicy(Qt::StrongFocus);
    gears_->installEventFilter(this);
    new WheelGuard(gears_);
    applyToAll_ = NamedButton("CmdApplyAll", tr("Apply to all"),
                              tr("Every photo in the list was taken with this gear"), this);
    applyToAll_->setAccessibleName(QStringLiteral("%1: %2").arg(title(), applyToAll_->text()));
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(groupMargin, 0, groupMargin, rowGap);
    grid->setSpacing(rowGap);
    grid->addWidget(label, 0, 0, 1, 2);
    grid->addWidget(gears_, 1, 0);
    grid->addWidget(applyToAll_, 1, 1);
    grid->setColumnStretch(0, 1);
}

bool EquipmentPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == gears_ && event->type() == QEvent::Resize) {
        ShowMark();
    }
    return QGroupBox::eventFilter(watched, event);
}

void EquipmentPanel::Fill(const QStringList& gearNames, int selected) {
    const QSignalBlocker blocker(gears_);
    gears_->clear();
    gears_->addItems(gearNames);
    gears_->setCurrentIndex(selected - 1);
}

void EquipmentPanel::Show(const QString& gearName) {
    const QSignalBlocker blocker(gears_);
    shown_ = gearName;
    gears_->setCurrentIndex(gears_->findText(gearName));
    const bool listed = gears_->currentIndex() >= 0;
    ShowMark();
    gears_->setAccessibleDescription(listed ? QString() : Marked(gearName));
    gears_->setToolTip((listed ? QString() : Marked(gearName) + u'\n') + GearsTip());
    applyToAll_->setEnabled(listed);
}

// However long the name is, the mark stays in sight.
void EquipmentPanel::ShowMark() {
    QStyleOptionComboBox option;
    option.initFrom(gears_);
    constexpr int margin = 8;  // that styles leave around a text
    const int room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, gears_)
            .width() -
        margin;
    const QFontMetrics metrics = gears_->fontMetrics();
    const int rest = room - metrics.horizontalAdvance(Marked(QStringLiteral(" ")));
    const int least = metrics.averageCharWidth() * 4;
    gears_->setPlaceholderText(
        Marked(metrics.elidedText(shown_, Qt::ElideRight, std::max(rest, least))));
}

ImageListPanel::ImageListPanel(QWidget* parent)
    : QGroupBox(tr("Image list"), parent),
      list_(new PhotoList(this)),
      both_(new QBoxLayout(QBoxLayout::TopToBottom, this)),
      buttons_(new QBoxLayout(QBoxLayout::LeftToRight)) {
    setObjectName(QStringLiteral("Frame4"));
    list_->setObjectName(QStringLiteral("ImageList1"));
    list_->setAccessibleName(tr("Image list"));
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setToolTip(tr("Click a photo to work on it; select several to adjust them together"));
    add_ = NamedButton("Command1", tr("Add image(s)"), tr("Adds photos to the list"), this);
    remove_ = NamedButton("CmdRemoveImages", tr("Remove image(s)"),
                          tr("Takes the selected photos off the list; the files stay"), this);
    buttons_->addWidget(add_);
    buttons_->addWidget(remove_);
    SetStrip(true);
}

void ImageListPanel::SetStrip(bool strip) {
    strip_ = strip;
    list_->SetStrip(strip);
    both_->removeWidget(list_);
    both_->removeItem(buttons_);
    both_->setSpacing(rowGap);
    both_->setDirection(strip ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    buttons_->setDirection(strip ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (strip) {
        both_->addLayout(buttons_);
        both_->addWidget(list_, 1);
        both_->setContentsMargins(groupMargin, 0, 0, 0);
        buttons_->setContentsMargins(0, fontMetrics().height() + rowGap, 0, 0);
        DropMargins();
    } else {
        both_->addWidget(list_, 1);
        both_->addLayout(buttons_);
        both_->setContentsMargins(groupMargin, 0, groupMargin, rowGap);
        buttons_->setContentsMargins({});
        QEvent style(QEvent::StyleChange);
        QGroupBox::changeEvent(&style);
    }
}

void ImageListPanel::DropMargins() {
    if (strip_) {
        setContentsMargins({});
    }
}

void ImageListPanel::paintEvent(QPaintEvent* event) {
    if (!strip_) {
        QGroupBox::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, rect().adjusted(groupMargin, 0, 0, 0),
                          Qt::AlignLeft | Qt::AlignTop, palette(), isEnabled(), title(),
                          QPalette::WindowText);
}

// Of the strip, the group box would keep the room for a title above the list.
void ImageListPanel::resizeEvent(QResizeEvent* event) {
    if (!strip_) {
        QGroupBox::resizeEvent(event);
    }
}

void ImageListPanel::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    DropMargins();
}

void ImageListPanel::Fill(const RecordArray<ImageRecord>& images) {
    const QSignalBlocker blocker(list_);
    list_->clear();
    for (const ImageRecord& image : images) {
        auto* const item = new QListWidgetItem(image.FileName, list_);
        item->setToolTip(SourcePath(image));
        item->setData(PhotoList::pathRole, SourcePath(image));
    }
}

std::vector<int> ImageListPanel::SelectedLines() const {
    std::vector<int> lines;
    for (int line = 0; line < list_->count(); ++line) {
        if (list_->item(line)->isSelected()) {
            lines.push_back(line);
        }
    }
    return lines;
}

SavePanel::SavePanel(QWidget* parent) : TitleCornerBox(QString(), parent) {
    setObjectName(QStringLiteral("FrameSave"));
    saveAs_ = NamedButton("CommandSaveFreeimage", tr("Save image as ..."),
                          tr("Converts the current photo at full size and saves it"), this);
    addToQueue_ = NamedButton("CommandAddToBatchQue", tr("Add to batch que"),
                              tr("Queues every photo of the list with its present settings"), this);
    processQueue_ = NamedButton("CmdBatchProcess", tr("Process batch que"),
                                tr("Converts and saves everything that is queued"), this);
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(groupMargin, 0, groupMargin, rowGap);
    grid->setSpacing(rowGap);
    size_ = new ElidedLabel(this);
    size_->setObjectName(QStringLiteral("LabelSaveSize"));
    grid->addWidget(saveAs_, 0, 0, 1, 2);
    grid->addWidget(addToQueue_, 1, 0);
    grid->addWidget(processQueue_, 1, 1);
    SetCorner(size_);
    ShowQueue(0);
    processQueue_->hide();
}

void SavePanel::ShowQueue(int length) {
    setTitle(length == 0 ? tr("Save") : tr("Save / batch process ") + QString::number(length));
    if (length > 0) {
        processQueue_->show();
    }
    Place();
}

void SavePanel::ShowSize(const QString& size) {
    size_->setText(size);
    // Long words may not fit.
    const QString tip = tr("What the saved picture usually takes in the file type of the defaults");
    size_->setToolTip(size.isEmpty() ? tip : size + u'\n' + tip);
    Place();
}

}  // namespace varnel
