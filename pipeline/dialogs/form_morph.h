// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The morph dialog: a numbered sequence between two settings of one photo goes into the batch
// queue or becomes a film, its first and last picture and one between in view. Throws nothing; what
// the pictures or the sequence are short of becomes a message.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "base/notices.h"
#include "base/thread_runner.h"
#include "pipeline/conversion/films/morph_film.h"
#include "remap/image/bitmap.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/slider_table.h"

namespace Ui {
class FormMorph;
}

namespace varnel {

// Where a film's choice lives: who writes it, and how its name is asked for. Takes a proposal and
// gives the path with its ending, which may be replaced; empty when cancelled.
struct MorphFilmPorts {
    MorphFilmMaker* maker = nullptr;
    std::function<QString(const QString& proposal)> chooseName = nullptr;
    QString ending = QStringLiteral(".mp4");  // that is proposed
};

class FormMorph : public QDialog {
    Q_OBJECT

  public:
    // previewSource is the photo at preview size and is copied; null for none. queueChanged is
    // called with the queue's upper bound each time that images were added.
    FormMorph(const ImageRecord& image, const Bitmap* previewSource,
              RecordArray<ImageRecord>& queue, ThreadRunner& pool, Notices& notices,
              std::function<void(int)> queueChanged, QWidget* parent = nullptr);
    ~FormMorph() override;
    // Shows the choice of a film, which is hidden otherwise.
    void OfferFilm(MorphFilmPorts film);
    // While a film is written, stops that first.
    void reject() override;

  private:
    enum Picture { First, Between, Last };

    struct GridPlace {
        int row, column;
    };

    void BuildPairs();
    void AddPair(const SliderRowData& facts, float MorphValues::*value, int gridRow);
    // Slider, spin box and label from that cell of the grid on, for the value that the first or
    // last picture shows.
    QSlider* AddEnd(const SliderRowData& facts, GridPlace place, Picture picture, float& value);
    void MarkUnused();
    void SetUpPictures(const Bitmap* previewSource);
    void ConnectControls();

    // The number of images when it makes a sequence, else 0.
    int FrameCount() const;
    void ShowFrameCount();
    void ShowBetweenTitle();
    void DrawLater(Picture picture);
    void DrawPending();
    void Draw(QLabel& label, int i, int N);
    // The number of images that was typed; nothing after a message that it is none.
    std::optional<int> TypedCount();
    void AddFrames();
    void ShowFilmChoice();
    void AddOrWrite();
    void WriteFilm(int N);
    Reason MakeFilm(const MorphFilm& film);
    void LetChoose(bool on);

    Projection ItsProjection() const { return ProjectionFromIndex(image_.Projection); }

    std::unique_ptr<Ui::FormMorph> ui_;
    const ImageRecord image_;
    MorphEnds ends_;
    RecordArray<ImageRecord>& queue_;
    Notices& notices_;
    std::function<void(int)> queueChanged_;
    Bitmaps bitmaps_;
    ThreadRunner& pool_;
    QTimer drawTimer_{this};  // fires when no event waits any more: the newest values are drawn
    std::array<bool, 3> pending_{};
    MorphFilmPorts film_;
    bool writing_ = false;
    bool stopped_ = false;  // the film that is being written
    bool closeWanted_ = false;
    QString noPreview_ = tr("No preview");  // or why there is none
};

}  // namespace varnel
