// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of the windows in another language, for its guide: the code stands in VARNEL_LANGUAGE.

#include <gtest/gtest.h>

#include <memory>

#include "translations/window_language.h"

namespace varnel {
namespace {

class PictureLanguage : public ::testing::Environment {
  public:
    void SetUp() override {
        language_ = std::make_unique<WindowLanguage>(
            *QCoreApplication::instance(),
            qEnvironmentVariable("VARNEL_LANGUAGE", QStringLiteral("en")));
    }
    void TearDown() override { language_.reset(); }

  private:
    std::unique_ptr<WindowLanguage> language_;
};

// Owned by the test program.
[[maybe_unused]] const auto* const pictureLanguage =
    ::testing::AddGlobalTestEnvironment(new PictureLanguage);

}  // namespace
}  // namespace varnel
