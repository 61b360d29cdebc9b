// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The real program, stopped by signals at random moments.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <csignal>
#include <functional>
#include <map>
#include <random>

#include "tests/support/files.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Stop : public ::testing::Test {
  protected:
    Stop() {
        for (int n = 0; n < 6; ++n) {
            photos_.append(files_.Picture(Q("%1.bmp").arg(n), OutputType::Bmp, {700, 500}));
        }
    }
    // As a terminal starts it: with its decoders in a process group of its own.
    void Start(
        QProcess& program, const QString& folder, const QStringList& options,
        const std::function<void()>& limit = [] {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Q("XDG_CONFIG_HOME"), files_.Path(Q("settings")));
        program.setProcessEnvironment(environment);
        program.setChildProcessModifier([limit] {
            ::setpgid(0, 0);
            limit();
        });
        QDir().mkpath(files_.Path(folder));
        program.start(Q(VARNEL_CONVERT),
                      QStringList{Q("--camera=Canon/EOS 5D"), Q("--lens=Sigma/EX 8 mm f:3.5"),
                                  Q("--type=png"), Q("--projection=all"), Q("--output-dir"),
                                  files_.Path(folder)} +
                          options + photos_);
        ASSERT_TRUE(program.waitForStarted());
    }
    // As a shell counts: 128 and the signal for what a signal ended.
    static int CodeOf(QProcess& program) {
        program.waitForFinished(120'000);
        return program.exitCode() + (program.exitStatus() == QProcess::NormalExit ? 0 : 128);
    }
    std::map<QString, QByteArray> Outputs(const QString& folder) const {
        std::map<QString, QByteArray> outputs;
        for (const QString& name :
             QDir(files_.Path(folder)).entryList(QDir::Files | QDir::Hidden)) {
            outputs[name] = testing::Contents(files_.Path(folder) + u'/' + name);
        }
        return outputs;
    }

    testing::PictureFolder files_;
    QStringList photos_;
};

TEST_F(Stop, LeavesWholeFilesOnlyAndCanBeGoneOnWith) {
    QElapsedTimer timer;
    timer.start();
    QProcess whole;
    Start(whole, Q("whole"), {});
    ASSERT_EQ(CodeOf(whole), 0);
    const auto expected = Outputs(Q("whole"));
    ASSERT_EQ(expected.size(), 24U);
    const qint64 wholeTime = timer.elapsed();
    std::mt19937 random(2026);
    int stopped = 0;
    for (int n = 0; n < 8; ++n) {
        const int signal = n % 2 == 0 ? SIGINT : SIGTERM;
        const QString folder = Q("run %1").arg(n);
        QProcess program;
        Start(program, folder, {Q(n % 4 < 2 ? "--jobs=1" : "--jobs=4")});
        QThread::msleep(random() % static_cast<unsigned>(wholeTime));
        const pid_t group = static_cast<pid_t>(program.processId());
        ::kill(-group, signal);
        const int code = CodeOf(program);
        EXPECT_EQ(::kill(-group, 0), -1) << "a decoder still runs";
        const auto outputs = Outputs(folder);
        EXPECT_TRUE(code == 128 + signal || (code == 0 && outputs == expected)) << code;
        for (const auto& [name, bytes] : outputs) {
            EXPECT_TRUE(expected.contains(name) && expected.at(name) == bytes)
                << name.toStdString();
        }
        const QByteArray told = program.readAllStandardError();
        if (told.contains("stopped, ")) {
            ++stopped;
            EXPECT_TRUE(told.contains(QByteArray::number(outputs.size()) + " of 24 pictures"));
        } else {  // it came before main or after it
            EXPECT_TRUE(outputs.empty() || outputs == expected);
        }
        if (n == 0) {
            QProcess rest;
            Start(rest, folder, {Q("--skip-existing")});
            EXPECT_EQ(CodeOf(rest), 0);
            EXPECT_TRUE(Outputs(folder) == expected);
        }
    }
    EXPECT_GE(stopped, 3);
}

TEST_F(Stop, ASecondSignalEndsItAtOnceAndLeavesNothingBehind) {
    photos_ = QStringList{files_.Picture(Q("large.bmp"), OutputType::Bmp, {6000, 4000})};
    const qint64 whole = qint64{6000} * 4000 * 3;
    qint64 fastest = 1'000'000;
    for (int n = 0; n < 4; ++n) {
        const QString folder = Q("twice %1").arg(n);
        QProcess twice;
        Start(twice, folder, {Q("--type=bmp"), Q("--jobs=2")});
        const pid_t group = static_cast<pid_t>(twice.processId());
        while (Outputs(folder).empty() && twice.state() == QProcess::Running) {
            twice.waitForFinished(1);  // the first result is being written
        }
        QElapsedTimer timer;
        timer.start();
        ::kill(group, SIGINT);
        ::kill(group, SIGTERM);
        EXPECT_EQ(CodeOf(twice), 143);
        fastest = std::min(fastest, timer.elapsed());
        for (const QFileInfo& file :
             QDir(files_.Path(folder)).entryInfoList(QDir::Files | QDir::Hidden)) {
            EXPECT_TRUE(!file.isHidden() && file.size() > whole) << file.fileName().toStdString();
        }
        for (int wait = 0; wait < 1000 && ::kill(-group, 0) == 0; ++wait) {
            QThread::msleep(1);
        }
        EXPECT_EQ(::kill(-group, 0), -1) << "a decoder still runs";
    }
    EXPECT_LT(fastest, 200);
}

TEST_F(Stop, WithoutThreadsItSaysWhatSignalsDoAndDoesTheSame) {
    QProcess whole;
    Start(whole, Q("whole"), {});
    ASSERT_EQ(CodeOf(whole), 0);
    QProcess alone;
    Start(alone, Q("alone"), {Q("--jobs=4")}, [] {
        const rlimit tooLarge{rlim_t{1} << 46, RLIM_INFINITY};  // of a thread's stack, bytes
        ::setrlimit(RLIMIT_STACK, &tooLarge);
    });
    EXPECT_EQ(CodeOf(alone), 0);
    EXPECT_TRUE(alone.readAllStandardError().contains("no thread can be started to wait"));
    EXPECT_TRUE(Outputs(Q("alone")) == Outputs(Q("whole")));
}

TEST_F(Stop, IgnoredSignalsAreIgnored) {
    QProcess background;
    std::signal(SIGINT, SIG_IGN);  // as a shell without job control starts it
    Start(background, Q("background"), {});
    std::signal(SIGINT, SIG_DFL);
    ASSERT_TRUE(background.waitForReadyRead(60'000));
    ::kill(static_cast<pid_t>(background.processId()), SIGINT);
    EXPECT_EQ(CodeOf(background), 0);
}

}  // namespace
}  // namespace varnel
