// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How cameras spell themselves and their lenses in EXIF where that differs from the catalogues.
// Words are in capitals; everything else is spelled as in the file. Throws nothing.
#pragma once

#include <span>
#include <string_view>

namespace varnel {

// A maker's EXIF name starts with the words. One maker may have cameras under two brands.
struct MakeName {
    std::u16string_view words;
    std::u16string_view brand;
};
std::span<const MakeName> MakeNames();

// What a maker adds before or after the model's own name, in EXIF or in the catalogue.
struct MakerAffix {
    std::u16string_view brand;
    std::u16string_view before;
    std::u16string_view after;
};
std::span<const MakerAffix> MakerAffixes();

// Names of one camera in other parts of the world, and codes.
struct CameraAlias {
    std::u16string_view brand;
    std::u16string_view exif;
    std::u16string_view model;  // as in the catalogue
};
std::span<const CameraAlias> CameraAliases();

// A word of a lens's name that identifies its maker.
struct LensWord {
    std::u16string_view word;
    std::u16string_view brand;
};
std::span<const LensWord> LensWords();
// Words that any maker's lens may have in its name.
std::span<const std::u16string_view> CommonLensWords();

// Lenses that never report their focal length to a camera; an empty model stands for all of the
// brand.
struct SilentLens {
    std::u16string_view brand;
    std::u16string_view model;
};
std::span<const SilentLens> SilentLenses();

}  // namespace varnel
