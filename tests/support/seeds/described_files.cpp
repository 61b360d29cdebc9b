// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/described_files.h"

#include <QtEndian>
#include <vector>

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel::testing {

namespace {

QByteArray ShortSegment(int marker, const QByteArray& data) {
    constexpr qsizetype longest = 65533;
    return JpegSegment(marker, data.left(longest));
}

QByteArray RiffChunk(const char* type, const QByteArray& data) {
    return type + Number(data.size(), 4) + data + QByteArray(data.size() % 2, '\0');
}

// The place of that tag's directory in a sound EXIF block with its mark.
quint32 DirectoryPlace(const QByteArray& exif, int tag, Order order) {
    constexpr qsizetype mark = 6;
    const auto number = [&](qsizetype place) {
        const char* const at = exif.constData() + mark + place;
        return order == Order::Big ? qFromBigEndian<quint32>(at) : qFromLittleEndian<quint32>(at);
    };
    const QByteArray entry = Number(tag, 2, order) + Number(4, 2, order) + Number(1, 4, order);
    return number(exif.indexOf(entry, mark + number(4)) - mark + entry.size());
}

struct Entry {
    int tag;
    int type;
    qsizetype count;
    qsizetype value;
    bool ofMetadata = false;
};

}  // namespace

MetadataBlocks SoundBlocks(bool bigEndian) {
    const QByteArray xmp =
        "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
        "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'"
        " xmlns:xmpMM='http://ns.adobe.com/xap/1.0/mm/' xmlns:own='http://example.org/own/'"
        " xmlns:stEvt='http://ns.adobe.com/xap/1.0/sType/ResourceEvent#' own:Note='fish &amp; eye'>"
        "<dc:subject><rdf:Bag><rdf:li>fish</rdf:li><rdf:li>eye</rdf:li></rdf:Bag></dc:subject>"
        "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>a lake</rdf:li></rdf:Alt></dc:title>"
        "<xmpMM:History><rdf:Seq><rdf:li stEvt:action='saved' stEvt:when='2020-05-01'/></rdf:Seq>"
        "</xmpMM:History></rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>";
    return {ExifBlock(!bigEndian), xmp, IptcBlock(), ColourProfile(), bigEndian};
}

QByteArray DescribedJpeg(const MetadataBlocks& blocks) {
    return QByteArray(Seed("jpeg/444"))
        .insert(2, ShortSegment(0xe1, blocks.exif) +
                       ShortSegment(0xe1,
                                    QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + blocks.xmp) +
                       ShortSegment(0xe2, QByteArray("ICC_PROFILE\0\1\1", 14) + blocks.profile) +
                       ShortSegment(0xed, QByteArray("Photoshop 3.0\0", 14) +
                                              ImageResource(1028, blocks.iptc)));
}

QByteArray DescribedPng(const MetadataBlocks& blocks) {
    constexpr qsizetype behindHeader = 8 + 25;
    const QByteArray resource = ImageResource(1028, blocks.iptc);
    const QByteArray digits = "\niptc\n" + QByteArray::number(resource.size()).rightJustified(8) +
                              '\n' + resource.toHex();
    return QByteArray(Seed("png/colour2-8"))
        .insert(behindHeader,
                PngChunk("iCCP", QByteArray("ICC\0\0", 5) + Zlib(blocks.profile)) +
                    PngChunk("eXIf", blocks.exif.mid(6)) +
                    PngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + blocks.xmp) +
                    PngChunk("zTXt", QByteArray("Raw profile type iptc\0\0", 23) + Zlib(digits)));
}

QByteArray DescribedTiff(const MetadataBlocks& blocks) {
    const Order order = blocks.bigEndian ? Order::Big : Order::Little;
    const QByteArray sound = ExifBlock(!blocks.bigEndian);
    // Places in the EXIF block hold, as the file begins with it.
    QByteArray file = sound.mid(6, 8) + blocks.exif.mid(6 + 8);
    const auto append = [&file](const QByteArray& bytes) {
        file.append(file.size() % 2, '\0');
        file += bytes;
        return file.size() - bytes.size();
    };
    const qsizetype pixels = append(PatternBytes(seedSize.width * seedSize.height));
    const qsizetype xmp = append(blocks.xmp);
    const qsizetype iptc = append(blocks.iptc);
    const qsizetype profile = append(blocks.profile);
    const std::vector<Entry> entries = {{256, 4, 1, seedSize.width},
                                        {257, 4, 1, seedSize.height},
                                        {258, 3, 1, 8},
                                        {259, 3, 1, 1},
                                        {262, 3, 1, 1},
                                        {273, 4, 1, pixels},
                                        {277, 3, 1, 1},
                                        {278, 4, 1, seedSize.height},
                                        {279, 4, 1, seedSize.width * seedSize.height},
                                        {700, 1, blocks.xmp.size(), xmp, true},
                                        {33723, 7, blocks.iptc.size(), iptc, true},
                                        {34665, 4, 1, DirectoryPlace(sound, 34665, order), true},
                                        {34675, 7, blocks.profile.size(), profile, true},
                                        {34853, 4, 1, DirectoryPlace(sound, 34853, order), true}};
    QByteArray directory = Number(entries.size(), 2, order);
    for (const Entry& entry : entries) {
        const int width = entry.type == 3 ? 2 : 4;
        QByteArray bytes = Number(entry.type, 2, order) + Number(entry.count, 4, order) +
                           Number(entry.value, width, order).leftJustified(4, '\0');
        if (entry.ofMetadata && blocks.spoilEntry) {
            blocks.spoilEntry(bytes);
        }
        directory += Number(entry.tag, 2, order) + bytes;
    }
    return file.replace(4, 4, Number(append(directory + Number(0, 4)), 4, order));
}

QByteArray DescribedWebp(const MetadataBlocks& blocks) {
    const QByteArray pixels = Seed("webp/lossless").mid(12);
    const QByteArray head = Numbers({0x20 | 0x08 | 0x04, 0, 0, 0}, 1) +
                            Number(seedSize.width - 1, 3) + Number(seedSize.height - 1, 3);
    const QByteArray body = "WEBP" + RiffChunk("VP8X", head) + RiffChunk("ICCP", blocks.profile) +
                            pixels + RiffChunk("EXIF", blocks.exif.mid(6)) +
                            RiffChunk("XMP ", blocks.xmp);
    return "RIFF" + Number(body.size(), 4) + body;
}

}  // namespace varnel::testing
