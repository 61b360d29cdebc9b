// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What photos tell about themselves, before and after a conversion, as an independent program reads
// it.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <sstream>

#include "cli/convert.h"
#include "remap/image/image_library.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/seeds/jpeg_files.h"
#include "tests/support/seeds/profiles.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WriteFile;

QByteArray ExifTool(const QStringList& arguments) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(Text("exiftool"), arguments);
    EXPECT_TRUE(program.waitForFinished(60'000)) << "exiftool: libimage-exiftool-perl";
    return program.readAllStandardOutput();
}

// What the photos tell, as that program's assignments.
const QStringList told{
    Text("-IFD0:Artist=Jürgen Fisch"),
    Text("-IFD0:Copyright=all eyes"),
    Text("-IFD0:ImageDescription=a lake"),
    Text("-IFD0:ModifyDate=2021:02:03 04:05:06"),
    Text("-ExifIFD:DateTimeOriginal=2020:02:03 04:05:06"),
    Text("-ExifIFD:OffsetTimeOriginal=+02:00"),
    Text("-ExifIFD:UserComment=Küste"),
    Text("-ExifIFD:FNumber=3.5"),
    Text("-ExifIFD:ExposureTime=0.004"),
    Text("-ExifIFD:ISO=400"),
    Text("-ExifIFD:FocalLength=8"),
    Text("-ExifIFD:LensModel=a fisheye of 8 mm"),
    Text("-GPS:GPSLatitude=50.51"),
    Text("-GPS:GPSLatitudeRef=S"),
    Text("-GPS:GPSLongitude=14.42"),
    Text("-GPS:GPSLongitudeRef=W"),
    Text("-GPS:GPSAltitude=321.5"),
    Text("-GPS:GPSDateStamp=2020:02:03"),
    Text("-GPS:GPSTimeStamp=02:05:06"),
    Text("-IPTC:CodedCharacterSet=UTF8"),
    Text("-IPTC:City=Mladá Boleslav"),
    Text("-IPTC:Keywords=fish"),
    Text("-IPTC:Keywords=œil"),
    Text("-IPTC:Caption-Abstract=魚眼"),
    Text("-XMP-dc:Title=a lake"),
    Text("-XMP-dc:Title-cs=jezero"),
    Text("-XMP-dc:Subject=fish"),
    Text("-XMP-dc:Subject=œil"),
    Text("-XMP-xmp:Rating=4"),
    Text("-XMP-photoshop:City=Mladá Boleslav"),
    Text("-XMP-lr:HierarchicalSubject=place|lake"),
    Text("-XMP-xmpMM:DocumentID=uuid:0815"),
    Text("-XMP-iptcExt:PersonInImage=nobody"),
    Text("-XMP-tiff:Orientation=6"),
    Text("-XMP-exifEX:LensModel=8 mm"),
    Text("-XMP-crs:ColorTemperature=5500"),
    Text("-XMP-aux:SerialNumber=0815"),
    Text("-IFD0:Orientation=6"),
    // What a sound photo has to have.
    Text("-IFD0:ResolutionUnit=2"),
    Text("-IFD0:YCbCrPositioning=1"),
    Text("-ExifIFD:ExifVersion=0232"),
    Text("-ExifIFD:ComponentsConfiguration=1 2 3 0"),
    Text("-ExifIFD:FlashpixVersion=0100"),
    Text("-ExifIFD:ColorSpace=65535"),
};

// Fields by "group:name", of each file.
using Fields = QJsonObject;

class Metadata : public ::testing::Test {
  protected:
    QString Path(const QString& name) const { return files_.Path(name); }
    std::string Convert(const QStringList& arguments) {
        std::ostringstream out, err;
        MemoryStore store;
        EXPECT_EQ(
            RunConvert(QStringList{Text("varnel-convert"), Text("--camera"), Text("Canon/EOS 5D"),
                                   Text("--lens"), Text("Sigma/EX 8 mm f:3.5")} +
                           arguments,
                       store, {out, err, false}),
            exitAllWritten)
            << err.str();
        return err.str();
    }
    // One call for all: each takes a fifth of a second.
    QMap<QString, Fields> Read(const QStringList& names) const {
        QStringList arguments{Text("-q"), Text("-json"), Text("-G1"),       Text("-n"),
                              Text("-u"), Text("-b"),    Text("-validate"), Text("-all")};
        for (const QString& name : names) {
            arguments += Path(name);
        }
        QMap<QString, Fields> files;
        const QJsonArray all = QJsonDocument::fromJson(ExifTool(arguments)).array();
        for (const auto& file : all) {
            const Fields fields = file.toObject();
            files[fields[Text("SourceFile")].toString().section(u'/', -1)] = fields;
        }
        EXPECT_EQ(files.size(), names.size());
        return files;
    }

    // Small, and looks like the picture.
    void ExpectThumbnail(const QString& base64, const QString& name) const {
        const QString path = Path(Text("thumbnail.jpg"));
        WriteFile(path, QByteArray::fromBase64(base64.section(u':', 1).toLatin1()));
        const LoadedPicture thumbnail = testing::LoadPicture(path);
        const LoadedPicture picture = testing::LoadPicture(Path(name));
        ASSERT_TRUE(thumbnail.bitmap && picture.bitmap);
        const PixelSize size = thumbnail.size;
        EXPECT_EQ(size.width, 107);
        const BitmapHandle reduced = RescaledByBox(*picture.bitmap, size);
        double difference = 0;
        for (int y = 0; y < size.height; ++y) {
            const auto one = ScanLine(thumbnail.bitmap.get(), y);
            const auto other = ScanLine(reduced.get(), y);
            for (int x = 0; x < 3 * size.width; ++x) {
                difference += std::abs(int{one[x]} - int{other[x]});
            }
        }
        EXPECT_LT(difference / (3 * size.width * size.height), 4);
    }

    testing::PictureFolder files_;
};

// Of the file and not of the photo.
bool IsOfTheFile(const QString& key) {
    static const QRegularExpression pattern(Text(
        "^(SourceFile$|(ExifTool|System|File|Composite|JFIF|PNG|PNG-pHYs|XMP-varnel|XMP-x|IFD1):"
        "|IFD0:(BitsPerSample|Compression|FillOrder|ImageHeight|ImageWidth|SubfileType|Predictor|"
        "PhotometricInterpretation|PlanarConfiguration|RowsPerStrip|SampleFormat|StripByteCounts|"
        "SamplesPerPixel|StripOffsets|YCbCrPositioning)$)"));
    return pattern.match(key).hasMatch();
}

// What the result has to tell, by what the photo tells.
QMap<QString, QJsonValue> Told(const Fields& fields, bool isResult) {
    QMap<QString, QJsonValue> values;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        QString key = field.key();
        key.replace(Text("IPTC2:"), Text("IPTC:"));  // where a TIFF file has them as Photoshop does
        if (!IsOfTheFile(key)) {
            values[key] = field.value();
        }
    }
    if (!isResult) {
        values[Text("IFD0:Orientation")] = values[Text("XMP-tiff:Orientation")] = 1;
        if (values.contains(Text("XMP-crs:ColorTemperature"))) {
            values[Text("XMP-crs:AlreadyApplied")] = true;
        }
        values[Text("IFD0:Software")] = values[Text("XMP-xmp:CreatorTool")] =
            Text("Varnel " VARNEL_VERSION);
        values[Text("ExifIFD:ExifImageWidth")] = 200;
        values[Text("ExifIFD:ExifImageHeight")] = 300;
    }
    return values;
}

