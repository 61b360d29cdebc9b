// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/xmp_settings.h"

#include <QLatin1StringView>

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

QByteArray DescriptionOf(const PanoramaInfo& panorama) {
    QString text = QStringLiteral(
        "<rdf:Description rdf:about=\"\" "
        "xmlns:GPano=\"http://ns.google.com/photos/1.0/panorama/\">\n");
    const auto add = [&text](const char* name, const QString& value) {
        text += QStringLiteral("<GPano:%1>%2</GPano:%1>\n").arg(QLatin1StringView(name), value);
    };
    const auto addNumber = [&add](const char* name, int value) {
        add(name, QString::number(value));
    };
    add("UsePanoramaViewer", QStringLiteral("True"));
    add("ProjectionType", panorama.layout == PanoramaLayout::Cylindrical
                              ? QStringLiteral("cylindrical")
                              : QStringLiteral("equirectangular"));
    addNumber("FullPanoWidthPixels", panorama.fullWidth);
    addNumber("FullPanoHeightPixels", panorama.fullHeight);
    addNumber("CroppedAreaLeftPixels", panorama.left);
    addNumber("CroppedAreaTopPixels", panorama.top);
    addNumber("CroppedAreaImageWidthPixels", panorama.width);
    addNumber("CroppedAreaImageHeightPixels", panorama.height);
    if (panorama.heading) {
        add("PoseHeadingDegrees", QString::number(*panorama.heading, 'f', 2));
    }
    return (text + QStringLiteral("</rdf:Description>\n")).toUtf8();
}

QByteArray DescriptionsOf(const BitmapMetadata& picture) {
    QByteArray all;
    if (!picture.settings.isEmpty()) {
        all += DescriptionOf(picture.settings);
    }
    if (picture.panorama) {
        all += DescriptionOf(*picture.panorama);
    }
    return all;
}

}  // namespace

bool HasOwnXmp(const BitmapMetadata& picture) {
    return !picture.settings.isEmpty() || picture.panorama;
}

QByteArray OwnPacket(const BitmapMetadata& picture) {
    return packetStart + DescriptionsOf(picture) + packetEnd;
}

std::optional<QByteArray> PacketWithOwn(const BitmapMetadata& picture) {
    const PhotoMetadata& photo = picture.photo;
    if (!HasOwnXmp(picture)) {
        return photo.xmp;
    }
    if (photo.xmp.isEmpty()) {
        return OwnPacket(picture);
    }
    if (photo.xmpPlace == 0 || photo.xmpPlace > static_cast<std::uint64_t>(photo.xmp.size())) {
        return std::nullopt;
    }
    return QByteArray(photo.xmp).insert(photo.xmpPlace, DescriptionsOf(picture));
}

}  // namespace varnel
