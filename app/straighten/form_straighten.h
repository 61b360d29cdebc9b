// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The straighten dialog: edges on photos that should be straight, and the lens that makes them so,
// measured while they are chosen. Throws nothing; what it is short of is said in a line.
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

#include "app/straighten/edge_view.h"
#include "app/view/dialogs.h"
#include "gear/lens/lens_folder.h"

namespace Ui {
class FormStraighten;
}

namespace varnel {

class FormStraighten : public QDialog {
    Q_OBJECT

  public:
    // Asks for the paths of photos, beginning in the folder; empty when cancelled.
    using PhotosChooser = std::function<QStringList(const QString& folder)>;
    struct Ports {
        PhotoLoader& photos;
        PhotosChooser choosePhotos;
        ThreadRunner& pool;
        LensFolder lenses;
    };

    FormStraighten(Ports ports, std::optional<PhotoToMeasure> photo, QWidget* parent = nullptr);
    ~FormStraighten() override;

    // Shows a line when a photo cannot be taken.
    void AddPhotos(const QStringList& paths);
    // What was chosen when it is closed.
    const std::optional<MeasuredLensUse>& Use() const { return use_; }
    const StraightenModel& Model() const { return model_; }
    // Ends the measuring.
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void SetUpPictures();
    void SetUpControls();
    void ConnectButtons();
    QString Added(const QString& path);  // or why not
    void Show();                         // all of the model
    void ShowStatus();
    void ShowTable();
    void ShowPhoto();
    void DrawStraight();
    void OnSelected();
    void ShowMenu(int edge, QPoint position);
    void TagSelected(EdgeTag tag);
    void ToggleSelected();
    int Selected() const;  // -1 for none
    void Select(int edge);
    void Know();
    void Save();
    void Finish(bool forAll);
    QString LensName() const;
    void Say(const QString& text);

    std::unique_ptr<Ui::FormStraighten> ui_;
    Ports ports_;
    bool forList_;  // a photo of the list can be given the lens
    StraightenModel model_;
    EdgeView* edges_;
    PictureBox* straight_;
    Bitmaps bitmaps_;
    QTimer drawTimer_{this};  // fires when no event waits any more
    QString said_;            // what is shown while nothing else is to be said
    bool showing_ = false;    // the table is filled
    std::optional<MeasuredLensUse> use_;
};

}  // namespace varnel
