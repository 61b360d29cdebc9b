// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frames around the remap controls: equipment, image list, saving. Throws nothing but for want
// of memory.
#pragma once

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <vector>

#include "app/panels/photo_list.h"
#include "app/panels/title_corner.h"
#include "base/record_array.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

// "Equipment": which gear took the photos.
class EquipmentPanel : public QGroupBox {
    Q_OBJECT
  public:
    explicit EquipmentPanel(QWidget* parent = nullptr);
    // All gear names in table order; the one of this number, from 1, is selected.
    void Fill(const QStringList& gearNames, int selected);
    // A photo's gear. A name that is not among them is shown with a mark; none is selected then,
    // and there is none to be applied to all.
    void Show(const QString& gearName);
    QComboBox* Gears() const { return gears_; }
    QPushButton* ApplyToAll() const { return applyToAll_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static QString GearsTip();
    static QString Marked(const QString& gearName);
    void ShowMark();

    QString shown_;  // the gear of the photo that is shown
    QComboBox* gears_;
    QPushButton* applyToAll_;
};

// "Image list".
class ImageListPanel : public QGroupBox {
    Q_OBJECT
  public:
    explicit ImageListPanel(QWidget* parent = nullptr);
    // A filmstrip, or a list from top to bottom.
    void SetStrip(bool strip);
    // One line for each record; none is current afterwards.
    void Fill(const RecordArray<ImageRecord>& images);
    std::vector<int> SelectedLines() const;  // in list order, from 0
    PhotoList* List() const { return list_; }
    QPushButton* Add() const { return add_; }
    QPushButton* Remove() const { return remove_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // Of the filmstrip, which is too low for a frame.
    void DropMargins();

    PhotoList* list_;
    QBoxLayout* both_;     // list and buttons
    QBoxLayout* buttons_;  // the space of the title and both buttons
    bool strip_ = false;
    QPushButton* add_;
    QPushButton* remove_;
};

// "Save", later "Save / batch process " and the length of the queue.
class SavePanel : public TitleCornerBox {
    Q_OBJECT
  public:
    explicit SavePanel(QWidget* parent = nullptr);
    // 0 shows the plain caption; the button that opens the batch appears with the first entry.
    void ShowQueue(int length);
    // Of the current result: "6000 x 4000 pixels, about 9 MB"; empty without one.
    void ShowSize(const QString& size);
    QPushButton* SaveAs() const { return saveAs_; }
    QPushButton* AddToQueue() const { return addToQueue_; }
    QPushButton* ProcessQueue() const { return processQueue_; }

  private:
    QPushButton* saveAs_;
    QPushButton* addToQueue_;
    QPushButton* processQueue_;
    QLabel* size_;
};

}  // namespace varnel
