// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The scripts for many photos, run as a person or a scheduler runs them.

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "tests/support/files.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Recipes : public ::testing::Test {
  protected:
    Recipes() {
        QByteArray list;
        for (int n = 0; n < 23; ++n) {
            list += files_.Picture(Q("photo %1.jpg").arg(n), FIF_JPEG).toUtf8() + '\n';
        }
        testing::WriteFile(files_.Path(Q("photos.txt")), list);
        Run(Q("array-job"), {{"SLURM_ARRAY_TASK_ID", "0"}, {"COUNT", "1"}}, Q("at once"));
        expected_ = Outputs(Q("at once"));
    }
    int Run(const QString& recipe, const QList<std::pair<const char*, const char*>>& variables,
            const QString& folder) {
        QProcess job;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Q("PATH"), Q(VARNEL_PROGRAMS ":") + environment.value(Q("PATH")));
        environment.insert(Q("XDG_CONFIG_HOME"), files_.Path(Q("settings")));
        environment.insert(Q("HOME"), files_.Path({}));
        for (const auto& [name, value] : variables) {
            environment.insert(Q(name), Q(value));
        }
        job.setProcessEnvironment(environment);
        job.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        job.start(Q(VARNEL_RECIPES "/") + recipe,
                  {files_.Path(Q("photos.txt")), files_.Path(folder), Q("--camera"),
                   Q("Canon/EOS 5D"), Q("--lens"), Q("Sigma/EX 8 mm f:3.5")});
        job.waitForFinished(120'000);
        return job.exitCode();
    }
    std::map<QString, QByteArray> Outputs(const QString& folder) const {
        std::map<QString, QByteArray> outputs;
        for (const QString& name : QDir(files_.Path(folder)).entryList(QDir::Files)) {
            outputs[name] = testing::Contents(files_.Path(folder) + u'/' + name);
        }
        return outputs;
    }

    testing::PictureFolder files_;
    std::map<QString, QByteArray> expected_;
};

TEST_F(Recipes, ArrayTasksTogetherMakeWhatOneRunMakesAndMendWhatIsMissing) {
    ASSERT_EQ(expected_.size(), 23U);
    for (const char* task : {"0", "1", "2"}) {
        EXPECT_EQ(Run(Q("array-job"), {{"SLURM_ARRAY_TASK_ID", task}, {"COUNT", "3"}}, Q("tasks")),
                  0);
    }
    EXPECT_TRUE(Outputs(Q("tasks")) == expected_);
    QFile::remove(files_.Path(Q("tasks/photo 4.Varnel.TIF")));
    EXPECT_EQ(Run(Q("array-job"), {{"PBS_ARRAY_INDEX", "2"}, {"COUNT", "3"}}, Q("tasks")), 0);
    EXPECT_TRUE(Outputs(Q("tasks")) == expected_);
    EXPECT_NE(Run(Q("array-job"), {{"COUNT", "3"}}, Q("tasks")), 0) << "no task number";
}

TEST_F(Recipes, ParallelJobsMakeTheSame) {
    if (QStandardPaths::findExecutable(Q("parallel")).isEmpty()) {
        GTEST_SKIP() << "GNU parallel is not installed";
    }
    EXPECT_EQ(Run(Q("parallel-job"), {}, Q("parallel")), 0);
    EXPECT_TRUE(Outputs(Q("parallel")) == expected_);
}

}  // namespace
}  // namespace varnel
