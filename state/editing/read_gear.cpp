// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/read_gear.h"

#include <cmath>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/from_photo/gear_offer.h"
#include "gear/from_photo/photo_gear.h"
#include "gear/from_photo/photo_lens.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

ImageRecord FreshRecord(const ImageRecord& image) {
    ImageRecord fresh;
    fresh.FileName = image.FileName;
    fresh.Folder = image.Folder;
    fresh.Width = image.Width;
    fresh.Height = image.Height;
    fresh.Landscape = image.Landscape;
    fresh.Orientation = image.Orientation;
    fresh.Film = image.Film;
    return fresh;
}

// As it is when the photo was looked at.
ImageRecord WithDefaultGear(const GearTable& table, const ImageRecord& image) {
    ImageRecord seen = FreshRecord(image);
    if (table.Default() > 0) {
        AssignGear(table(table.Default()), seen);
    }
    return seen;
}

// A sampled lens may state the scale itself.
FrameReading ReadFrameOf(const std::optional<FoundCircle>& circle, ImageRecord& image) {
    if (image.Lens && (TakeLensScale(image) || ShapeError(image).isEmpty())) {
        return {};
    }
    return ReadFrame(circle, image);
}

GearRecord IntoTable(GearRecord gear, GearTable& table, std::vector<GearRecord>& newGears) {
    gear.GearName = UniqueGearName(table, gear.GearName);
    table.Resize(table.UpperBound() + 1);
    table(table.UpperBound()) = gear;
    newGears.push_back(gear);
    return gear;
}

bool HasFrameOf(const ImageRecord& one, const ImageRecord& other) {
    const auto near = [](float a, float b) { return std::fabs(a - b) <= 0.01F; };
    return near(one.SensorWidth, other.SensorWidth) && near(one.SensorHeight, other.SensorHeight) &&
           near(one.OfsetX, other.OfsetX) && near(one.OfsetY, other.OfsetY) &&
           near(one.Ratio, other.Ratio);
}

ImageRecord WithFrameOf(const ImageRecord& frame, ImageRecord image) {
    image.SensorWidth = frame.SensorWidth;
    image.SensorHeight = frame.SensorHeight;
    image.OfsetX = frame.OfsetX;
    image.OfsetY = frame.OfsetY;
    image.Ratio = frame.Ratio;
    const bool usual = image.OutputAOV == UsualOutputAov(image);
    image.InputAOV = frame.InputAOV;
    image.OutputAOV = usual ? UsualOutputAov(image) : image.OutputAOV;
    image.SettingsApplied = true;
    return image;
}

}  // namespace

bool IsUntouched(const ImageRecord& image, const GearTable& table) {
    const bool hasKeys = image.Film && !image.Film->keys.empty();
    return !hasKeys && (image == FreshRecord(image) || image == WithDefaultGear(table, image));
}

FrameReading GiveGearAndFrame(const GearRecord& gear, const std::optional<FoundCircle>& circle,
                              ImageRecord& image) {
    image.SettingsApplied = false;
    AssignGear(gear, image);
    const ImageRecord whole = image;
    const FrameReading reading = ReadFrameOf(circle, image);
    // Otherwise the gear's own numbers would come back when the photo is looked at.
    image.SettingsApplied = !(image == whole);
    return reading;
}

ReadGear GiveReadGear(const PhotoReading& reading, GearTable& table,
                      std::vector<GearRecord>& newGears, ImageRecord& image) {
    const PhotoGear found = GearOfPhoto(reading.origin, table);
    const ImageRecord seen = WithDefaultGear(table, image);
    ImageRecord read = FreshRecord(image);
    ReadGear got = ReadGear::Own;
    if (const std::optional<GearRecord> gear = CertainGear(found, table)) {
        GiveGearAndFrame(found.gear > 0 ? *gear : IntoTable(*gear, table, newGears), reading.circle,
                         read);
    } else if (NamesPlainLens(reading.origin) ||
               (table.Default() > 0 && SpeaksFor(reading.origin, table(table.Default())))) {
        return ReadGear::Same;
    } else {
        GuessFrame(reading.origin, reading.circle, read);
        got = ReadGear::Guess;
    }
    if (read == seen) {
        return ReadGear::Same;
    }
    image = read;
    return got;
}

bool IsGuessed(const ImageRecord& image) {
    return image.GearName == GuessedGearName();
}

FrameChoice FrameChoiceOf(const GearRecord& gear, const std::optional<FoundCircle>& circle,
                          const ImageRecord& image) {
    FrameChoice choice;
    ImageRecord whole = FreshRecord(image);
    AssignGear(gear, whole);
    ImageRecord read = FreshRecord(image);
    choice.reading = GiveGearAndFrame(gear, circle, read);
    if (HasFrameOf(whole, read)) {
        return choice;
    }
    if (HasFrameOf(image, whole)) {
        choice.use = FrameUse::AsGear;
        choice.other = WithFrameOf(read, image);
    } else if (HasFrameOf(image, read)) {
        choice.use = FrameUse::AsPicture;
        choice.other = WithFrameOf(whole, image);
    }
    return choice;
}

}  // namespace varnel
