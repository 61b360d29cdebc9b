// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/looks/desktop_colours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace varnel {

namespace {

QString Service() {
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString Path() {
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString Interface() {
    return QStringLiteral("org.freedesktop.portal.Settings");
}

QString Group() {
    return QStringLiteral("org.freedesktop.appearance");
}

QString Key() {
    return QStringLiteral("color-scheme");
}

// The service answers with a variant in a variant.
QVariant Unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

// Without an address the bus would be started.
DesktopColours::DesktopColours() {
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(Service(), Path(), Interface(), QStringLiteral("SettingChanged"), this,
                SLOT(OnSetting(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(Service(), Path(), Interface(), QStringLiteral("Read"));
    question.setArguments({Group(), Key()});
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply(*finished);
                if (reply.isValid()) {
                    Take(reply.value().variant());
                }
            });
}

void DesktopColours::OnSetting(const QString& group, const QString& key,
                               const QDBusVariant& value) {
    if (group == Group() && key == Key()) {
        Take(value.variant());
    }
}

void DesktopColours::Take(const QVariant& value) {
    constexpr uint preferDark = 1;
    constexpr uint preferLight = 2;
    const uint wish = Unwrapped(value).toUInt();
    dark_.reset();
    if (wish == preferDark || wish == preferLight) {
        dark_ = wish == preferDark;
    }
    Q_EMIT Changed();
}

}  // namespace varnel
