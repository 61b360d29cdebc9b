// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/sample_tools.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QStandardPaths>
#include <QTimer>

#include "app/panels/menu_entry.h"
#include "gear/catalogue/gear_catalogue.h"

namespace varnel {

namespace {

QString SampleName() {
    return QStringLiteral("sample-circular.jpg");
}

// Where the user finds it, because results are first proposed beside their photos.
QString SamplePath() {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).filePath(QStringLiteral("Varnel/") + SampleName());
}

GearNames SampleGear() {
    return {QStringLiteral("Canon"), QStringLiteral("EOS 5D"), QStringLiteral("Sigma"),
            QStringLiteral("EX 8 mm f:3.5")};
}

}  // namespace

SampleTools::SampleTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                         Workspace& workspace, const WorkingState& state)
    : QObject(window), parts_(parts), view_(view), workspace_(workspace), state_(state) {
    QMenu* const file = window->menuBar()->actions().constFirst()->menu();
    file->addSeparator();
    QAction* const entry = AddMenuEntry(file, "CmdOpenSample", tr("Open the sa&mple"));
    connect(entry, &QAction::triggered, this, &SampleTools::Open);
    maker_.setProgram(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("varnel-sample")));
    connect(&maker_, &QProcess::finished, this, &SampleTools::OnMade);
    connect(&maker_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            view_.ShowStatus(
                tr("The sample photo could not be made: %1 did not start.").arg(maker_.program()));
        }
    });
}

SampleTools::~SampleTools() {
    maker_.disconnect(this);
    maker_.kill();
    maker_.waitForFinished(1000);
}

void SampleTools::Open() {
    if (maker_.state() != QProcess::NotRunning) {
        return;
    }
    const QFileInfo sample(SamplePath());
    if (sample.exists()) {
        Add();
        return;
    }
    QDir().mkpath(sample.path());
    view_.ShowStatus(tr("Drawing the sample photo, which takes a few seconds ..."));
    maker_.setArguments({sample.path(), QStringLiteral("--only"), SampleName()});
    maker_.start();
}

void SampleTools::OnMade() {
    if (QFileInfo::exists(SamplePath())) {
        view_.ShowStatus({});
        Add();
    } else {
        const QString said = QString::fromUtf8(maker_.readAllStandardError()).trimmed();
        view_.ShowStatus(tr("The sample photo could not be made: %1").arg(said));
    }
}

void SampleTools::Add() {
    if (workspace_.model.activity.Busy() || view_.Locked() ||
        QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(200, this, &SampleTools::Add);
        return;
    }
    workspace_.adder.AddFiles({SamplePath()});
    const int last = state_.Images.UpperBound();
    if (workspace_.model.list.CurrentLine() != last - 1) {
        parts_.list->List()->setCurrentRow(last - 1);
    }
    for (int gear = 1; gear <= state_.Gear.UpperBound(); ++gear) {
        if (NamesOf(state_.Gear(gear)) == SampleGear()) {
            if (state_.Images(last).GearName != state_.Gear(gear).GearName) {
                workspace_.gears.Use(gear);
            }
            return;
        }
    }
}

}  // namespace varnel
