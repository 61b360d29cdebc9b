// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/straighten_model.h"

#include <QDate>
#include <QFileInfo>
#include <algorithm>
#include <chrono>
#include <system_error>

#include "state/adjustments/measured_lens.h"
#include "state/editing/read_gear.h"

namespace varnel {

namespace {

constexpr int betweenLooks = 20;  // ms

}  // namespace

StraightenModel::StraightenModel(ThreadRunner& pool, QObject* parent)
    : QObject(parent), pool_(pool) {
    look_.setSingleShot(true);
    look_.setInterval(betweenLooks);
    connect(&look_, &QTimer::timeout, this, &StraightenModel::Look);
}

StraightenModel::~StraightenModel() {
    stop_ = true;
    if (running_.valid()) {
        running_.wait();
    }
}

bool StraightenModel::Add(Photo photo) {
    const auto other = [&](const Photo& one) {
        const PixelSize size = one.bitmap->Size();
        return size.width != photo.bitmap->Size().width ||
               size.height != photo.bitmap->Size().height;
    };
    if (photos_.size() == mostPhotos || std::ranges::any_of(photos_, other)) {
        return false;
    }
    photos_.push_back(std::move(photo));
    searched_.push_back(false);
    Measure();
    return true;
}

void StraightenModel::Toggle(std::size_t edge) {
    edges_[edge].away = !edges_[edge].away;
    Measure();
}

void StraightenModel::Tag(std::size_t edge, EdgeTag tag) {
    if (edges_[edge].trace.tag != tag) {
        edges_[edge].trace.tag = tag;
        Measure();
    }
}

void StraightenModel::Trace(const EdgeClicks& clicks) {
    clicks_.push_back(clicks);
    Measure();
}

void StraightenModel::Know(const KnownOfLens& known) {
    if (!(known == known_)) {
        known_ = known;
        Measure();
    }
}

bool StraightenModel::KnowsSensor() const {
    return !photos_.empty() && OptionsNow().pixelsPerMillimetre.has_value();
}

LensReference StraightenModel::Lens(const QString& name) const {
    SampledLens lens = result_->lens;
    lens.name = name;
    return std::make_shared<const SampledLens>(std::move(lens));
}

ImageRecord StraightenModel::Straightened(int photo) const {
    const Photo& shown = photos_[static_cast<std::size_t>(photo)];
    ImageRecord record = photos_.front().record;
    record.Orientation = shown.record.Orientation;
    if (HasLens()) {
        PutLens(Lens({}), record);
    }
    return record;
}

// The first time nothing is worth stopping for: whatever follows needs what it finds.
void StraightenModel::Measure() {
    again_ = true;
    if (!running_.valid()) {
        Begin();
    } else if (job_.lens) {
        stop_ = true;
    }
    Q_EMIT Changed();
}

MeasureOptions StraightenModel::OptionsNow() const {
    const ImageRecord& record = photos_.front().record;
    MeasureOptions options;
    options.date = QDate::currentDate();
    const auto known = IsGuessed(record) ? std::nullopt : KnownLensOf(record);
    if (known) {
        options.present = known->view;
        options.pixelsPerMillimetre = known->pixelsPerMillimetre;
    }
    options.circle = circle_;
    options.findCircle = !result_;
    options.circleAtNinety = known_.circleAtNinety;
    options.focalMillimetres = known_.focalMillimetres;
    options.colour = known_.colour;
    return options;
}

MeasureJob StraightenModel::Job() const {
    MeasureJob job{{}, OptionsNow()};
    for (const Photo& photo : photos_) {
        job.photos.push_back({photo.bitmap, QFileInfo(photo.path).fileName()});
    }
    if (!result_) {
        return job;
    }
    for (std::size_t n = 0; n < searched_.size(); ++n) {
        if (!searched_[n]) {
            job.unsearched.push_back(static_cast<int>(n));
        }
    }
    job.lens = result_->solved ? result_->solved->lens : *result_->start;
    job.solved = HasLens();
    job.clicks = clicks_;
    return job;
}

void StraightenModel::Begin() {
    again_ = stop_ = false;
    job_ = Job();
    counted_.clear();
    for (std::size_t n = 0; n < edges_.size(); ++n) {
        if (!edges_[n].away) {
            counted_.push_back(n);
            job_.options.edges.push_back(edges_[n].trace);
        }
    }
    job_.options.stop = StopCheck([this] { return stop_.load(); });
    std::packaged_task<MeasureOutcome()> task([job = job_] { return varnel::Measure(job); });
    auto future = task.get_future();
    // Without a core of the pool's: where there is but one the window's thread holds it.
    if (!pool_.Begin(task, TaskWeight::Light)) {
        Q_EMIT Failed();
        return;
    }
    running_ = std::move(future);
    look_.start();
}

void StraightenModel::Look() {
    if (running_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        look_.start();
        return;
    }
    try {
        MeasureOutcome outcome = running_.get();
        if (outcome.measured.error != MeasureError::Stopped) {
            Take(std::move(outcome));
        }
    } catch (const std::bad_alloc&) {
        again_ = false;
        Q_EMIT Failed();
    }
    if (again_) {
        Begin();
    }
    Q_EMIT Changed();
}

void StraightenModel::Take(MeasureOutcome outcome) {
    if (outcome.measured.circle) {
        circle_ = *outcome.measured.circle;
    }
    const auto asked = static_cast<std::ptrdiff_t>(job_.clicks.size());
    clicks_.erase(clicks_.begin(), clicks_.begin() + asked);
    std::fill_n(searched_.begin(), job_.photos.size(), true);
    TakeEdges(outcome.measured);
    result_ = std::move(outcome.measured);
    if (outcome.traced < asked) {
        Q_EMIT NotTraced();
    }
}

void StraightenModel::TakeEdges(const Measurement& measured) {
    for (EdgeOnPhoto& edge : edges_) {
        edge.result.reset();
    }
    for (std::size_t n = counted_.size(); n < measured.edges.size(); ++n) {
        counted_.push_back(edges_.size());
        edges_.push_back({measured.edges[n]});
    }
    for (std::size_t n = 0; measured.solved && n < counted_.size(); ++n) {
        edges_[counted_[n]].result = measured.solved->edges[n];
    }
}

}  // namespace varnel
