// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/error_text.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <system_error>

namespace varnel {

namespace {

struct Row {
    ReasonCode code;
    const char* text;  // %1 to %9 are the arguments
};

constexpr Row rows[] = {
    // the same in every language
    {ReasonCode::None, ""},
    {ReasonCode::Words, "%1"},
    {ReasonCode::SystemError, "%1"},
    {ReasonCode::Added, "%1 (%2)"},
    {ReasonCode::Of, "%1: %2"},
    {ReasonCode::Several, ""},
    // remap: numbers that make no picture. The value that does not fit, or the divisor
    {ReasonCode::OverflowOf32Bits,
     QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit 32 bits")},
    {ReasonCode::OverflowOf16Bits,
     QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit 16 bits")},
    {ReasonCode::OverflowOfSingle,
     QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit a single-precision number")},
    {ReasonCode::DividedByZero, QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1 is 0")},
    {ReasonCode::DividedByNoNumber,
     QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1 is no number")},
    {ReasonCode::DivisionByZero, QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1")},
    // names of those numbers
    {ReasonCode::OneFrameHasNoSteps,
     QT_TRANSLATE_NOOP("Reasons", "a sequence of one frame has no steps")},
    {ReasonCode::HalfPictureWidth, QT_TRANSLATE_NOOP("Reasons", "half the picture's width")},
    {ReasonCode::TangentOfHalfAngle,
     QT_TRANSLATE_NOOP("Reasons", "the tangent of half the angle of view")},
    {ReasonCode::SineOfHalfAngle,
     QT_TRANSLATE_NOOP("Reasons", "the sine of LensMapFactor x OutputAOV x effect / 2")},
    {ReasonCode::ReferenceRadius,
     QT_TRANSLATE_NOOP("Reasons", "the reference radius (from ImageCircleRadius and Ratio)")},
    {ReasonCode::RowDivisorOfWidePicture,
     QT_TRANSLATE_NOOP("Reasons",
                       "the row divisor (the picture is more than three times as wide as high)")},
    {ReasonCode::RowDivisor, QT_TRANSLATE_NOOP("Reasons", "the row divisor")},
    {ReasonCode::PictureSide, QT_TRANSLATE_NOOP("Reasons", "the picture's side")},
    {ReasonCode::ProgressValue, QT_TRANSLATE_NOOP("Reasons", "the progress value")},
    {ReasonCode::Scale, QT_TRANSLATE_NOOP("Reasons", "the scale")},
    {ReasonCode::Effect, QT_TRANSLATE_NOOP("Reasons", "the effect")},
    {ReasonCode::RotationAngle, QT_TRANSLATE_NOOP("Reasons", "a rotation angle")},
    {ReasonCode::AngleInRadians, QT_TRANSLATE_NOOP("Reasons", "the angle in radians")},
    {ReasonCode::EffectiveAngle, QT_TRANSLATE_NOOP("Reasons", "the effective angle of view")},
    {ReasonCode::CircleRadius, QT_TRANSLATE_NOOP("Reasons", "the circle's radius")},
    {ReasonCode::Translation, QT_TRANSLATE_NOOP("Reasons", "a translation")},
    {ReasonCode::Side, QT_TRANSLATE_NOOP("Reasons", "a side")},
    {ReasonCode::PreviewSide, QT_TRANSLATE_NOOP("Reasons", "a preview side")},
    {ReasonCode::ImageNumber, QT_TRANSLATE_NOOP("Reasons", "an image")},
    {ReasonCode::OutputColumn, QT_TRANSLATE_NOOP("Reasons", "an output column")},
    {ReasonCode::OutputRow, QT_TRANSLATE_NOOP("Reasons", "an output row")},
    {ReasonCode::OutputPosition, QT_TRANSLATE_NOOP("Reasons", "an output position")},
    // remap: written files
    {ReasonCode::NotEnoughMemory, QT_TRANSLATE_NOOP("Reasons", "there is not enough memory")},
    {ReasonCode::NoPicture, QT_TRANSLATE_NOOP("Reasons", "there is no picture")},
    {ReasonCode::CannotBeEncoded, QT_TRANSLATE_NOOP("Reasons", "the picture could not be encoded")},
    {ReasonCode::FileTooLarge,
     QT_TRANSLATE_NOOP("Reasons", "the file would be larger than %1 bytes")},
    {ReasonCode::ExifTooLong,
     QT_TRANSLATE_NOOP("Reasons", "written without its EXIF: too long for a JPEG file")},
    {ReasonCode::PartOfExifTooLong,
     QT_TRANSLATE_NOOP("Reasons", "written without part of its EXIF: too long for a JPEG file")},
    {ReasonCode::XmpTooLong,
     QT_TRANSLATE_NOOP("Reasons", "written without its XMP: too long for a JPEG file")},
    {ReasonCode::IptcTooLong,
     QT_TRANSLATE_NOOP("Reasons", "written without its IPTC: too long for a JPEG file")},
    {ReasonCode::SettingsTooLong,
     QT_TRANSLATE_NOOP("Reasons", "written without its settings: too long for a JPEG file")},
    {ReasonCode::NoPlaceForSettings,
     QT_TRANSLATE_NOOP("Reasons",
                       "written without its settings: the photo's XMP has no place for them")},
    {ReasonCode::MetadataUnreadable,
     QT_TRANSLATE_NOOP("Reasons", "written without its metadata: it cannot be read")},
    {ReasonCode::KindUnreadable,
     QT_TRANSLATE_NOOP("Reasons", "written without its %1: it cannot be read")},
    {ReasonCode::WithoutProfile,
     QT_TRANSLATE_NOOP("Reasons", "written without its colour profile: %1")},
    {ReasonCode::WithoutMetadata, QT_TRANSLATE_NOOP("Reasons", "written without its metadata: %1")},
    {ReasonCode::TypeHoldsNoMetadata, QT_TRANSLATE_NOOP("Reasons", "%1 files hold no metadata")},
    {ReasonCode::TypeHoldsNoSettings, QT_TRANSLATE_NOOP("Reasons", "%1 files hold no settings")},
    {ReasonCode::TypeHoldsNoProfile,
     QT_TRANSLATE_NOOP("Reasons", "%1 files hold no colour profile")},
    {ReasonCode::TypeHoldsNoMetadataOrSettings,
     QT_TRANSLATE_NOOP("Reasons", "%1 files hold no metadata or settings")},
    {ReasonCode::TypeHoldsNoMetadataOrProfile,
     QT_TRANSLATE_NOOP("Reasons", "%1 files hold no metadata or colour profile")},
    {ReasonCode::TypeHoldsNoSettingsOrProfile,
     QT_TRANSLATE_NOOP("Reasons", "%1 files hold no settings or colour profile")},
    {ReasonCode::TypeHoldsPixelsOnly,
     QT_TRANSLATE_NOOP("Reasons", "%1 files hold no metadata, settings or colour profile")},
    {ReasonCode::TypeHoldsNoIptc,
     QT_TRANSLATE_NOOP("Reasons", "written without its IPTC: JPEG XL files hold none")},
    {ReasonCode::TypeHoldsNoTransparency,
     QT_TRANSLATE_NOOP("Reasons", "%1 files cannot be transparent; what would be is black")},
    {ReasonCode::TypeHoldsFewerBits,
     QT_TRANSLATE_NOOP("Reasons", "saved with %1 bits: %2 holds no more")},
    {ReasonCode::CentreReduced,
     QT_TRANSLATE_NOOP("Reasons",
                       "the centre cannot keep the photo's resolution (%3): %1 x %2 pixels")},
    {ReasonCode::NoCleanCrop,
     QT_TRANSLATE_NOOP("Reasons", "there is no part without anything outside the photo")},
    {ReasonCode::CropBeyondFrame, QT_TRANSLATE_NOOP("Reasons", "the crop runs beyond the frame")},
    // decoder
    {ReasonCode::NoSuchFile, QT_TRANSLATE_NOOP("Reasons", "there is no such file")},
    {ReasonCode::LinkLeadsNowhere, QT_TRANSLATE_NOOP("Reasons", "the link leads nowhere")},
    {ReasonCode::IsFolder, QT_TRANSLATE_NOOP("Reasons", "this is a folder, not a picture")},
    {ReasonCode::IsNoRegularFile, QT_TRANSLATE_NOOP("Reasons", "this is no regular file")},
    {ReasonCode::NoPermissionToRead, QT_TRANSLATE_NOOP("Reasons", "no permission to read it")},
    {ReasonCode::FileEmpty, QT_TRANSLATE_NOOP("Reasons", "the file is empty")},
    {ReasonCode::CannotBeOpened, QT_TRANSLATE_NOOP("Reasons", "it cannot be opened")},
    {ReasonCode::NoKnownType,
     QT_TRANSLATE_NOOP("Reasons", "this is not a picture of a known type")},
    {ReasonCode::NoPixels, QT_TRANSLATE_NOOP("Reasons", "the picture has no pixels")},
    {ReasonCode::CannotBeDecoded, QT_TRANSLATE_NOOP("Reasons", "the picture cannot be decoded")},
    {ReasonCode::NoTrueColour,
     QT_TRANSLATE_NOOP("Reasons", "its pixels cannot be converted to 24-bit colour")},
    {ReasonCode::SideTooLong,
     QT_TRANSLATE_NOOP("Reasons", "too large: %1 x %2 pixels, a side may have %3")},
    {ReasonCode::TooManyPixels,
     QT_TRANSLATE_NOOP(
         "Reasons",
         "too large: %1 x %2 pixels need more than three quarters of this machine's memory")},
    {ReasonCode::TooLargeForQuickLook, QT_TRANSLATE_NOOP("Reasons", "too large for a quick look")},
    {ReasonCode::Cancelled, QT_TRANSLATE_NOOP("Reasons", "cancelled")},
    {ReasonCode::AnotherIsRead, QT_TRANSLATE_NOOP("Reasons", "another photo is being read")},
    {ReasonCode::TookTooLong, QT_TRANSLATE_NOOP("Reasons", "took too long (more than %1 seconds)")},
    {ReasonCode::NoMemoryToBeHad,
     QT_TRANSLATE_NOOP("Reasons", "there is no memory for it to be had (%1)")},
    {ReasonCode::DecoderNotStarted,
     QT_TRANSLATE_NOOP("Reasons", "the decoder could not be started (%1)")},
    {ReasonCode::DecoderEndsAtOnce, QT_TRANSLATE_NOOP("Reasons", "it ends at once")},
    {ReasonCode::DecoderEndedBySystem,
     QT_TRANSLATE_NOOP("Reasons",
                       "the system ended the decoder, perhaps for want of memory (signal %1)")},
    {ReasonCode::DecoderDied,
     QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder died of it (signal %1)")},
    {ReasonCode::DecoderGaveUp, QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder gave up on it")},
    {ReasonCode::DecoderTriedForbiddenCall,
     QT_TRANSLATE_NOOP("Reasons",
                       "damaged: the decoder tried something forbidden (system call %1)")},
    {ReasonCode::DecoderTriedForbidden,
     QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder tried something forbidden")},
    {ReasonCode::DecoderMakesNoSense,
     QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder's answer makes no sense")},
    {ReasonCode::RawUnreadable,
     QT_TRANSLATE_NOOP("Reasons", "damaged: the raw photo cannot be read")},
    {ReasonCode::FileCutShort, QT_TRANSLATE_NOOP("Reasons", "damaged: the file is cut short")},
    {ReasonCode::Damaged, QT_TRANSLATE_NOOP("Reasons", "damaged: %1")},
    // files: files that are replaced as a whole
    {ReasonCode::NotRegular, QT_TRANSLATE_NOOP("Reasons", "Not a regular file")},
    {ReasonCode::WhileCreating,
     QT_TRANSLATE_NOOP("Reasons", "%1 (while creating a temporary file)")},
    {ReasonCode::WhileSettingPermissions,
     QT_TRANSLATE_NOOP("Reasons", "%1 (while setting its permissions)")},
    {ReasonCode::WhileSyncingFolder, QT_TRANSLATE_NOOP("Reasons", "%1 (while syncing the folder)")},
    {ReasonCode::WhileSyncing, QT_TRANSLATE_NOOP("Reasons", "%1 (while syncing)")},
    {ReasonCode::WhileWriting, QT_TRANSLATE_NOOP("Reasons", "%1 (while writing)")},
    {ReasonCode::WhileClosing, QT_TRANSLATE_NOOP("Reasons", "%1 (while closing)")},
    {ReasonCode::WhileRenaming, QT_TRANSLATE_NOOP("Reasons", "%1 (while renaming)")},
    // state: the settings file
    {ReasonCode::SettingsUnwritable,
     QT_TRANSLATE_NOOP(
         "Reasons",
         "%1: the settings cannot be written (%2); changes last only until the program ends")},
    {ReasonCode::SettingsUnreadable,
     QT_TRANSLATE_NOOP("Reasons", "%1: the settings cannot be read (%2); %3")},
    {ReasonCode::SettingsDamaged,
     QT_TRANSLATE_NOOP(
         "Reasons",
         "%1: the settings were damaged (%2); %3, the damaged file could not be set aside")},
    {ReasonCode::SettingsDamagedAndKept,
     QT_TRANSLATE_NOOP("Reasons",
                       "%1: the settings were damaged (%2); %3, the damaged file is kept as %4")},
    {ReasonCode::CopyIsUsed, QT_TRANSLATE_NOOP("Reasons", "their last good copy is used")},
    {ReasonCode::SettingsBeginAfresh,
     QT_TRANSLATE_NOOP("Reasons", "without a copy they begin afresh")},
    {ReasonCode::RestIsUsed,
     QT_TRANSLATE_NOOP("Reasons", "without a copy what could be read is used")},
    {ReasonCode::AllNamesTaken, QT_TRANSLATE_NOOP("Reasons", "all its names are taken")},
    {ReasonCode::NotSetAside,
     QT_TRANSLATE_NOOP("Reasons", "the damaged file could not be set aside: %1")},
    {ReasonCode::FolderNotMade, QT_TRANSLATE_NOOP("Reasons", "the folder cannot be made")},
    {ReasonCode::SettingsLocked, QT_TRANSLATE_NOOP("Reasons", "another program keeps them locked")},
    {ReasonCode::GearTitleLost,
     QT_TRANSLATE_NOOP("Reasons", "the gears' section has lost its title")},
    {ReasonCode::GearNumberMissing, QT_TRANSLATE_NOOP("Reasons", "the number of gears is missing")},
    {ReasonCode::GearMissing, QT_TRANSLATE_NOOP("Reasons", "gear %1 of %2 is missing")},
    {ReasonCode::DefaultGearMissing, QT_TRANSLATE_NOOP("Reasons", "the default gear is missing")},
    {ReasonCode::NotUtf8, QT_TRANSLATE_NOOP("Reasons", "not UTF-8 text")},
    {ReasonCode::TextCutShort, QT_TRANSLATE_NOOP("Reasons", "cut short")},
    {ReasonCode::LineIsNoSetting, QT_TRANSLATE_NOOP("Reasons", "line %1 is no setting")},
    {ReasonCode::SettingsEmpty, QT_TRANSLATE_NOOP("Reasons", "empty")},
    // lenses that are curves and their files
    {ReasonCode::LensTurnsBack,
     QT_TRANSLATE_NOOP("Reasons", "the lens's curve turns back at %1 degrees")},
    {ReasonCode::LensCurveUnsound,
     QT_TRANSLATE_NOOP("Reasons", "the lens's curve is not made of 16 usable points")},
    {ReasonCode::DoesNotRise, QT_TRANSLATE_NOOP("Reasons", "%1 does not rise from point to point")},
    {ReasonCode::LensCurve, QT_TRANSLATE_NOOP("Reasons", "the lens's curve")},
    {ReasonCode::LargerThanMegabytes, QT_TRANSLATE_NOOP("Reasons", "larger than %1 MB")},
    {ReasonCode::NoLensFile, QT_TRANSLATE_NOOP("Reasons", "this is no lens file of a known kind")},
    {ReasonCode::NoFisheye, QT_TRANSLATE_NOOP("Reasons", "there is no fisheye lens in it")},
    {ReasonCode::NewerVersion,
     QT_TRANSLATE_NOOP("Reasons", "made by a newer version of the program")},
    {ReasonCode::AtLine, QT_TRANSLATE_NOOP("Reasons", "line %1: %2")},
    {ReasonCode::KeyMissing, QT_TRANSLATE_NOOP("Reasons", "\"%1\" is missing")},
    {ReasonCode::KeyUnusable,
     QT_TRANSLATE_NOOP("Reasons", "\"%1\" has a value that cannot be used")},
    {ReasonCode::ModelUnknown, QT_TRANSLATE_NOOP("Reasons", "the lens model \"%1\" is not known")},
    {ReasonCode::LensNameTaken,
     QT_TRANSLATE_NOOP("Reasons", "there is already a lens of this name")},
    {ReasonCode::LensNameUnusable, QT_TRANSLATE_NOOP("Reasons", "a lens needs a name")},
    {ReasonCode::NoSuchLens, QT_TRANSLATE_NOOP("Reasons", "there is no lens of this name")},
    {ReasonCode::NoLensEnding,
     QT_TRANSLATE_NOOP("Reasons", "lenses are written to files that end in .json, .yaml or .xml")},
    // films: reading
    {ReasonCode::NoKnownFilm, QT_TRANSLATE_NOOP("Reasons", "this is not a film of a known type")},
    {ReasonCode::FilmWithoutPicture,
     QT_TRANSLATE_NOOP("Reasons", "there is no video stream in the film")},
    {ReasonCode::FilmWithoutFrames,
     QT_TRANSLATE_NOOP("Reasons", "there is no picture in the film that can be decoded")},
    {ReasonCode::FilmEncrypted, QT_TRANSLATE_NOOP("Reasons", "the film is encrypted")},
    {ReasonCode::FilmCodecUnknown,
     QT_TRANSLATE_NOOP("Reasons", "the film's codec cannot be decoded: %1")},
    {ReasonCode::FilmChanges,
     QT_TRANSLATE_NOOP("Reasons",
                       "from %1 seconds on the film's pictures have another size or pixel format")},
    {ReasonCode::FrameLost,
     QT_TRANSLATE_NOOP("Reasons", "the picture at %1 seconds cannot be decoded")},
    {ReasonCode::FrameDamaged,
     QT_TRANSLATE_NOOP("Reasons", "the picture at %1 seconds is damaged")},
    // films: writing
    {ReasonCode::FilmsNotWritable, QT_TRANSLATE_NOOP("Reasons", "films cannot be written: %1")},
    {ReasonCode::NoEncoder,
     QT_TRANSLATE_NOOP("Reasons", "the installed libavcodec has no encoder for %1 (%2)")},
    {ReasonCode::EncoderTakesNoSuchFrames,
     QT_TRANSLATE_NOOP("Reasons", "the encoder %1 takes no pictures of %2; these do: %3")},
    {ReasonCode::EncoderTakesNoSuchValue,
     QT_TRANSLATE_NOOP("Reasons", "the encoder %1 takes no %2 \"%3\"; it takes: %4")},
    {ReasonCode::EncoderFailed, QT_TRANSLATE_NOOP("Reasons", "the encoder %1 failed: %2")},
    {ReasonCode::ContainerHoldsNo,
     QT_TRANSLATE_NOOP("Reasons", "%1 files cannot hold %2; these can: %3")},
    {ReasonCode::StreamLeftOut,
     QT_TRANSLATE_NOOP("Reasons", "stream %1 (%2) is left out: %3 files cannot hold it")},
    {ReasonCode::FilmIsBeingWritten,
     QT_TRANSLATE_NOOP("Reasons", "another program is writing this film")},
    {ReasonCode::FrameTooLate,
     QT_TRANSLATE_NOOP("Reasons",
                       "the picture at %1 seconds comes behind a later one and is left out")},
    {ReasonCode::NothingBetweenTimes,
     QT_TRANSLATE_NOOP("Reasons",
                       "the film has no picture from %1 to %2 seconds; it is %3 seconds long")},
    {ReasonCode::StillOfOtherSize,
     QT_TRANSLATE_NOOP("Reasons", "its picture has %1 x %2 pixels, the film's first one %3 x %4")},
};

constexpr bool StandByTheirCodes() {
    for (std::size_t n = 0; n < std::size(rows); ++n) {
        if (rows[n].code != static_cast<ReasonCode>(n)) {
            return false;
        }
    }
    return std::size(rows) == static_cast<std::size_t>(ReasonCode::Count);
}
static_assert(StandByTheirCodes());

const char* EnglishOf(ReasonCode code) {
    return rows[static_cast<std::size_t>(code)].text;
}

QString TextOf(ReasonCode code) {
    return code <= ReasonCode::Several ? QString::fromUtf8(EnglishOf(code))
                                       : QCoreApplication::translate("Reasons", EnglishOf(code));
}

// In one pass: an argument may itself contain "%1".
QString Filled(const QString& text, const QStringList& values) {
    QString filled;
    for (qsizetype n = 0; n < text.size(); ++n) {
        const int value = text[n] == u'%' && n + 1 < text.size() ? text[n + 1].digitValue() : -1;
        if (value >= 1 && value <= values.size()) {
            filled += values[value - 1];
            ++n;
        } else {
            filled += text[n];
        }
    }
    return filled;
}

QString ValueText(qint64 number) {
    return QString::number(number);
}
QString ValueText(const QString& text) {
    return text;
}
QString ValueText(const Reason& reason) {
    return ErrorText(reason);
}

QString SystemWords(qint64 error) {
    return QString::fromLocal8Bit(std::generic_category().message(static_cast<int>(error)).c_str());
}

}  // namespace

int ArgumentCount(ReasonCode code) {
    return static_cast<int>(std::ranges::count(std::string_view(EnglishOf(code)), '%'));
}

QString ErrorText(const Reason& reason) {
    if (reason.Is(ReasonCode::SystemError)) {
        return SystemWords(std::get<qint64>(reason.Arguments().front()));
    }
    QStringList values;
    for (const Reason::Argument& argument : reason.Arguments()) {
        values.append(std::visit([](const auto& value) { return ValueText(value); }, argument));
    }
    return reason.Is(ReasonCode::Several) ? values.join(QStringLiteral("; "))
                                          : Filled(TextOf(reason.Code()), values);
}

}  // namespace varnel
