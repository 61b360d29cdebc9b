// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pipeline/photos/file_chooser.h"

namespace varnel::testing {

// Answers where to save and whether to replace, and keeps what it was asked.
class FakeChooser : public FileChooser {
  public:
    std::optional<SaveChoice> ChooseSave(const SaveChoice& proposal) override {
        proposed = proposal;
        return answer;
    }
    bool AgreesToReplace(const QString& name) override {
        asked.append(name);
        return agrees;
    }
    SaveChoice proposed;
    std::optional<SaveChoice> answer;
    QStringList asked;
    bool agrees = false;
};

}  // namespace varnel::testing
