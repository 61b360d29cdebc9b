// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How many threads of the real program and its decoders are busy, as the system counts.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <vector>

#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

QByteArrayList NamesBelow(const QByteArray& folder) {
    QByteArrayList names;
    for (const QString& name :
         QDir(QFile::decodeName(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        names.append(name.toLatin1());
    }
    return names;
}

// Running or ready to run.
int BusyThreads(const QByteArray& process) {
    int busy = 0;
    const QByteArray tasks = "/proc/" + process + "/task/";
    for (const QByteArray& thread : NamesBelow(tasks)) {
        const QByteArray status = testing::Contents(QFile::decodeName(tasks + thread + "/stat"));
        busy += status.mid(status.lastIndexOf(')') + 2).startsWith('R') ? 1 : 0;
        const QByteArray children =
            testing::Contents(QFile::decodeName(tasks + thread + "/children"));
        for (const QByteArray& child : children.simplified().split(' ')) {
            busy += child.isEmpty() ? 0 : BusyThreads(child);
        }
    }
    return busy;
}

// Of the moments in which anything was busy those with more than so many threads, percent.
int TooBusy(QProcess& program, int cores) {
    int all = 0, tooBusy = 0;
    while (program.state() == QProcess::Running) {
        const int busy = BusyThreads(QByteArray::number(program.processId()));
        all += busy > 0 ? 1 : 0;
        tooBusy += busy > cores ? 1 : 0;
        program.waitForFinished(1);
    }
    EXPECT_GT(all, 20);
    return 100 * tooBusy / std::max(all, 1);
}

// Percent of the moments may count more: where work is handed on two threads are ready for an
// instant, which a machine that has other things to do draws out. Two pools of threads beside the
// decoders were too many in more than half of all moments.
constexpr int limit = 40;

TEST(Jobs, NoMoreThreadsAreBusyThanCoresMayBeUsed) {
    const testing::PictureFolder files;
    QStringList photos;
    for (int n = 0; n < 10; ++n) {
        photos.append(files.Picture(Text("%1.jpg").arg(n), OutputType::Jpeg, {3000, 2000}));
    }
    for (const int jobs : {1, 2, 3}) {
        int least = 100;
        for (int attempt = 0; attempt < 3 && least > limit; ++attempt) {
            QProcess program;
            program.start(Text(VARNEL_CONVERT),
                          QStringList{Text("--jobs=%1").arg(jobs), Text("--force"),
                                      Text("--camera=Canon/EOS 5D"),
                                      Text("--lens=Sigma/EX 8 mm f:3.5"), Text("--type=jpeg")} +
                              photos);
            ASSERT_TRUE(program.waitForStarted());
            least = std::min(least, TooBusy(program, jobs));
            EXPECT_EQ(program.exitCode(), 0);
        }
        EXPECT_LE(least, limit) << jobs;
    }
}

}  // namespace
}  // namespace varnel
