// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether the desktop's settings ask programs for dark colours, read where there is a session bus
// and a service that says so. Throws nothing.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <optional>

namespace varnel {

class DesktopColours : public QObject {
    Q_OBJECT
  public:
    DesktopColours();
    // Nothing when nothing is known, or the user of the desktop has no preference.
    std::optional<bool> Dark() const { return dark_; }

  Q_SIGNALS:
    void Changed();

  private Q_SLOTS:
    void OnSetting(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void Take(const QVariant& value);

    std::optional<bool> dark_;
};

}  // namespace varnel
