// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line below the pictures when photos were added both as raw file and as JPEG, and what takes
// the JPEG files out of the list again. Throws nothing but for want of memory.
#pragma once

#include <vector>

#include "app/panels/line_bar.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "pipeline/photos/raw_pairs.h"

namespace varnel {

class PairBar : public LineBar {
    Q_OBJECT
  public:
    explicit PairBar(QWidget* parent);
    // So many photos are there twice; 0 hides the line.
    void ShowPairs(int pairs);

  Q_SIGNALS:
    void RawOnlyWanted();
    void Closed();
};

class PairTools : public QObject {
    Q_OBJECT
  public:
    PairTools(const WindowParts& parts, WindowView& view, Workspace& workspace, QObject* owner);

  private:
    QStringList Paths() const;
    void OnAdded(const QStringList& added);
    // Without the pairs of which one is no longer in the list.
    void Refresh();
    void UseRawOnly();

    WindowView& view_;
    Workspace& workspace_;
    PairBar* bar_;
    std::vector<RawPair> pairs_;  // that the line is about
};

}  // namespace varnel
