// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The main window at 1920 x 1080 with a photo of 24 megapixels: from an event to the painted frame,
// and from the last change to the sharp picture. Run with QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>

#include "app/picture/screen_pictures.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

// Notes when the widget has been painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }
    void Wait() {
        painted_ = false;
        while (!painted_) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();  // the paint event comes before the painting
    }

  private:
    bool painted_ = false;
};

// Another one each time, or nothing would be drawn.
int NextTilt() {
    static int steps = 0;
    return ++steps % 40;
}

TestWindow& Window(const char* view) {
    static auto* const workspace = [] {
        auto* const made = new TestWindow;  // as long as the program
        made->window.resize(1918, 1040);
        made->AddPhotos({QStringLiteral("photo.bmp")}, {6000, 4000});
        return made;
    }();
    workspace->Entry(view)->trigger();
    workspace->Click("OptionRemap_1");
    testing::Settle();
    return *workspace;
}

// A slider is dragged: each step to the painted draft.
void Drag(benchmark::State& state, const char* view) {
    TestWindow& workspace = Window(view);
    PaintWatch watch(workspace.Find("PicSmallTo"));
    QSlider* const slider = workspace.Slider("SliderX");
    slider->setSliderDown(true);
    for (auto _ : state) {
        slider->setSliderPosition(NextTilt());
        watch.Wait();
    }
    slider->setSliderDown(false);
    testing::Settle();
}

// The grabbed point of the result follows the pointer: each move to the painted draft.
void Grab(benchmark::State& state) {
    TestWindow& workspace = Window("CmdViewResult");
    QWidget* const box = workspace.Find("PicSmallTo");
    PaintWatch watch(box);
    const QPoint middle = box->rect().center();
    const auto send = [&](QEvent::Type type, const QPointF& at) {
        QMouseEvent event(type, at, box->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(box, &event);
    };
    send(QEvent::MouseButtonPress, middle);
    int steps = 0;
    for (auto _ : state) {
        ++steps;
        send(QEvent::MouseMove, middle + QPointF(5.0 * (steps % 40), 3.0 * (steps % 30)));
        watch.Wait();
    }
    send(QEvent::MouseButtonRelease, middle);
    testing::Settle();
}

// From the last change to the sharp picture, the wait for rest included.
void Rest(benchmark::State& state, const char* view) {
    TestWindow& workspace = Window(view);
    auto* const sharp = workspace.window.findChild<ScreenPictures*>();
    for (auto _ : state) {
        bool done = false;
        const auto connection =
            QObject::connect(sharp, &ScreenPictures::Finished, [&done] { done = true; });
        workspace.Slider("SliderX")->setValue(NextTilt());
        QElapsedTimer time;
        time.start();
        while (!done) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
        state.SetIterationTime(static_cast<double>(time.nsecsElapsed()) * 1e-9);
        QObject::disconnect(connection);
    }
}

// To a neighbour of the photo that is shown, until its draft is painted. Only where a decoder reads
// beside the window.
void Walk(benchmark::State& state) {
    TestWindow workspace([] { return NewPictureReader(); });
    workspace.window.resize(1918, 1040);
    workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, {6000, 4000});
    if (!NewPictureReader()->IsApart()) {
        state.SkipWithError("photos are not read beside the window here");
    }
    PaintWatch watch(workspace.Find("PicSmallTo"));
    int line = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QTest::qWait(2500);  // the neighbour is read
        state.ResumeTiming();
        workspace.ClickLine(line = 1 - line);
        watch.Wait();
    }
}

BENCHMARK_CAPTURE(Drag, split, "CmdViewSplit")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Drag, result, "CmdViewResult")->Unit(benchmark::kMillisecond);
BENCHMARK(Grab)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rest, split, "CmdViewSplit")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(Rest, result, "CmdViewResult")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(Walk)->Unit(benchmark::kMillisecond)->Iterations(6);

}  // namespace
}  // namespace varnel

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
