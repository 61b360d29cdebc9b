// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Waiting for a photo on the screen: a moment without input, then a box that can be cancelled.
// Throws nothing.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>
#include <memory>

#include "pipeline/photos/photo_loader.h"

namespace varnel {

class ReadingBox : public ReadingWait {
  public:
    void Begin(const QString& path) override;
    bool Continue() override;
    void End() override { box_.reset(); }

  private:
    QString path_;
    QElapsedTimer sinceBegin_;
    std::unique_ptr<QProgressDialog> box_;
};

}  // namespace varnel
