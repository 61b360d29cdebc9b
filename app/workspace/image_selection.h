// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The image list with its current line and its selected lines. The window's list follows it and
// notes here what the user chooses. Lines count from 0; -1 is none. Throws nothing.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "base/record_array.h"
#include "state/records/image_record.h"

namespace varnel {

class ImageSelection : public QObject {
    Q_OBJECT
  public:
    explicit ImageSelection(RecordArray<ImageRecord>& images) : images_(images) {}

    RecordArray<ImageRecord>& Images() const { return images_; }
    ImageRecord& OnLine(int line) const { return images_(line + 1); }
    int CurrentLine() const { return current_; }
    std::vector<int> SelectedLines() const { return selected_; }  // in list order
    // The current image's record, null when there is none.
    ImageRecord* Current() const;
    QString CurrentPath() const;  // empty when there is none

    // By the user.
    void Choose(int line);
    void Select(std::vector<int> lines) { selected_ = std::move(lines); }

    // The list is another one; the line, if there is any, becomes current and is selected alone.
    void Refill(int line);
    // The list in another shape; the current photo stays as it is shown.
    void Rearrange(int current, std::vector<int> selected);

  Q_SIGNALS:
    void Chosen(int line);
    void Refilled();
    void Rearranged();

  private:
    RecordArray<ImageRecord>& images_;
    int current_ = -1;
    std::vector<int> selected_;
};

}  // namespace varnel
