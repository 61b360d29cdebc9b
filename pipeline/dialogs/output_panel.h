// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How results are written: file type, quality, colour, metadata and the pattern of names, with an
// example of a name and the size to expect. The batch dialog and the save dialog have it. Throws
// nothing.
#pragma once

#include <QWidget>
#include <memory>

#include "pipeline/output/save_wish.h"

namespace Ui {
class OutputPanel;
}

namespace varnel {

class OutputPanel : public QWidget {
    Q_OBJECT

  public:
    explicit OutputPanel(QWidget* parent = nullptr);
    ~OutputPanel() override;

    // The usual pattern is the one that an empty one stands for.
    void Show(const SaveWish& wish, const QString& usual);
    SaveWish Wish() const;
    // Empty when the pattern can be used.
    QString PatternError() const;

    // An empty example is no example; an error of the pattern stands in its place.
    void ShowExample(const QString& name);
    void ShowSize(const QString& size);

    // Its controls in the order of the Tab key.
    QList<QWidget*> TabOrder() const;

    // Where the type is chosen elsewhere.
    void HideType();
    void SetType(OutputType type);

    bool NextToPhoto() const;
    void SetNextToPhoto(bool on);

  Q_SIGNALS:
    void WishChanged();
    void NextToPhotoToggled(bool on);

  private:
    void ShowState();

    std::unique_ptr<Ui::OutputPanel> ui_;
    QString usualPattern_;
    OutputEncoding shown_;  // with what there is no control for
};

}  // namespace varnel
