// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Everything that can be wrong with a photo, a number, a written file or the settings. The texts
// are in error_text.cpp, in the same order. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

enum class ReasonCode : std::uint16_t {
    None,         // no error
    Words,        // a text of the system or of a library
    SystemError,  // a value of errno
    Added,        // a reason and a library's text about it
    Of,           // a file or folder and what is wrong with it
    Several,      // reasons one after the other
    // remap: numbers that make no picture. The value that does not fit, or the divisor
    OverflowOf32Bits,
    OverflowOf16Bits,
    OverflowOfSingle,
    DividedByZero,
    DividedByNoNumber,
    DivisionByZero,
    // names of those numbers
    OneFrameHasNoSteps,
    HalfPictureWidth,
    TangentOfHalfAngle,
    SineOfHalfAngle,
    ReferenceRadius,
    RowDivisorOfWidePicture,
    RowDivisor,
    PictureSide,
    ProgressValue,
    Scale,
    Effect,
    RotationAngle,
    AngleInRadians,
    EffectiveAngle,
    CircleRadius,
    Translation,
    Side,
    PreviewSide,
    ImageNumber,
    OutputColumn,
    OutputRow,
    OutputPosition,
    // remap: written files
    NotEnoughMemory,
    NoPicture,
    CannotBeEncoded,
    FileTooLarge,
    ExifTooLong,
    PartOfExifTooLong,
    XmpTooLong,
    IptcTooLong,
    SettingsTooLong,
    NoPlaceForSettings,
    MetadataUnreadable,
    KindUnreadable,
    WithoutProfile,
    WithoutMetadata,
    TypeHoldsNoMetadata,
    TypeHoldsNoSettings,
    TypeHoldsNoProfile,
    TypeHoldsNoMetadataOrSettings,
    TypeHoldsNoMetadataOrProfile,
    TypeHoldsNoSettingsOrProfile,
    TypeHoldsPixelsOnly,
    // decoder
    NoSuchFile,
    LinkLeadsNowhere,
    IsFolder,
    IsNoRegularFile,
    NoPermissionToRead,
    FileEmpty,
    CannotBeOpened,
    NoKnownType,
    NoPixels,
    CannotBeDecoded,
    NoTrueColour,
    SideTooLong,
    TooManyPixels,
    TooLargeForQuickLook,
    Cancelled,
    AnotherIsRead,
    TookTooLong,
    NoMemoryToBeHad,
    DecoderNotStarted,
    DecoderEndsAtOnce,
    DecoderEndedBySystem,
    DecoderDied,
    DecoderGaveUp,
    DecoderTriedForbiddenCall,
    DecoderTriedForbidden,
    DecoderMakesNoSense,
    RawUnreadable,
    FileCutShort,
    Damaged,
    // files: files that are replaced as a whole
    NotRegular,
    WhileCreating,
    WhileSettingPermissions,
    WhileSyncingFolder,
    WhileSyncing,
    WhileWriting,
    WhileClosing,
    WhileRenaming,
    // state: the settings file
    SettingsUnwritable,
    SettingsUnreadable,
    SettingsDamaged,
    SettingsDamagedAndKept,
    CopyIsUsed,
    SettingsBeginAfresh,
    RestIsUsed,
    AllNamesTaken,
    NotSetAside,
    FolderNotMade,
    SettingsLocked,
    GearTitleLost,
    GearNumberMissing,
    GearMissing,
    DefaultGearMissing,
    NotUtf8,
    TextCutShort,
    LineIsNoSetting,
    SettingsEmpty,
    // lenses that are curves and their files
    LensTurnsBack,
    LensCurveUnsound,
    DoesNotRise,
    LensCurve,
    LargerThanMegabytes,
    NoLensFile,
    NoFisheye,
    NewerVersion,
    AtLine,
    KeyMissing,
    KeyUnusable,
    ModelUnknown,
    LensNameTaken,
    LensNameUnusable,
    NoSuchLens,
    Count  // of the codes; not a code itself
};

}  // namespace varnel
