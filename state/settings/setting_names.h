// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The names under which settings are kept. They must not change: settings of older releases are
// found by them ("Ofset" with one f, "setting" beside "Settings"). Throws nothing.
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace varnel::setting {

// Sections.
inline constexpr QLatin1StringView General("setting");
inline constexpr QLatin1StringView LastUsed("Settings");
inline constexpr QLatin1StringView Gear("Gear");
inline constexpr QLatin1StringView Revision("Revision");
inline constexpr QLatin1StringView Projects("Projects");
inline constexpr QLatin1StringView Window("Window");    // the main window's layout and choices
inline constexpr QLatin1StringView Presets("Presets");  // since 1.1

// General settings.
inline constexpr QLatin1StringView PreviewWidth("PreviewWidth");
inline constexpr QLatin1StringView PreviewHeight("PreviewHeight");
inline constexpr QLatin1StringView FileType("FileType");
inline constexpr QLatin1StringView JpegCompression("JPEGcompression");
inline constexpr QLatin1StringView JpegChroma444("JPEGchroma444");  // this and the next: 1 or 0
inline constexpr QLatin1StringView FineSampling("FineSampling");    // since 1.1
inline constexpr QLatin1StringView AutoOrient("AutoOrient");
inline constexpr QLatin1StringView OfferGear("OfferGear");
inline constexpr QLatin1StringView TakeGear("TakeGear");  // since 1.1
inline constexpr QLatin1StringView WriteMetadata("WriteMetadata");
inline constexpr QLatin1StringView WriteSettings("WriteSettings");
inline constexpr QLatin1StringView KeepDepth("KeepDepth");              // since 1.1
inline constexpr QLatin1StringView LessMemory("LessMemory");            // since 1.1
inline constexpr QLatin1StringView TiffCompression("TiffCompression");  // since 1.1
inline constexpr QLatin1StringView Language("Language");

// The one gear of an older release, among the general settings.
inline constexpr QLatin1StringView OldCameraBrand("CameraBrand");
inline constexpr QLatin1StringView OldCameraModel("CameraModel");
inline constexpr QLatin1StringView OldLensBrand("LensBrand");
inline constexpr QLatin1StringView OldLensModel("LensModel");

// The folder of the add-images dialog.
inline constexpr QLatin1StringView LastDrive("LastDrive");
inline constexpr QLatin1StringView LastPath("LastPath");

// The gear table.
inline constexpr QLatin1StringView NumGear("NumGear");
inline constexpr QLatin1StringView DefaultGearName("DefaultGearName");
inline constexpr int mostGears = 10000;  // are loaded: a damaged count must not fill the memory

// One gear each, followed by the gear's number.
inline constexpr QLatin1StringView GearName("GearName");
inline constexpr QLatin1StringView GearCameraBrand("GearCameraBrand");
inline constexpr QLatin1StringView GearCameraModel("GearCameraModel");
inline constexpr QLatin1StringView GearLensBrand("GearLensBrand");
inline constexpr QLatin1StringView GearLensModel("GearLensModel");
inline constexpr QLatin1StringView GearLensDataVersion("GearLensDataVersion");
inline constexpr QLatin1StringView GearOfsetX("GearOfsetX");
inline constexpr QLatin1StringView GearOfsetY("GearOfsetY");
inline constexpr QLatin1StringView GearRatio("GearRatio");
inline constexpr QLatin1StringView HorizontalAov("hAOV");
inline constexpr QLatin1StringView VerticalAov("vAOV");
// 1 or 0, or 2 for a gear that has the four numbers below; since 1.1. The lens of a gear with the
// brand "My lenses" is the file in lenses/ that has the model as its name.
inline constexpr QLatin1StringView GearSetByHand("GearSetByHand");
inline constexpr QLatin1StringView GearSensorWidth("GearSensorWidth");  // 0: the camera's
inline constexpr QLatin1StringView GearSensorHeight("GearSensorHeight");
inline constexpr QLatin1StringView GearLensScale("GearLensScale");  // 0: the lens's
inline constexpr QLatin1StringView GearLensFactor("GearLensFactor");

// A project file, followed by its number: 1 is the latest.
inline constexpr QLatin1StringView Project("Project");

// The user's presets: how many, and one each as JSON, followed by its number.
inline constexpr QLatin1StringView NumPreset("NumPreset");
inline constexpr QLatin1StringView Preset("Preset");

// The update reminder.
inline constexpr QLatin1StringView RevisionAge("RevisionAge");

// "GearName" and 1 give "GearName1".
inline QString ItemKey(QLatin1StringView name, int number) {
    return name + QString::number(number);
}

}  // namespace varnel::setting
