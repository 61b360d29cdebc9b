// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/reading_box.h"

#include <QApplication>
#include <QFileInfo>

namespace varnel {

namespace {

constexpr qint64 patience = 700;  // milliseconds; most photos are read by then

}  // namespace

void ReadingBox::Begin(const QString& path) {
    path_ = path;
    sinceBegin_.start();
}

bool ReadingBox::Continue() {
    if (box_) {
        QCoreApplication::processEvents();
        return !box_->wasCanceled();
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (sinceBegin_.elapsed() > patience) {
        box_ = std::make_unique<QProgressDialog>(
            path_.isEmpty() ? QCoreApplication::translate("ReadingBox", "Reading photos ...")
                            : QCoreApplication::translate("ReadingBox", "Reading %1 ...")
                                  .arg(QFileInfo(path_).fileName()),
            QCoreApplication::translate("ReadingBox", "Cancel"), 0, 0,
            QApplication::activeWindow());
        box_->setWindowTitle(QStringLiteral("Varnel"));
        box_->setWindowModality(Qt::ApplicationModal);
        box_->setMinimumDuration(0);
        box_->show();
    }
    return true;
}

}  // namespace varnel
