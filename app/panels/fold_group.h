// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A group of the side column that folds: its title is a button with an arrow, and what is in the
// group is hidden while it is folded. Throws nothing.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace varnel {

class FoldGroup : public QGroupBox {
    Q_OBJECT
  public:
    // Open at first.
    FoldGroup(const char* name, const QString& title, QWidget* parent = nullptr);

    QVBoxLayout* Column() const { return column_; }  // where its controls go
    QWidget* Body() const { return body_; }
    // Takes the title's place; a click on it folds, too.
    void SetLabel(QLabel* label);
    bool Folded() const { return !header_->isChecked(); }
    void SetFolded(bool folded) { header_->setChecked(!folded); }

  Q_SIGNALS:
    void FoldedChanged(bool folded);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Fold(bool folded);

    QToolButton* header_;
    QLabel* label_ = nullptr;
    QWidget* body_;
    QVBoxLayout* column_;
};

}  // namespace varnel
