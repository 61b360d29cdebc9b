// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of windows, kept in the folder that VARNEL_SCREENSHOTS names; without it none are.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

namespace varnel::testing {

inline void KeepPicture(QWidget* widget, const char* name) {
    QApplication::processEvents();
    const QString folder = qEnvironmentVariable("VARNEL_SCREENSHOTS");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(widget->grab().save(folder + u'/' + QString::fromUtf8(name)));
    }
}

// A folder with the four sample photos, made on first use, 900 pixels wide.
inline QString SampleFolder() {
    static const QTemporaryDir folder;
    static const bool made = [] {
        QProcess samples;
        samples.start(QStringLiteral(VARNEL_SAMPLE),
                      {folder.path(), QStringLiteral("--width"), QStringLiteral("900")});
        return samples.waitForFinished(120000) && samples.exitCode() == 0;
    }();
    EXPECT_TRUE(made);
    return folder.path();
}

}  // namespace varnel::testing
