// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The scripts for many photos, run as a person or a scheduler runs them.

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class Recipes : public ::testing::Test {
  protected:
    Recipes() {
        QByteArray list;
        for (int n = 0; n < 23; ++n) {
            list += files_.Picture(Text("photo %1.jpg").arg(n), OutputType::Jpeg).toUtf8() + '\n';
        }
        testing::WriteFile(files_.Path(Text("photos.txt")), list);
        Run(Text("array-job"), {{"SLURM_ARRAY_TASK_ID", "0"}, {"COUNT", "1"}}, Text("at once"));
        expected_ = Outputs(Text("at once"));
    }
    int Run(const QString& recipe, const QList<std::pair<const char*, const char*>>& variables,
            const QString& folder, const QStringList& more = {}) {
        return RunProgram(
            Text(VARNEL_RECIPES "/") + recipe, variables,
            QStringList{files_.Path(Text("photos.txt")), files_.Path(folder), Text("--camera"),
                        Text("Canon/EOS 5D"), Text("--lens"), Text("Sigma/EX 8 mm f:3.5")} +
                more);
    }
    int RunProgram(const QString& program,
                   const QList<std::pair<const char*, const char*>>& variables,
                   const QStringList& arguments) {
        QProcess job;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Text("PATH"),
                           Text(VARNEL_PROGRAMS ":") + environment.value(Text("PATH")));
        environment.insert(Text("XDG_CONFIG_HOME"), files_.Path(Text("settings")));
        environment.insert(Text("HOME"), files_.Path({}));
        for (const auto& [name, value] : variables) {
            environment.insert(Text(name), Text(value));
        }
        job.setProcessEnvironment(environment);
        job.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        job.start(program, arguments);
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
        EXPECT_EQ(
            Run(Text("array-job"), {{"SLURM_ARRAY_TASK_ID", task}, {"COUNT", "3"}}, Text("tasks")),
            0);
    }
    EXPECT_TRUE(Outputs(Text("tasks")) == expected_);
    QFile::remove(files_.Path(Text("tasks/photo 4.Varnel.TIF")));
    EXPECT_EQ(Run(Text("array-job"), {{"PBS_ARRAY_INDEX", "2"}, {"COUNT", "3"}}, Text("tasks")), 0);
    EXPECT_TRUE(Outputs(Text("tasks")) == expected_);
    EXPECT_NE(Run(Text("array-job"), {{"COUNT", "3"}}, Text("tasks")), 0) << "no task number";
}

TEST_F(Recipes, ParallelJobsMakeTheSame) {
    if (QStandardPaths::findExecutable(Text("parallel")).isEmpty()) {
        GTEST_SKIP() << "GNU parallel is not installed";
    }
    EXPECT_EQ(Run(Text("parallel-job"), {}, Text("parallel")), 0);
    EXPECT_TRUE(Outputs(Text("parallel")) == expected_);
}

TEST_F(Recipes, SnakemakeKeepsAManifestAndDoesNothingTwice) {
    const QString snakemake = QStandardPaths::findExecutable(Text("snakemake"));
    if (snakemake.isEmpty()) {
        GTEST_SKIP() << "Snakemake is not installed";
    }
    const auto make = [&](const QStringList& more) {
        const QStringList arguments{Text("--quiet"),     Text("all"),
                                    Text("--snakefile"), Text(VARNEL_RECIPES "/Snakefile"),
                                    Text("--directory"), files_.Path({}),
                                    Text("--cores"),     Text("2")};
        const QStringList config{
            Text("--config"), Text("photos=photos.txt"), Text("out=made"),
            Text("options=--camera 'Canon/EOS 5D' --lens 'Sigma/EX 8 mm f:3.5'")};
        return RunProgram(snakemake, {}, arguments + more + config);
    };
    EXPECT_EQ(make({}), 0);
    const QString manifest = files_.Path(Text("made/manifest.jsonl"));
    EXPECT_EQ(testing::Contents(manifest).count("\"status\":\"converted\""), 23);
    std::map<QString, QByteArray> made = Outputs(Text("made"));
    EXPECT_EQ(made.erase(Text("manifest.jsonl")), 1U);
    EXPECT_TRUE(made == expected_);
    EXPECT_EQ(make({Text("check")}), 0);
    // One share is lost: the other one's results stay as they lie there.
    QFile::remove(files_.Path(Text("made/shares/2-2.jsonl")));
    const QString kept = files_.Path(Text("made/photo 0.Varnel.TIF"));
    testing::WriteFile(kept, "changed");
    EXPECT_EQ(make({}), 0);
    EXPECT_EQ(testing::Contents(kept), "changed");
    EXPECT_NE(make({Text("check")}), 0) << "that is not what was written";
}

TEST_F(Recipes, OfPhotosThatWouldHaveOneResultTheFirstHasIt) {
    const QString png = files_.Picture(Text("photo 1.png"), OutputType::Png);
    testing::WriteFile(files_.Path(Text("photos.txt")),
                       (png + u'\n' + files_.Path(Text("photo 1.jpg")) + u'\n').toUtf8());
    const bool hasParallel = !QStandardPaths::findExecutable(Text("parallel")).isEmpty();
    for (const char* recipe : {"array-job", "parallel-job"}) {
        if (!hasParallel && recipe[0] == 'p') {
            continue;
        }
        const QList<std::pair<const char*, const char*>> second{{"SGE_TASK_ID", "2"},
                                                                {"COUNT", "2"}};
        EXPECT_EQ(Run(Text(recipe), second, Text(recipe)), 1);
        EXPECT_EQ(Outputs(Text(recipe)).size(), recipe[0] == 'a' ? 0U : 1U);
        EXPECT_EQ(Run(Text(recipe), second, Text(recipe), {Text("--keep-ending")}), 0);
        EXPECT_EQ(Outputs(Text(recipe)).size(), recipe[0] == 'a' ? 1U : 3U);
    }
}

}  // namespace
}  // namespace varnel
