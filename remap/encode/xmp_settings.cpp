// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/xmp_settings.h"

#include <algorithm>
#include <utility>

namespace varnel {

namespace {

constexpr char packetStart[] =
    "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
    "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
    "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n";
constexpr char packetEnd[] = "</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>";

// Without the characters that XML cannot have even when they are escaped.
QString Escaped(QString value) {
    value.removeIf([](QChar c) {
        const bool isBlank = c == u'\t' || c == u'\n' || c == u'\r';
        return (c < u' ' && !isBlank) || c == QChar(0xFFFE) || c == QChar(0xFFFF);
    });
    return value.toHtmlEscaped();
}

QByteArray DescriptionOf(const PictureSettings& settings) {
    QString text = QStringLiteral("<rdf:Description rdf:about=\"\" xmlns:%1=\"%2\">\n")
                       .arg(settingsPrefix, settingsNamespace);
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        text += QStringLiteral("<%1:%2>%3</%1:%2>\n")
                    .arg(settingsPrefix, setting.key(), Escaped(setting.value()));
    }
    return (text + QStringLiteral("</rdf:Description>\n")).toUtf8();
}

}  // namespace

QByteArray SettingsPacket(const PictureSettings& settings) {
    return packetStart + DescriptionOf(settings) + packetEnd;
}

std::optional<QByteArray> PacketWithSettings(const PhotoMetadata& photo,
                                             const PictureSettings& settings) {
    if (settings.isEmpty()) {
        return photo.xmp;
    }
    if (photo.xmp.isEmpty()) {
        return SettingsPacket(settings);
    }
    if (photo.xmpPlace == 0 || photo.xmpPlace > static_cast<std::uint64_t>(photo.xmp.size())) {
        return std::nullopt;
    }
    return QByteArray(photo.xmp).insert(photo.xmpPlace, DescriptionOf(settings));
}

}  // namespace varnel
