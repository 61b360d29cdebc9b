// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bar below the pictures while a film is shown: playing, the time line, its part and its keys,
// and how it is written. Throws nothing but for want of memory.
#pragma once

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

#include "app/tools/film/time_line.h"
#include "pipeline/conversion/films/film_saver.h"

namespace varnel {

class FilmBar : public QWidget {
    Q_OBJECT
  public:
    explicit FilmBar(QWidget* parent);

    // In the order of reading.
    QWidgetList Controls() const;
    TimeLine* Line() const { return line_; }
    QToolButton* PlayButton() const { return play_; }
    QToolButton* InButton() const { return in_; }
    QToolButton* OutButton() const { return out_; }
    QToolButton* KeyButton() const { return key_; }
    QToolButton* KeyingButton() const { return keying_; }
    QToolButton* SaveButton() const { return save_; }
    void ShowTime(double now, double seconds);
    void ShowPlaying(bool on);
    // That there is a key where the film stands, which the button removes then.
    void ShowKey(bool there);
    // What is wrong with the film; empty when nothing is.
    void ShowError(const QString& text);
    // Without the choices there is nothing that could write a film.
    void OfferSaving(bool on);
    FilmOutput Output() const;
    // What the bar does not have is the usual one.
    void Choose(const FilmOutput& output);
    // As narrow as with one row below the other.
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void OutputChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QToolButton* AddButton(QLayout* row, const char* name, const QString& text, const QString& tip);
    void AddSaving();

    QHBoxLayout* playing_;
    QBoxLayout* choices_;  // keys and saving, beside or below one another
    QHBoxLayout* keys_;
    QHBoxLayout* saving_;
    QLabel* time_;
    QLabel* error_;
    TimeLine* line_;
    QToolButton* play_;
    QToolButton* in_;
    QToolButton* out_;
    QToolButton* key_;
    QToolButton* keying_;
    QComboBox* codec_ = nullptr;
    QSpinBox* quality_ = nullptr;
    QComboBox* speed_ = nullptr;
    QToolButton* save_ = nullptr;
};

}  // namespace varnel
