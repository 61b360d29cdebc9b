// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The shipped programs as processes, with no display to be found.

#include <gtest/gtest.h>

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/store/gear_store.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class Program : public ::testing::Test {
  protected:
    // Runs a program of ours with a configuration folder of its own; returns its exit code.
    int Run(const char* program, const QStringList& arguments, const char* locale = "C.UTF-8") {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(Text(name));
        }
        environment.insert(Text("XDG_CONFIG_HOME"), files_.Path(Text("config")));
        environment.insert(Text("LC_ALL"), Text(locale));
        process.setProcessEnvironment(environment);
        process.start(Text(program), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        out_ = QString::fromUtf8(process.readAllStandardOutput());
        err_ = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    void DefineGear() {
        QSettings settings(files_.Path(Text("config/Varnel/Varnel.conf")), QSettings::IniFormat);
        const std::pair<const char*, const char*> values[] = {{"NumGear", "1"},
                                                              {"DefaultGearName", "mine"},
                                                              {"GearName1", "mine"},
                                                              {"GearCameraBrand1", "Canon"},
                                                              {"GearCameraModel1", "EOS 5D"},
                                                              {"GearLensBrand1", "Sigma"},
                                                              {"GearLensModel1", "EX 8 mm f:3.5"}};
        for (const auto& [key, value] : values) {
            settings.setValue(Text("Gear/") + Text(key), Text(value));
        }
    }
    testing::PictureFolder files_;
    QString out_, err_;
};

TEST_F(Program, VarnelConvertsItsArgumentsWithoutADisplay) {
    const QString photo = files_.Picture(Text("Küste.png"), OutputType::Png);
    EXPECT_EQ(Run(VARNEL_PROGRAM, {photo}), 2);
    EXPECT_TRUE(err_.contains(Text("Please define at least one camera + lens combination ...")));
    DefineGear();
    for (const char* const locale : {"C", "C.UTF-8"}) {
        EXPECT_EQ(Run(VARNEL_PROGRAM, {photo}, locale), 0) << err_.toStdString();
        EXPECT_EQ(out_, files_.Path(Text("Küste.Varnel.TIF\n")));
        EXPECT_EQ(testing::LoadPicture(files_.Path(Text("Küste.Varnel.TIF"))).outcome,
                  LoadOutcome::Loaded);
    }
    EXPECT_EQ(Run(VARNEL_PROGRAM, {files_.Path(Text("none.jpg")), photo}), 1);
    EXPECT_TRUE(err_.contains(Text("none.jpg: there is no such file")));
    EXPECT_EQ(Run(VARNEL_PROGRAM, {Text("--help")}), 0);
    EXPECT_EQ(Run(VARNEL_PROGRAM, {Text("--version")}), 0);
    EXPECT_EQ(Run(VARNEL_PROGRAM, {Text("--nonsense")}), 2);
    EXPECT_EQ(err_.count(u'\n'), 1);
}

TEST_F(Program, VarnelConvertTakesItsGearFromTheUsersStore) {
    const QString photo = files_.Picture(Text("IMG.tif"), OutputType::Tiff);
    DefineGear();
    EXPECT_EQ(Run(VARNEL_CONVERT_PROGRAM, {Text("--projection=all"), Text("--type=png"), photo}),
              0);
    EXPECT_EQ(out_.count(u'\n'), 4);
    EXPECT_TRUE(err_.isEmpty()) << err_.toStdString();  // nothing of what libraries say
    EXPECT_EQ(Run(VARNEL_CONVERT_PROGRAM, {Text("--list-gears")}), 0);
    EXPECT_EQ(out_, Text("mine\n"));
}

TEST_F(Program, BothSayOnceThatTheSettingsWereDamagedAndUseTheCopy) {
    const QString settings = files_.Path(Text("config/Varnel/Varnel.conf"));
    const QString photo = files_.Picture(Text("IMG.png"), OutputType::Png);
    DefineGear();
    const std::pair<const char*, QString> runs[] = {{VARNEL_CONVERT_PROGRAM, Text("--list-gears")},
                                                    {VARNEL_PROGRAM, photo}};
    for (const auto& [program, argument] : runs) {
        EXPECT_EQ(Run(program, {argument}), 0) << err_.toStdString();
        testing::WriteFile(settings, testing::Contents(settings).first(100));
        for (const int times : {1, 0}) {
            EXPECT_EQ(Run(program, {argument}), 0) << err_.toStdString();
            EXPECT_EQ(err_.count(Text("Varnel.conf: the settings were damaged (cut short); their "
                                      "last good copy is used")),
                      times);
        }
    }
}

}  // namespace
}  // namespace varnel
