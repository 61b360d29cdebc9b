// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/looks/tool_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <utility>

// The macro declares a function, which must not be in a namespace.
static void LoadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace varnel {

namespace {

QColor ColourFor(QIcon::Mode mode) {
    const QPalette colours = QGuiApplication::palette();
    switch (mode) {
        case QIcon::Disabled:
            return colours.color(QPalette::Disabled, QPalette::ButtonText);
        case QIcon::Selected:
            return colours.color(QPalette::HighlightedText);
        default:
            return colours.color(QPalette::ButtonText);
    }
}

class OutlineEngine : public QIconEngine {
  public:
    // Without a colour in that of the texts.
    OutlineEngine(QByteArray outline, const QColor& colour)
        : outline_(std::move(outline)), colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const QColor colour = colour_.isValid() ? colour_ : ColourFor(mode);
        QByteArray tinted = outline_;
        tinted.replace("currentColor", colour.name().toLatin1());
        QSvgRenderer(tinted).render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new OutlineEngine(*this); }
    bool isNull() override { return outline_.isEmpty(); }

  private:
    QByteArray outline_;
    QColor colour_;
};

}  // namespace

QIcon ToolIcon(const char* name) {
    return ToolIcon(name, {});
}

QIcon ToolIcon(const char* name, const QColor& colour) {
    LoadIcons();
    QFile file(QStringLiteral(":/varnel/icons/%1.svg").arg(QString::fromLatin1(name)));
    return QIcon(
        new OutlineEngine(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), colour));
}

}  // namespace varnel
