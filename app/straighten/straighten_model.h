// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the straighten dialog works on: photos of one lens, edges on them, and the lens that makes
// the edges straight, measured on another thread whenever something changed. It uses no widget.
// Throws nothing but for want of memory.
#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <future>

#include "app/straighten/measure_job.h"
#include "base/thread_runner.h"
#include "state/records/image_record.h"

namespace varnel {

struct EdgeOnPhoto {
    EdgeTrace trace;
    bool away = false;                      // the user took it away
    std::optional<EdgeResult> result = {};  // of the last measuring
};

// What the user knows of the lens.
struct KnownOfLens {
    std::optional<double> focalMillimetres;
    bool circleAtNinety = false;
    bool colour = false;  // estimate colour fringes

    bool operator==(const KnownOfLens&) const = default;
};

class StraightenModel : public QObject {
    Q_OBJECT
  public:
    static constexpr int mostPhotos = 4;

    struct Photo {
        std::shared_ptr<const Bitmap> bitmap;
        QString path;
        ImageRecord record;
        bool halvedColour = false;  // as HasHalvedColour
    };

    StraightenModel(ThreadRunner& pool, QObject* parent);
    ~StraightenModel() override;  // ends the measuring

    // False for a photo of another size than the first one's, and when there are enough. The first
    // one's record says which lens has to be beaten.
    bool Add(Photo photo);
    const std::vector<Photo>& Photos() const { return photos_; }
    const std::vector<EdgeOnPhoto>& Edges() const { return edges_; }

    // Takes the edge away or brings it back.
    void Toggle(std::size_t edge);
    void Tag(std::size_t edge, EdgeTag tag);
    void Trace(const EdgeClicks& clicks);
    void Know(const KnownOfLens& known);
    const KnownOfLens& Known() const { return known_; }
    // Whether a focal length would be of use: the size of the sensor is known.
    bool KnowsSensor() const;

    bool Measuring() const { return running_.valid(); }
    // The last one's; the edges are in Edges(). Nothing before the first one ended.
    const std::optional<Measurement>& Result() const { return result_; }
    bool HasLens() const {
        return result_ && result_->error == MeasureError::None && result_->solved->improved;
    }
    // A measured lens, of which HasLens, under that name.
    LensReference Lens(const QString& name) const;
    // The photo's record with the measured lens, if there is one.
    ImageRecord Straightened(int photo) const;

  Q_SIGNALS:
    void Changed();    // edges, result, or whether it measures
    void NotTraced();  // no edge lies between the last clicks
    void Failed();     // there is no memory or no thread to measure with

  private:
    void Measure();  // what is known now, when what runs has ended
    void Begin();
    MeasureJob Job() const;
    MeasureOptions OptionsNow() const;
    void Look();
    void Take(MeasureOutcome outcome);
    void TakeEdges(const Measurement& measured);

    ThreadRunner& pool_;
    std::vector<Photo> photos_;
    std::vector<bool> searched_;  // photos whose edges are found
    std::vector<EdgeOnPhoto> edges_;
    std::vector<EdgeClicks> clicks_;  // not traced yet
    KnownOfLens known_;
    std::optional<Measurement> result_;
    std::optional<ImageCircle> circle_;
    MeasureJob job_;                    // the running one
    std::vector<std::size_t> counted_;  // the edges in it
    std::future<MeasureOutcome> running_;
    std::atomic<bool> stop_ = false;
    bool again_ = false;  // something changed since it began
    QTimer look_{this};   // at what runs
};

}  // namespace varnel
