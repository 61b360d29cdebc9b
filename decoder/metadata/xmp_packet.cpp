// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/metadata/xmp_packet.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <exiv2/exiv2.hpp>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace varnel {

namespace {

constexpr std::string_view packetBegin =
    "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n";
constexpr std::string_view packetEnd = "\n<?xpacket end=\"w\"?>";
constexpr std::string_view endOfDescriptions = "</rdf:RDF>";
constexpr QByteArrayView settingsDescription("<rdf:Description rdf:about=\"\" xmlns:varnel=\"");
constexpr QByteArrayView endOfDescription("</rdf:Description>\n");
// The XMP library takes a tenth of a small photo's time, and most photos have none.
constexpr std::string_view onlyTool =
    "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
    " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
    "  <rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"\n"
    "   xmp:CreatorTool=\"Varnel " VARNEL_VERSION
    "\"/>\n"
    " </rdf:RDF>\n"
    "</x:xmpmeta>";

// What was about the old pixels, and what no longer holds of the new ones.
bool IsStale(const std::string& key) {
    constexpr std::array beginnings{std::string_view("Xmp.xmp.Thumbnails"),
                                    std::string_view("Xmp.GPano."),
                                    std::string_view("Xmp.mwg-rs."),  // faces and their places
                                    std::string_view("Xmp.MP."),      // likewise
                                    std::string_view("Xmp.crs.Crop"),
                                    std::string_view("Xmp.crs.HasCrop"),
                                    std::string_view("Xmp.dc.format"),
                                    std::string_view("Xmp.xmpNote."),
                                    std::string_view("Xmp.tiff.ImageWidth"),
                                    std::string_view("Xmp.tiff.ImageLength"),
                                    std::string_view("Xmp.exif.PixelXDimension"),
                                    std::string_view("Xmp.exif.PixelYDimension")};
    for (const std::string_view beginning : beginnings) {
        if (key.starts_with(beginning)) {
            return true;
        }
    }
    return false;
}

void TakeSettings(Exiv2::XmpData& data, PhotoMetadata& metadata) {
    const std::string prefix = settingsPrefix.toUtf8().toStdString();
    for (auto datum = data.begin(); datum != data.end();) {
        if (datum->groupName() == prefix) {
            metadata.settings.insert(QString::fromStdString(datum->tagName()),
                                     QString::fromStdString(datum->toString()));
            datum = data.erase(datum);
        } else {
            datum = IsStale(datum->key()) ? data.erase(datum) : std::next(datum);
        }
    }
}

std::string PacketOf(Exiv2::XmpData& data, bool upright) {
    if (data.empty()) {
        return std::string(onlyTool);
    }
    data["Xmp.xmp.CreatorTool"] = "Varnel " VARNEL_VERSION;
    if (upright && data.findKey(Exiv2::XmpKey("Xmp.tiff.Orientation")) != data.end()) {
        data["Xmp.tiff.Orientation"] = "1";
    }
    const auto isDeveloping = [](const Exiv2::Xmpdatum& datum) {
        return datum.groupName() == "crs";
    };
    if (std::any_of(data.begin(), data.end(), isDeveloping)) {
        data["Xmp.crs.AlreadyApplied"] = "True";  // or raw editors would do it once more
    }
    std::string packet;
    constexpr std::uint16_t flags = Exiv2::XmpParser::omitPacketWrapper;
    if (Exiv2::XmpParser::encode(packet, data, flags) != 0) {
        throw std::runtime_error("XMP");
    }
    return packet;
}

}  // namespace

void RegisterSettingsNamespace() {
    Exiv2::XmpParser::initialize();
    Exiv2::XmpProperties::registerNs(settingsNamespace.toUtf8().toStdString(),
                                     settingsPrefix.toUtf8().toStdString());
}

void FillXmp(Exiv2::XmpData data, bool upright, PhotoMetadata& metadata) {
    TakeSettings(data, metadata);
    std::string packet = PacketOf(data, upright);
    const std::size_t place = packet.rfind(endOfDescriptions);
    if (place == std::string::npos) {
        throw std::runtime_error("XMP");
    }
    packet = std::string(packetBegin) + packet + std::string(packetEnd);
    metadata.xmp = QByteArray::fromStdString(packet);
    metadata.xmpPlace = static_cast<std::uint32_t>(packetBegin.size() + place);
}

bool KeepXmp(QByteArray packet, PhotoMetadata& metadata) {
    PictureSettings settings;
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.namespaceUri() == settingsNamespace) {
            const QString name = reader.name().toString();
            settings.insert(name, reader.readElementText(QXmlStreamReader::SkipChildElements));
        }
    }
    // Each result has its own, in a description that Varnel wrote.
    if (const qsizetype place = packet.indexOf(settingsDescription); place >= 0) {
        const qsizetype end = packet.indexOf(endOfDescription, place);
        packet.remove(place, end < 0 ? 0 : end + endOfDescription.size() - place);
    }
    const qsizetype place = packet.lastIndexOf(endOfDescriptions);
    if (reader.hasError() || place < 0 || packet.contains(settingsNamespace.toUtf8()) ||
        packet.contains("<!") || packet.contains("xmpGImg")) {
        return false;
    }
    metadata.settings = settings;
    metadata.xmp = packet;
    metadata.xmpPlace = static_cast<std::uint32_t>(place);
    return true;
}

}  // namespace varnel
