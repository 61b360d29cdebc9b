// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gears that photos get from their own files: those that were added are read in the background,
// one after the other, and take their gear or a guess as one step that can be undone. Throws
// nothing but for want of memory.
#pragma once

#include <QHash>
#include <QSet>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

#include "app/workspace/workspace.h"
#include "gear/catalogue/gear_catalogue.h"
#include "pipeline/photos/photo_survey.h"
#include "state/editing/read_gear.h"
#include "state/settings/settings_store.h"

namespace varnel {

// A gear that a photo may have: of the table, or of the catalogue.
struct GearOption {
    int gear = 0;     // of the table; 0 for none
    GearNames names;  // of the catalogue

    bool operator==(const GearOption&) const = default;
};

// Those of the table, first the ones that the file speaks for, then those that the catalogue has
// for its camera if they are few.
std::vector<GearOption> GearOptionsFor(const CameraInfo& origin, const GearTable& table);

class PhotoGears : public QObject {
    Q_OBJECT
  public:
    // Photos are read if there is a reader, and changed when mayChange allows it.
    PhotoGears(Workspace& workspace, SettingsStore& store,
               std::function<std::unique_ptr<PictureReader>()> newReader,
               std::function<bool()> mayChange);

    // How many photos of the last addition have their own gear now; 0 after other steps.
    int JustGiven() const;
    // Of the current photo, as far as it is known.
    PhotoReading CurrentReading() const;
    // How the picture of the current photo's gear is seen.
    FrameChoice CurrentFrame() const;
    // The lines of other photos with the current one's camera, lens and size and another gear.
    std::vector<int> Alike() const;

    // Each is one step. For the current photo:
    void Use(const GearOption& option);
    void TakeOtherFrame();
    // Its gear for those that are alike.
    void GiveToAlike();

  Q_SIGNALS:
    // What the functions above return may be something else.
    void Changed();

  private:
    struct Wanted {
        QString path;
        int addition = 0;
    };

    void Want(const QStringList& paths);
    void GoOn();
    void BeginNext();
    void Apply(const Wanted& read);
    bool IsUndone(int addition) const;
    std::vector<int> PreparedLines(const QString& path, const SurveyedPhoto& photo);
    void ShowGears(const std::vector<GearRecord>& newGears);
    void ShowCurrent();
    void RestoreGears(const std::vector<GearRecord>& gears, bool undone);
    std::optional<FoundCircle> CircleOn(const ImageRecord& image) const;
    GearRecord GearOfCurrent() const;

    Workspace& workspace_;
    WorkspaceModel& model_;
    SettingsStore& store_;
    std::function<bool()> mayChange_;
    bool reads_;
    std::deque<Wanted> wanted_;
    Wanted underWay_;
    std::deque<Wanted> read_;  // still to be applied
    QHash<QString, SurveyedPhoto> photos_;
    QSet<int> noted_;  // additions that have a step
    int addition_ = 0;
    int given_ = 0;  // photos of the last addition
    QTimer timer_{this};
    PhotoSurvey survey_;  // ends first
};

}  // namespace varnel
