// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch dialog with a queue, used as a person does.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QTreeView>

#include "pipeline/dialogs/form_batch.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel::testing {

// A queue of photos in "in", written into "out".
class FormBatchTest : public DialogTest<FormBatch> {
  protected:
    FormBatchTest() {
        QDir(files.Path({})).mkdir(Text("in"));
        QDir(files.Path({})).mkdir(Text("out"));
        choices.folder = Out();
        choices.type = OutputType::Bmp;
    }
    QString Out() const { return QDir::cleanPath(files.Path(Text("out"))); }
    QStringList OutNames() const { return QDir(Out()).entryList(QDir::Files, QDir::Name); }
    void Queue(const QString& name, Projection projection = Projection::Equidistance) {
        queue.Append(FisheyePhoto(files.Path(Text("in")), name, projection));
    }
    // Good photos named 01.bmp and so on.
    void QueuePhotos(int count) {
        for (int n = 1; n <= count; ++n) {
            const QString name = Text("%1.bmp").arg(n, 2, 10, QChar(u'0'));
            files.Picture(Text("in/") + name, OutputType::Bmp);
            Queue(name);
        }
    }
    void Open() {
        form = std::make_unique<FormBatch>(queue, job, settings, notices,
                                           [this](int length) { lengths.append(length); });
        form->show();
    }
    void Type(const char* box, const char* text) const {
        QTest::keyClicks(&The<QLineEdit>(box), Text(text));
    }
    // The box in which a folder is being named.
    static QLineEdit* InEditor() {
        auto* const box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        return box != nullptr && qobject_cast<QTreeView*>(box->parent()->parent()) ? box : nullptr;
    }
    // Which of the four buttons can be seen.
    QString Buttons() const {
        QStringList names;
        for (const char* name : {"CmdBatchProcess", "CmdStop", "CmdCancel", "CmdClearBatchQue"}) {
            if (The<QPushButton>(name).isVisible()) {
                names.append(Text(name));
            }
        }
        return names.join(u' ');
    }
    // Clicks the start button and does that while the image after done others is in work.
    template <class Action>
    void RunAnd(int done, Action action) {
        bool acted = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, form.get(), [&] {
            if (!acted && Label("LabelProgress").startsWith(Text("%1 of ").arg(done)) &&
                job.IsRunning() && job.ProgressOf(done + 1).state == EntryState::Working) {
                acted = true;
                action();
            }
        });
        timer.start(0);
        Click("CmdBatchProcess");
        EXPECT_TRUE(acted);
    }

    PictureFolder files;
    RecordArray<ImageRecord> queue;
    BatchJob job;
    BatchChoices& choices = job.choices;
    GeneralSettings settings;
    QList<int> lengths;
};

}  // namespace varnel::testing
