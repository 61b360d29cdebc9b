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
#include "tests/support/files.h"
#include "tests/support/jpeg_files.h"
#include "tests/support/loading.h"
#include "tests/support/profiles.h"

namespace varnel {
namespace {

using testing::WriteFile;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

QByteArray ExifTool(const QStringList& arguments) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(Q("exiftool"), arguments);
    EXPECT_TRUE(program.waitForFinished(60'000)) << "exiftool: libimage-exiftool-perl";
    return program.readAllStandardOutput();
}

// What the photos tell, as that program's assignments.
const QStringList told{
    Q("-IFD0:Artist=Jürgen Fisch"),
    Q("-IFD0:Copyright=all eyes"),
    Q("-IFD0:ImageDescription=a lake"),
    Q("-IFD0:ModifyDate=2021:02:03 04:05:06"),
    Q("-ExifIFD:DateTimeOriginal=2020:02:03 04:05:06"),
    Q("-ExifIFD:OffsetTimeOriginal=+02:00"),
    Q("-ExifIFD:UserComment=Küste"),
    Q("-ExifIFD:FNumber=3.5"),
    Q("-ExifIFD:ExposureTime=0.004"),
    Q("-ExifIFD:ISO=400"),
    Q("-ExifIFD:FocalLength=8"),
    Q("-ExifIFD:LensModel=a fisheye of 8 mm"),
    Q("-GPS:GPSLatitude=50.51"),
    Q("-GPS:GPSLatitudeRef=S"),
    Q("-GPS:GPSLongitude=14.42"),
    Q("-GPS:GPSLongitudeRef=W"),
    Q("-GPS:GPSAltitude=321.5"),
    Q("-GPS:GPSDateStamp=2020:02:03"),
    Q("-GPS:GPSTimeStamp=02:05:06"),
    Q("-IPTC:CodedCharacterSet=UTF8"),
    Q("-IPTC:City=Mladá Boleslav"),
    Q("-IPTC:Keywords=fish"),
    Q("-IPTC:Keywords=œil"),
    Q("-IPTC:Caption-Abstract=魚眼"),
    Q("-XMP-dc:Title=a lake"),
    Q("-XMP-dc:Title-cs=jezero"),
    Q("-XMP-dc:Subject=fish"),
    Q("-XMP-dc:Subject=œil"),
    Q("-XMP-xmp:Rating=4"),
    Q("-XMP-photoshop:City=Mladá Boleslav"),
    Q("-XMP-lr:HierarchicalSubject=place|lake"),
    Q("-XMP-xmpMM:DocumentID=uuid:0815"),
    Q("-XMP-iptcExt:PersonInImage=nobody"),
    Q("-XMP-tiff:Orientation=6"),
    Q("-XMP-exifEX:LensModel=8 mm"),
    Q("-XMP-crs:ColorTemperature=5500"),
    Q("-XMP-aux:SerialNumber=0815"),
    Q("-IFD0:Orientation=6"),
    // What a sound photo has to have.
    Q("-IFD0:ResolutionUnit=2"),
    Q("-IFD0:YCbCrPositioning=1"),
    Q("-ExifIFD:ExifVersion=0232"),
    Q("-ExifIFD:ComponentsConfiguration=1 2 3 0"),
    Q("-ExifIFD:FlashpixVersion=0100"),
    Q("-ExifIFD:ColorSpace=65535"),
};

// Fields by "group:name", of each file.
using Fields = QJsonObject;

class Metadata : public ::testing::Test {
  protected:
    QString Path(const QString& name) const { return files_.Path(name); }
    std::string Convert(const QStringList& arguments) {
        std::ostringstream out, err;
        MemoryStore store;
        EXPECT_EQ(RunConvert(QStringList{Q("varnel-convert"), Q("--camera"), Q("Canon/EOS 5D"),
                                         Q("--lens"), Q("Sigma/EX 8 mm f:3.5")} +
                                 arguments,
                             store, {out, err, false}),
                  exitAllWritten)
            << err.str();
        return err.str();
    }
    // One call for all: each takes a fifth of a second.
    QMap<QString, Fields> Read(const QStringList& names) const {
        QStringList arguments{Q("-q"), Q("-json"), Q("-G1"),       Q("-n"),
                              Q("-u"), Q("-b"),    Q("-validate"), Q("-all")};
        for (const QString& name : names) {
            arguments += Path(name);
        }
        QMap<QString, Fields> files;
        const QJsonArray all = QJsonDocument::fromJson(ExifTool(arguments)).array();
        for (const QJsonValue& file : all) {
            const Fields fields = file.toObject();
            files[fields[Q("SourceFile")].toString().section(u'/', -1)] = fields;
        }
        EXPECT_EQ(files.size(), names.size());
        return files;
    }

    // Small, and looks like the picture.
    void ExpectThumbnail(const QString& base64, const QString& name) const {
        const QString path = Path(Q("thumbnail.jpg"));
        WriteFile(path, QByteArray::fromBase64(base64.section(u':', 1).toLatin1()));
        const LoadedPicture thumbnail = testing::LoadPicture(path);
        const LoadedPicture picture = testing::LoadPicture(Path(name));
        ASSERT_TRUE(thumbnail.bitmap && picture.bitmap);
        const PixelSize size = thumbnail.size;
        EXPECT_EQ(size.width, 107);
        const BitmapHandle reduced(
            FreeImage_Rescale(picture.bitmap.get(), size.width, size.height, FILTER_BOX));
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
    static const QRegularExpression pattern(
        Q("^(SourceFile$|(ExifTool|System|File|Composite|JFIF|PNG|PNG-pHYs|XMP-varnel|XMP-x|IFD1):"
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
        key.replace(Q("IPTC2:"), Q("IPTC:"));  // where a TIFF file has them as Photoshop does
        if (!IsOfTheFile(key)) {
            values[key] = field.value();
        }
    }
    if (!isResult) {
        values[Q("IFD0:Orientation")] = values[Q("XMP-tiff:Orientation")] = 1;
        if (values.contains(Q("XMP-crs:ColorTemperature"))) {
            values[Q("XMP-crs:AlreadyApplied")] = true;
        }
        values[Q("IFD0:Software")] = values[Q("XMP-xmp:CreatorTool")] = Q("Varnel 1.0.0");
        values[Q("ExifIFD:ExifImageWidth")] = 200;
        values[Q("ExifIFD:ExifImageHeight")] = 300;
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
    const QByteArray jpeg = testing::Contents(files_.Picture(Q("plain.jpg"), FIF_JPEG, {300, 200}));
    for (const bool canon : {true, false}) {
        WriteFile(
            Path(Q(photos[canon ? 0 : 1])),
            QByteArray(jpeg).insert(2, testing::JpegSegment(0xE1, testing::ExifBlock(canon))));
    }
    files_.Picture(Q(photos[2]), FIF_PNG, {300, 200});
    files_.Picture(Q(photos[3]), FIF_TIFF, {300, 200});
    WriteFile(Path(Q("rgb.icc")), testing::RgbProfile());
    const QStringList quietly{Q("-q"), Q("-q"), Q("-overwrite_original"), Q("-n")};
    ExifTool(quietly + told +
             QStringList{Q("-ICC_Profile<=") + Path(Q("rgb.icc")), Path(Q(photos[0])),
                         Path(Q(photos[1]))});
    ExifTool(quietly + QStringList{Q("-tagsfromfile"), Path(Q(photos[0])), Q("-all:all"),
                                   Q("-icc_profile"), Path(Q(photos[2])), Path(Q(photos[3]))});
    QStringList names;
    for (const char* const photo : photos) {
        names += Q(photo);
        for (const char* const type : {"jpg", "tif", "png"}) {
            names += Q(photo) + Q(".as.") + Q(type);
            EXPECT_EQ(Convert({Q("--output"), Path(names.back()), Path(Q(photo))}), "");
        }
    }
    const QMap<QString, Fields> all = Read(names);
    const Fields first = all[Q(photos[0])];
    // Not all that was told is lost before the beginning.
    for (const char* const key : {"GPS:GPSLatitude", "Canon:MacroMode", "IPTC:City",
                                  "XMP-lr:HierarchicalSubject", "ICC-header:ColorSpaceData"}) {
        EXPECT_TRUE(first.contains(Q(key))) << key;
    }
    for (const QString& name : names) {
        const QString photo = name.section(Q(".as."), 0, 0);
        if (photo == name) {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        ExpectSame(all[photo], all[name]);
        const QStringList found = all[name][Q("ExifTool:Validate")].toString().split(u' ');
        if (!name.endsWith(Q(".tif"))) {  // errors, warnings, and minor ones of them
            EXPECT_TRUE(found[0] == Q("0") && found.value(1) == found.value(2))
                << all[name][Q("ExifTool:Warning")].toString().toStdString();
        }
        if (photo.endsWith(Q(".jpg")) && !name.endsWith(Q(".tif"))) {
            ExpectThumbnail(all[name][Q("IFD1:ThumbnailImage")].toString(), name);
        }
    }
}

TEST_F(Metadata, AreLeftOutOnRequestAndAGreyProfileAlways) {
    const QByteArray jpeg = testing::Contents(files_.Picture(Q("plain.jpg"), FIF_JPEG));
    const auto profile = [](const QByteArray& bytes) {
        return testing::JpegSegment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + bytes);
    };
    WriteFile(Path(Q("rgb.jpg")),
              QByteArray(jpeg).insert(2, testing::JpegSegment(0xE1, testing::ExifBlock(true)) +
                                             profile(testing::RgbProfile())));
    WriteFile(Path(Q("grey.jpg")), QByteArray(jpeg).insert(2, profile(testing::GreyProfile())));
    const QStringList types{Q("jpg"), Q("tif"), Q("png")};
    QStringList names;
    for (const QString& type : types) {
        Convert({Q("--no-metadata"), Q("--no-settings"), Q("--output"), Path(Q("rgb.as.") + type),
                 Path(Q("rgb.jpg"))});
        Convert({Q("--output"), Path(Q("grey.as.") + type), Path(Q("grey.jpg"))});
        names += {Q("rgb.as.") + type, Q("grey.as.") + type};
    }
    const QMap<QString, Fields> all = Read(names);
    for (const QString& name : names) {
        const QString keys = all[name].keys().join(u' ');
        EXPECT_EQ(keys.contains(Q("ICC-header:")), name.startsWith(Q("rgb"))) << name.toStdString();
        const bool tells = keys.contains(
            QRegularExpression(Q("IFD0:(Make|Software)|ExifIFD|GPS|IPTC|XMP|Canon|IFD1")));
        EXPECT_EQ(tells, name.startsWith(Q("grey"))) << name.toStdString();
    }
}

}  // namespace
}  // namespace varnel
