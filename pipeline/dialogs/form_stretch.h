// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The stretch dialog: opens a photo, widens or narrows its rows by a curve with the result in view,
// and saves it at full size. Throws nothing; what it is short of becomes a message.
#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <memory>

#include "base/notices.h"
#include "base/thread_runner.h"
#include "pipeline/conversion/save_meanwhile.h"
#include "pipeline/photos/file_chooser.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/render/stretch.h"
#include "state/settings/general_settings.h"

namespace Ui {
class FormStretch;
}

namespace varnel {

class FormStretch : public QDialog {
    Q_OBJECT

  public:
    // Asks for the path of a photo to open, beginning in the folder; empty when cancelled.
    using PhotoChooser = std::function<QString(const QString& folder)>;

    FormStretch(const GeneralSettings& settings, PhotoLoader& photos, PhotoChooser choosePhoto,
                FileChooser& fileChooser, ThreadRunner& pool, Notices& notices,
                QWidget* parent = nullptr);
    ~FormStretch() override;

    // Shows a message when the photo cannot be read. Ignored while a photo is read or a picture
    // saved.
    void Open(const QString& path);
    // While a picture is saved the dialog closes at its end.
    void reject() override;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void SetUpSliders();
    void ConnectControls();
    StretchCurve Curve() const;
    void ShowValues();
    void FitPreview();
    void DrawPreview();
    void ShowShortage(const QString& shortage);  // when it is not empty
    void Save();
    void RenderAndSave(const SaveChoice& choice);
    SaveResult Rendered(const SaveChoice& choice);
    void SetBusy(bool busy);

    std::unique_ptr<Ui::FormStretch> ui_;
    const GeneralSettings& settings_;
    PhotoLoader& photos_;
    PhotoChooser choosePhoto_;
    FileChooser& fileChooser_;
    Notices& notices_;
    QString path_;
    BitmapHandle screenCopy_;  // the photo at most as large as a screen, for quick resizing
    Bitmaps bitmaps_;
    ThreadRunner& pool_;
    QTimer drawTimer_{this};  // fires when no event waits any more: the newest values are drawn
    QTimer fitTimer_{this};
    CancelFlag cancelled_ = false;
    bool busy_ = false;
    bool closeWanted_ = false;
};

}  // namespace varnel
