// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/image_selection.h"

#include <algorithm>

namespace varnel {

ImageRecord* ImageSelection::Current() const {
    return current_ >= 0 && current_ < images_.UpperBound() ? &OnLine(current_) : nullptr;
}

QString ImageSelection::CurrentPath() const {
    const ImageRecord* const image = Current();
    return image != nullptr ? SourcePath(*image) : QString();
}

void ImageSelection::Choose(int line) {
    current_ = line;
    Q_EMIT Chosen(line);
}

void ImageSelection::Refill(int line) {
    current_ = images_.Empty() ? -1 : line;
    selected_.clear();
    if (current_ >= 0) {
        selected_.push_back(current_);
    }
    Q_EMIT Refilled();
}

void ImageSelection::Rearrange(int current, std::vector<int> selected) {
    current_ = current;
    selected_ = std::move(selected);
    selected_.push_back(current);
    std::ranges::sort(selected_);
    selected_.erase(std::unique(selected_.begin(), selected_.end()), selected_.end());
    Q_EMIT Rearranged();
}

}  // namespace varnel
