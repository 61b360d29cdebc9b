// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/looks/theme.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <array>

namespace varnel {

namespace {

constexpr std::array texts{u"system", u"light", u"dark"};

struct Colours {
    QColor window, base, button, edge, text, faint, highlight, link, tip;
};

QPalette PaletteOf(const Colours& colours) {
    QPalette palette(colours.button, colours.window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, colours.faint);
    }
    palette.setColor(QPalette::Light, colours.edge);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::ToolTipBase, colours.tip);
    palette.setColor(QPalette::PlaceholderText, colours.faint);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.faint);
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.window);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    return palette;
}

}  // namespace

QString ToText(Theme theme) {
    return QString::fromUtf16(texts[static_cast<std::size_t>(theme)]);
}

Theme ThemeFromText(QStringView text) {
    const auto* const found =
        std::ranges::find(texts, text, [](const char16_t* known) { return QStringView(known); });
    return found == texts.end() ? Theme::System : static_cast<Theme>(found - texts.begin());
}

QPalette LightColours() {
    return PaletteOf({.window = QColor(0xf2, 0xf2, 0xf2),
                      .base = Qt::white,
                      .button = QColor(0xf2, 0xf2, 0xf2),
                      .edge = Qt::white,
                      .text = QColor(0x1e, 0x1e, 0x1e),
                      .faint = QColor(0x8c, 0x8c, 0x8c),
                      .highlight = QColor(0x2a, 0x76, 0xb8),
                      .link = QColor(0x1a, 0x5f, 0xb4),
                      .tip = QColor(0xff, 0xff, 0xe6)});
}

QPalette DarkColours() {
    return PaletteOf({.window = QColor(0x33, 0x33, 0x33),
                      .base = QColor(0x22, 0x22, 0x22),
                      .button = QColor(0x41, 0x41, 0x41),
                      .edge = QColor(0x4c, 0x4c, 0x4c),
                      .text = QColor(0xe4, 0xe4, 0xe4),
                      .faint = QColor(0x86, 0x86, 0x86),
                      .highlight = QColor(0x2f, 0x7d, 0xc0),
                      .link = QColor(0x6e, 0xaf, 0xff),
                      .tip = QColor(0x3c, 0x3c, 0x3c)});
}

ThemeKeeper::ThemeKeeper(Theme theme) : theme_(theme) {
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, &ThemeKeeper::LookAtPlatform);
    connect(&desktop_, &DesktopColours::Changed, this, &ThemeKeeper::Apply);
    QApplication::instance()->installEventFilter(this);
    LookAtPlatform();
}

void ThemeKeeper::Choose(Theme theme) {
    theme_ = theme;
    Apply();
}

bool ThemeKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ThemeChange) {
        look_.start(0);
    }
    return QObject::eventFilter(watched, event);
}

// Without colours of ours the platform's can be seen.
void ThemeKeeper::LookAtPlatform() {
    constexpr int middle = 128;
    QApplication::setPalette({});
    darkPlatform_ = QApplication::palette().color(QPalette::Window).lightness() < middle;
    Apply();
}

void ThemeKeeper::Apply() {
    const bool dark = theme_ == Theme::Dark ||
                      (theme_ == Theme::System && desktop_.Dark().value_or(darkPlatform_));
    QApplication::setPalette(dark ? DarkColours() : LightColours());
}

}  // namespace varnel