void ExpectSame(const Fields& photo, const Fields& result) {
    const auto before = Told(photo, false);
    const auto after = Told(result, true);
    for (const QString& key : (before.keys() + after.keys())) {
        EXPECT_EQ(before[key], after[key])
            << key.toStdString() << ": " << before[key].toVariant().toString().toStdString()
            << " became " << after[key].toVariant().toString().toStdString();
    }
}

TEST_F(Metadata, OfEveryKindSurvivesInEveryType) {
    constexpr const char* photos[] = {"little.jpg", "big.jpg", "photo.png", "photo.tif"};
    const QByteArray jpeg =
        testing::Contents(files_.Picture(Text("plain.jpg"), OutputType::Jpeg, {300, 200}));
    for (const bool canon : {true, false}) {
        WriteFile(
            Path(Text(photos[canon ? 0 : 1])),
            QByteArray(jpeg).insert(2, testing::JpegSegment(0xE1, testing::ExifBlock(canon))));
    }
    files_.Picture(Text(photos[2]), OutputType::Png, {300, 200});
    files_.Picture(Text(photos[3]), OutputType::Tiff, {300, 200});
    WriteFile(Path(Text("rgb.icc")), testing::RgbProfile());
    const QStringList quietly{Text("-q"), Text("-q"), Text("-overwrite_original"), Text("-n")};
    ExifTool(quietly + told +
             QStringList{Text("-ICC_Profile<=") + Path(Text("rgb.icc")), Path(Text(photos[0])),
                         Path(Text(photos[1]))});
    ExifTool(quietly + QStringList{Text("-tagsfromfile"), Path(Text(photos[0])), Text("-all:all"),
                                   Text("-icc_profile"), Path(Text(photos[2])),
                                   Path(Text(photos[3]))});
    QStringList names;
    for (const char* const photo : photos) {
        names += Text(photo);
        for (const char* const type : {"jpg", "tif", "png"}) {
            names += Text(photo) + Text(".as.") + Text(type);
            EXPECT_EQ(Convert({Text("--output"), Path(names.back()), Path(Text(photo))}), "");
        }
    }
    const QMap<QString, Fields> all = Read(names);
    const Fields first = all[Text(photos[0])];
    // Not all that was told is lost before the beginning.
    for (const char* const key : {"GPS:GPSLatitude", "Canon:MacroMode", "IPTC:City",
                                  "XMP-lr:HierarchicalSubject", "ICC-header:ColorSpaceData"}) {
        EXPECT_TRUE(first.contains(Text(key))) << key;
    }
    for (const QString& name : names) {
        const QString photo = name.section(Text(".as."), 0, 0);
        if (photo == name) {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        ExpectSame(all[photo], all[name]);
        const QStringList found = all[name][Text("ExifTool:Validate")].toString().split(u' ');
        if (!name.endsWith(Text(".tif"))) {  // errors, warnings, and minor ones of them
            EXPECT_TRUE(found[0] == Text("0") && found.value(1) == found.value(2))
                << all[name][Text("ExifTool:Warning")].toString().toStdString();
        }
        if (photo.endsWith(Text(".jpg")) && !name.endsWith(Text(".tif"))) {
            ExpectThumbnail(all[name][Text("IFD1:ThumbnailImage")].toString(), name);
        }
    }
}

TEST_F(Metadata, AreLeftOutOnRequestAndAGreyProfileAlways) {
    const QByteArray jpeg = testing::Contents(files_.Picture(Text("plain.jpg"), OutputType::Jpeg));
    const auto profile = [](const QByteArray& bytes) {
        return testing::JpegSegment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + bytes);
    };
    WriteFile(Path(Text("rgb.jpg")),
              QByteArray(jpeg).insert(2, testing::JpegSegment(0xE1, testing::ExifBlock(true)) +
                                             profile(testing::RgbProfile())));
    WriteFile(Path(Text("grey.jpg")), QByteArray(jpeg).insert(2, profile(testing::GreyProfile())));
    const QStringList types{Text("jpg"), Text("tif"), Text("png")};
    QStringList names;
    for (const QString& type : types) {
        Convert({Text("--no-metadata"), Text("--no-settings"), Text("--output"),
                 Path(Text("rgb.as.") + type), Path(Text("rgb.jpg"))});
        Convert({Text("--output"), Path(Text("grey.as.") + type), Path(Text("grey.jpg"))});
        names += {Text("rgb.as.") + type, Text("grey.as.") + type};
    }
    const QMap<QString, Fields> all = Read(names);
    for (const QString& name : names) {
        const QString keys = all[name].keys().join(u' ');
        EXPECT_EQ(keys.contains(Text("ICC-header:")), name.startsWith(Text("rgb")))
            << name.toStdString();
        const bool tells = keys.contains(
            QRegularExpression(Text("IFD0:(Make|Software)|ExifIFD|GPS|IPTC|XMP|Canon|IFD1")));
        EXPECT_EQ(tells, name.startsWith(Text("grey"))) << name.toStdString();
    }
}

}  // namespace
}  // namespace varnel
