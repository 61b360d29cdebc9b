// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/convert_arguments.h"

#include <gtest/gtest.h>

#include <QDir>
#include <sstream>

#include "app/start/console_start.h"
#include "app/start/revision_age.h"
#include "gear/store/gear_store.h"
#include "state/settings/setting_names.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"

namespace varnel {
namespace {

using testing::Contents;

const QDate quietDay(2023, 2, 1);

// Runs varnel with a store of its own, on a day without a reminder.
class ConsoleStart : public ::testing::Test {
  protected:
    std::variant<QStringList, int> Start(const QStringList& arguments, QDate today = quietDay) {
        out_.str({});
        err_.str({});
        return StartOnConsole(QStringList{QStringLiteral("varnel")} + arguments, store_, today,
                              {out_, err_, false, "varnel"});
    }
    int ExitCode(const QStringList& arguments, QDate today = quietDay) {
        const auto outcome = Start(arguments, today);
        return std::holds_alternative<int>(outcome) ? std::get<int>(outcome) : -1;
    }
    // Two gears that make different pictures; the second one is the default.
    void DefineGears() {
        GearTable table;
        table.Resize(2);
        for (const int n : {1, 2}) {
            table(n).GearName = QStringLiteral("gear %1").arg(n);
            table(n).CameraBrand = QStringLiteral("Canon");
            table(n).CameraModel = QStringLiteral("EOS 5D");
            table(n).LensBrand = QStringLiteral("Sigma");
            table(n).LensModel = QStringLiteral("EX 8 mm f:3.5");
            table(n).GearRatio = n == 1 ? 150.0F : 100.0F;
            table(n).hAOV = 180.0F;
        }
        table.DefaultGearName = QStringLiteral("gear 2");
        SaveGear(store_, table);
    }
    void ChooseType(const char* type) {
        store_.Save(setting::General, setting::FileType, QString::fromLatin1(type));
    }
    QString Photo(const char* name) const {
        return files_.Picture(QString::fromUtf8(name), OutputType::Bmp);
    }
    std::string Line(const char* name) const {
        return files_.Path(QString::fromUtf8(name)).toStdString() + "\n";
    }
    QStringList Files() const { return QDir(files_.Path({})).entryList(QDir::Files); }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

TEST_F(ConsoleStart, WritesBesideThePhotoInTheStoredType) {
    DefineGears();
    const QString photo = Photo("IMG.bmp");
    // The first-run setting is the text "JPG", which means TIFF.
    EXPECT_EQ(ExitCode({photo}), exitAllWritten);
    EXPECT_EQ(out_.str(), Line("IMG.Varnel.TIF"));
    ChooseType("PNG");
    EXPECT_EQ(ExitCode({photo}), exitAllWritten);
    EXPECT_EQ(out_.str(), Line("IMG.Varnel.PNG"));
    EXPECT_EQ(err_.str(), "");
    EXPECT_EQ(testing::LoadPicture(files_.Path(QStringLiteral("IMG.Varnel.PNG"))).outcome,
              LoadOutcome::Loaded);
}

TEST_F(ConsoleStart, TakesTheDefaultGearAndElseTheFirst) {
    DefineGears();
    ChooseType("BMP");
    const QString photo = Photo("IMG.bmp");
    const auto picture = [&](const char* defaultGear) {
        store_.Save(setting::Gear, setting::DefaultGearName, QString::fromLatin1(defaultGear));
        EXPECT_EQ(ExitCode({photo}), exitAllWritten);
        return Contents(files_.Path(QStringLiteral("IMG.Varnel.BMP")));
    };
    const QByteArray first = picture("gear 1");
    EXPECT_NE(first, picture("gear 2"));
    EXPECT_EQ(first, picture("a gear that is gone"));
}

TEST_F(ConsoleStart, ReplacesOlderResultsButNoPhotoOfTheCommand) {
    DefineGears();
    ChooseType("PNG");
    const QString photo = Photo("IMG.bmp");
    const QString older = files_.Text(QStringLiteral("IMG.Varnel.PNG"));
    const QByteArray text = Contents(older);
    EXPECT_EQ(ExitCode({photo}), exitAllWritten);
    EXPECT_NE(Contents(older), text);

    const QByteArray before = Contents(older);
    const QByteArray original = Contents(photo);
    store_.Save(setting::Gear, setting::DefaultGearName, QStringLiteral("gear 1"));
    EXPECT_EQ(ExitCode({photo, older}), exitSomeFailed);
    EXPECT_EQ(err_.str(),
              "varnel: " + older.toStdString() + ": this is one of the photos to convert\n");
    EXPECT_EQ(out_.str(), Line("IMG.Varnel.Varnel.PNG"));
    EXPECT_EQ(Contents(older), before);
    EXPECT_EQ(Contents(photo), original);
}

TEST_F(ConsoleStart, WithoutAGearItSaysSoAndWritesNothing) {
    const QString photo = Photo("IMG.bmp");
    const char* const text = "varnel: Please define at least one camera + lens combination ...\n";
    EXPECT_EQ(ExitCode({photo}), exitUsage);
    EXPECT_EQ(err_.str(), text);
    // A store whose count of gears is 0.
    store_.Save(setting::Gear, setting::DefaultGearName, QStringLiteral("gone"));
    store_.Save(setting::Gear, setting::NumGear, QStringLiteral("0"));
    EXPECT_EQ(ExitCode({photo}), exitUsage);
    EXPECT_EQ(err_.str(), text);
    EXPECT_EQ(Files(), QStringList{QStringLiteral("IMG.bmp")});
}

TEST_F(ConsoleStart, BadPhotosAreNamedAndTheOthersDone) {
    DefineGears();
    const QString good = Photo("good.bmp");
    const QString missing = files_.Path(QStringLiteral("none.jpg"));
    EXPECT_EQ(ExitCode({missing, good}), exitSomeFailed);
    EXPECT_EQ(err_.str(), "varnel: " + missing.toStdString() + ": there is no such file\n");
    EXPECT_EQ(out_.str(), Line("good.Varnel.TIF"));
}

TEST_F(ConsoleStart, TheReminderGoesToStderrOnceAMonth) {
    DefineGears();
    const QString photo = Photo("IMG.bmp");
    const QDate oldEnough = ThisRelease().date.addMonths(7);
    EXPECT_EQ(ExitCode({photo}, oldEnough), exitAllWritten);
    EXPECT_EQ(err_.str().find("This version of Varnel is now more than 7 months old.\n"), 0U);
    EXPECT_EQ(out_.str(), Line("IMG.Varnel.TIF"));
    EXPECT_EQ(ExitCode({photo}, oldEnough.addDays(1)), exitAllWritten);
    EXPECT_EQ(err_.str(), "");
}

TEST_F(ConsoleStart, WhatNeedsNoPhotoIsAnsweredAtOnce) {
    EXPECT_EQ(ExitCode({QStringLiteral("--version")}, {2023, 8, 1}), exitAllWritten);
    EXPECT_EQ(out_.str(), "varnel " VARNEL_VERSION "\n");
    EXPECT_EQ(ExitCode({QStringLiteral("--help")}, {2023, 8, 1}), exitAllWritten);
    EXPECT_EQ(out_.str().find("Usage: varnel [--open] [FILE...]\n"), 0U);
    EXPECT_EQ(ExitCode({QStringLiteral("--nonsense")}), exitUsage);
    EXPECT_EQ(err_.str(), "varnel: unknown option \"--nonsense\"; see --help\n");
    EXPECT_EQ(out_.str(), "");
    // None of them is a start that the reminder counts.
    EXPECT_FALSE(store_.Contains(setting::Revision, setting::RevisionAge));
}

TEST_F(ConsoleStart, AWindowGetsItsFilesAndTheReminderIsLeftToIt) {
    const auto outcome = Start(
        {QStringLiteral("--open"), QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}, {2023, 8, 1});
    ASSERT_TRUE(std::holds_alternative<QStringList>(outcome));
    EXPECT_EQ(std::get<QStringList>(outcome),
              (QStringList{QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}));
    EXPECT_FALSE(store_.Contains(setting::Revision, setting::RevisionAge));
    EXPECT_EQ(out_.str() + err_.str(), "");
}

}  // namespace
}  // namespace varnel
