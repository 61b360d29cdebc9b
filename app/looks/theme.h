// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The colours of all windows: light or dark, as the desktop has it or as the user chose. Throws
// nothing.
#pragma once

#include <QObject>
#include <QPalette>
#include <QString>
#include <QTimer>
#include <optional>

#include "app/looks/desktop_colours.h"

namespace varnel {

enum class Theme { System, Light, Dark };

// As it stands in the settings: "system", "light", "dark"; every other text means System.
QString ToText(Theme theme);
Theme ThemeFromText(QStringView text);

QPalette LightColours();
QPalette DarkColours();

// Keeps the application's colours to a theme, and follows the desktop where that is the theme.
class ThemeKeeper : public QObject {
    Q_OBJECT
  public:
    explicit ThemeKeeper(Theme theme);
    Theme Chosen() const { return theme_; }
    void Choose(Theme theme);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void LookAtPlatform();
    void Apply();

    Theme theme_;
    bool darkPlatform_ = false;
    DesktopColours desktop_;
    QTimer look_{this};  // fires after the platform's colours have changed
};

}  // namespace varnel
