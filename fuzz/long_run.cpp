// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-fuzz-long: any number of damaged files through the decoder process. Fails when one of them
// does not get a proper answer.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <mutex>
#include <thread>

#include "tests/support/files.h"
#include "tests/support/seeds/damage_tally.h"

namespace varnel {

namespace {

struct Run {
    std::uint64_t files = 0;
    std::uint64_t seed = 0;
    QString type;  // empty: all
    QString keep;  // a folder for files without a proper answer, empty: none
};

class LongRun {
  public:
    explicit LongRun(const Run& run) : run_(run) {
        for (const testing::SeedFile& seed : testing::SeedFiles()) {
            if (run.type.isEmpty() || run.type.toStdString() == seed.Type()) {
                seeds_.push_back(seed);
            }
        }
    }

    // True when every file got a proper answer.
    bool Go() {
        if (seeds_.empty()) {
            std::fprintf(stderr, "there is no such type\n");
            return false;
        }
        constexpr std::uint64_t readers = 2;
        std::vector<std::thread> threads;
        for (std::uint64_t part = 0; part < readers; ++part) {
            threads.emplace_back([this, part] { Read(part, readers); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        std::printf("%s%d without a proper answer\n", tally_.Table().c_str(), broken_);
        return broken_ == 0;
    }

  private:
    void Read(std::uint64_t part, std::uint64_t parts) {
        constexpr int secondsPerPhoto = 5;
        testing::DamageTrial trial(secondsPerPhoto);
        for (std::uint64_t number = part; number < run_.files; number += parts) {
            const auto file = testing::MakeDamagedFile(seeds_, run_.seed, number);
            if (const QString error = trial.Try(file); !error.isEmpty()) {
                Report(number, file, error);
            }
        }
        const std::scoped_lock lock(mutex_);
        tally_.Add(trial.Tally());
    }
    void Report(std::uint64_t number, const testing::DamagedFile& file, const QString& error) {
        const std::scoped_lock lock(mutex_);
        ++broken_;
        std::printf("%llu, from %s: %s\n", static_cast<unsigned long long>(number),
                    file.seed.name.c_str(), error.toLocal8Bit().constData());
        if (!run_.keep.isEmpty()) {
            const QString name = QStringLiteral("%1-%2").arg(run_.seed).arg(number);
            testing::WriteFile(QDir(run_.keep).filePath(name), file.bytes);
        }
    }

    Run run_;
    std::vector<testing::SeedFile> seeds_;
    std::mutex mutex_;
    testing::DamageTally tally_;
    int broken_ = 0;
};

Run RunFrom(const QCoreApplication& application) {
    QCommandLineParser parser;
    const QCommandLineOption files(QStringLiteral("files"), QStringLiteral("How many files."),
                                   QStringLiteral("N"), QStringLiteral("100000"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Which damage."),
                                  QStringLiteral("N"), QStringLiteral("2"));
    const QCommandLineOption type(QStringLiteral("type"), QStringLiteral("Of one type only."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption keep(QStringLiteral("keep"),
                                  QStringLiteral("Where to put files without a proper answer."),
                                  QStringLiteral("FOLDER"));
    parser.addHelpOption();
    parser.addOptions({files, seed, type, keep});
    parser.process(application);
    if (parser.isSet(keep)) {
        QDir().mkpath(parser.value(keep));
    }
    return {parser.value(files).toULongLong(), parser.value(seed).toULongLong(), parser.value(type),
            parser.value(keep)};
}

}  // namespace

}  // namespace varnel

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return varnel::LongRun(varnel::RunFrom(application)).Go() ? 0 : 1;
}
