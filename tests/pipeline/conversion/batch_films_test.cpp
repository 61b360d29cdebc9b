// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films among the photos of a batch.

#include <gtest/gtest.h>

#include "pipeline/conversion/batch_run.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Without files: notes what is loaded, saved and told.
class BatchFilms : public ::testing::Test,
                   public BatchObserver,
                   public RenderProgress,
                   public FilmSaver {
  protected:
    BatchFilms() {
        for (const char* const name : {"a.jpg", "b.mp4", "c.mp4", "d.jpg"}) {
            queue.Append(testing::FisheyePhoto(Text("/in"), Text(name)));
        }
        queue(2).Film.emplace();
        queue(3).Film.emplace();
    }
    BatchSummary Go(FilmSaver* films) {
        return RunBatch(queue, choices, *this,
                        {[](const QString&) {
                             return LoadedPicture{
                                 LoadOutcome::Loaded, testing::PositionPicture({6, 9}), {}, {6, 9}};
                         },
                         [this](const OutputEncoding&, const Bitmap*, const QString& path) {
                             log += Text("save ") + path;
                             return SaveResult{true, {}};
                         }},
                        films);
    }
    void Naming(const QString& path) override { log += Text("name ") + path; }
    RenderProgress& Progress() override { return *this; }
    void Done(int done, int /*queued*/) override { log += QString::number(done); }
    bool StopAsked() override { return log.contains(stopAt); }
    void Begin(float /*maximum*/) override {}
    void Advance(float /*value*/) override {}
    void End() override {}
    SavedFilm Save(const ImageRecord& film, const FilmOutput& output, const QString& path,
                   const std::function<bool(double)>& goesOn) override {
        log += Text("film %1 to %2 by %3").arg(film.FileName, path, output.codec);
        return goesOn(0.5) ? answer : SavedFilm{ReasonCode::Cancelled, {}};
    }

    QStringList log;
    QString stopAt = Text("never");
    SavedFilm answer;
    RecordArray<ImageRecord> queue;
    BatchChoices choices{Text("/out"), {}, OutputType::Jpeg, 83};
};

TEST_F(BatchFilms, AreWrittenInTheirTurnByTheirSaver) {
    choices.film.codec = Text("ffv1");
    const BatchSummary summary = Go(this);
    EXPECT_EQ(log,
              (QStringList{
                  Text("name /out/a.Varnel.JPG"), Text("save /out/a.Varnel.JPG"), Text("1"),
                  Text("name /out/b.Varnel.mkv"), Text("film b.mp4 to /out/b.Varnel.mkv by ffv1"),
                  Text("2"), Text("name /out/c.Varnel.mkv"),
                  Text("film c.mp4 to /out/c.Varnel.mkv by ffv1"), Text("3"),
                  Text("name /out/d.Varnel.JPG"), Text("save /out/d.Varnel.JPG"), Text("4")}));
    EXPECT_EQ(summary.entries, (QList<int>{1, 2, 3, 4}));
}

TEST_F(BatchFilms, FailByThemselvesAndStopAtTheNextEntry) {
    answer.error = ReasonCode::NotEnoughMemory;
    stopAt = Text("2");
    const BatchSummary failed = Go(this);
    ASSERT_EQ(failed.failures.size(), 1U);
    EXPECT_EQ(failed.failures.front().file, Text("/in/b.mp4"));
    EXPECT_EQ(failed.done, 2);
    log.clear();
    stopAt = Text("name /out/c.Varnel.mp4");  // within the film, which is given up
    answer = {};
    const BatchSummary stopped = Go(this);
    EXPECT_EQ(stopped.entries, (QList<int>{1, 2}));
    ASSERT_EQ(stopped.failures.size(), 1U);
    EXPECT_EQ(stopped.failures.front().file, Text("/in/c.mp4"));
    EXPECT_EQ(log.last(), Text("3"));
    stopAt = Text("never");
    EXPECT_EQ(Go(nullptr).failures.size(), 2U);  // films cannot be written
}

}  // namespace
}  // namespace varnel
