// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/exif_names.h"

#include <array>

namespace varnel {

namespace {

constexpr auto makes = std::to_array<MakeName>({
    {u"CANON", u"Canon"},
    {u"NIKON", u"Nikon"},
    {u"SONY", u"Sony"},
    {u"FUJI", u"Fuji"},
    {u"OLYMPUS", u"Olympus"},
    {u"OM DIGITAL", u"OM System"},
    {u"OM DIGITAL", u"Olympus"},  // the last cameras of that name
    {u"OM SYSTEM", u"OM System"},
    {u"PANASONIC", u"Panasonic"},
    {u"PENTAX", u"Pentax"},
    {u"ASAHI", u"Pentax"},
    {u"RICOH", u"Pentax"},
    {u"LEICA", u"Leica"},
    {u"SAMSUNG", u"Samsung"},
    {u"SIGMA", u"Sigma"},
    {u"GOPRO", u"GoPro"},
    {u"HASSELBLAD", u"Hasselblad"},
    {u"KODAK", u"Kodak"},
    {u"EASTMAN KODAK", u"Kodak"},
    {u"KONICA MINOLTA", u"Konica Minolta"},
    {u"CONTAX", u"Contax"},
    {u"KYOCERA", u"Contax"},
    {u"EPSON", u"Epson"},
    {u"SEIKO EPSON", u"Epson"},
    {u"YI TECHNOLOGY", u"YI"},
    {u"PARROT", u"Drones"},
});

constexpr auto affixes = std::to_array<MakerAffix>({
    {u"Canon", u"CANON ", u" DIGITAL"},
    {u"Nikon", u"NIKON ", u""},
    {u"Sony", u"SONY ", u""},
    {u"Sony", u"ILME-", u""},
    {u"Fuji", u"FUJIFILM ", u""},
    {u"Olympus", u"OLYMPUS ", u""},
    {u"Olympus", u"OM-D ", u""},
    {u"Olympus", u"PEN ", u""},
    {u"Panasonic", u"LUMIX ", u""},
    {u"Pentax", u"PENTAX ", u""},
    {u"Leica", u"LEICA ", u" DIGITAL CAMERA"},
    {u"Samsung", u"SAMSUNG ", u""},
    {u"Sigma", u"SIGMA ", u""},
    {u"GoPro", u"GOPRO ", u" EDITION"},
    {u"Hasselblad", u"HASSELBLAD ", u""},
    {u"Kodak", u"KODAK ", u""},
    {u"Contax", u"CONTAX ", u""},
    {u"Epson", u"EPSON ", u""},
    {u"Drones", u"PARROT ", u" DRONE"},
});

constexpr auto aliases = std::to_array<CameraAlias>({
    {u"Canon", u"EOS DIGITAL REBEL", u"EOS 300D"},
    {u"Canon", u"EOS Kiss Digital", u"EOS 300D"},
    {u"Canon", u"EOS DIGITAL REBEL XT", u"EOS 350D"},
    {u"Canon", u"EOS Kiss Digital N", u"EOS 350D"},
    {u"Canon", u"EOS DIGITAL REBEL XTi", u"EOS 400D"},
    {u"Canon", u"EOS Kiss Digital X", u"EOS 400D"},
    {u"Canon", u"EOS DIGITAL REBEL XSi", u"EOS 450D"},
    {u"Canon", u"EOS Kiss X2", u"EOS 450D"},
    {u"Canon", u"EOS REBEL T1i", u"EOS 500D"},
    {u"Canon", u"EOS Kiss X3", u"EOS 500D"},
    {u"Canon", u"EOS REBEL T2i", u"EOS 550D"},
    {u"Canon", u"EOS Kiss X4", u"EOS 550D"},
    {u"Canon", u"EOS REBEL T3i", u"EOS 600D"},
    {u"Canon", u"EOS Kiss X5", u"EOS 600D"},
    {u"Canon", u"EOS REBEL T4i", u"EOS 650D"},
    {u"Canon", u"EOS Kiss X6i", u"EOS 650D"},
    {u"Canon", u"EOS REBEL T5i", u"EOS 700D"},
    {u"Canon", u"EOS Kiss X7i", u"EOS 700D"},
    {u"Canon", u"EOS Rebel T6i", u"EOS 750D"},
    {u"Canon", u"EOS Kiss X8i", u"EOS 750D"},
    {u"Canon", u"EOS Rebel T6s", u"EOS 760D"},
    {u"Canon", u"EOS 8000D", u"EOS 760D"},
    {u"Canon", u"EOS Rebel T7i", u"EOS 800D"},
    {u"Canon", u"EOS Kiss X9i", u"EOS 800D"},
    {u"Canon", u"EOS Rebel T8i", u"EOS 850D"},
    {u"Canon", u"EOS Kiss X10i", u"EOS 850D"},
    {u"Canon", u"EOS 9000D", u"EOS 77D"},
    {u"Canon", u"EOS REBEL SL1", u"EOS 100D"},
    {u"Canon", u"EOS Kiss X7", u"EOS 100D"},
    {u"Canon", u"EOS Rebel SL2", u"EOS 200D"},
    {u"Canon", u"EOS Kiss X9", u"EOS 200D"},
    {u"Canon", u"EOS Rebel SL3", u"EOS 250D"},
    {u"Canon", u"EOS Kiss X10", u"EOS 250D"},
    {u"Canon", u"EOS 200D Mark II", u"EOS 250D"},
    {u"Canon", u"EOS DIGITAL REBEL XS", u"EOS 1000D"},
    {u"Canon", u"EOS Kiss F", u"EOS 1000D"},
    {u"Canon", u"EOS REBEL T3", u"EOS 1100D"},
    {u"Canon", u"EOS Kiss X50", u"EOS 1100D"},
    {u"Canon", u"EOS REBEL T5", u"EOS 1200D"},
    {u"Canon", u"EOS Kiss X70", u"EOS 1200D"},
    {u"Canon", u"EOS Rebel T6", u"EOS 1300D"},
    {u"Canon", u"EOS Kiss X80", u"EOS 1300D"},
    {u"Canon", u"EOS Rebel T7", u"EOS 2000D"},
    {u"Canon", u"EOS 1500D", u"EOS 2000D"},
    {u"Canon", u"EOS Kiss X90", u"EOS 2000D"},
    {u"Canon", u"EOS Rebel T100", u"EOS 4000D"},
    {u"Canon", u"EOS 3000D", u"EOS 4000D"},
    {u"Canon", u"EOS Kiss M", u"EOS M50"},
    {u"Canon", u"EOS M50m2", u"EOS M50-mkII"},
    {u"Canon", u"EOS Kiss M2", u"EOS M50-mkII"},
    {u"Canon", u"EOS R6m2", u"EOS R6-mkII"},
    {u"Nikon", u"Z 6_2", u"Z 6II"},
    {u"Nikon", u"Z 7_2", u"Z 7II"},
    {u"Konica Minolta", u"MAXXUM 5D", u"Dynax 5D"},
    {u"Konica Minolta", u"ALPHA SWEET DIGITAL", u"Dynax 5D"},
    {u"Konica Minolta", u"MAXXUM 7D", u"Dynax 7D"},
    {u"Konica Minolta", u"ALPHA-7 DIGITAL", u"Dynax 7D"},
    {u"Leica", u"R8 - Digital Back DMR", u"Digital-Modul-R"},
    {u"Leica", u"R9 - Digital Back DMR", u"Digital-Modul-R"},
    {u"Panasonic", u"DMC-G8", u"Lumix DMC-G80"},
    {u"Panasonic", u"DMC-G81", u"Lumix DMC-G80"},
    {u"Panasonic", u"DMC-G85", u"Lumix DMC-G80"},
    {u"Panasonic", u"DMC-G70", u"Lumix DMC-G7"},
    {u"Panasonic", u"DC-G91", u"Lumix DC-G90"},
    {u"Panasonic", u"DC-G95", u"Lumix DC-G90"},
    {u"Panasonic", u"DC-G99", u"Lumix DC-G90"},
    {u"Panasonic", u"DC-G110", u"Lumix DC-G100"},
    {u"Panasonic", u"DMC-GX85", u"Lumix DMC-GX80"},
    {u"Panasonic", u"DMC-GX7MK2", u"Lumix DMC-GX80"},
    {u"Panasonic", u"DC-GX7MK3", u"Lumix DC-GX9"},
    {u"Panasonic", u"DC-GX850", u"Lumix DC-GX800"},
    {u"Panasonic", u"DC-GF90", u"Lumix DC-GF10"},
    {u"Panasonic", u"DC-GH5M2", u"Lumix DC-GH5 II"},
    {u"Panasonic", u"DC-S5M2", u"Lumix DC-S5II"},
    {u"Panasonic", u"DC-S5M2X", u"Lumix DC-S5IIX"},
    {u"Samsung", u"EK-GN120", u"Galaxy NX"},
    {u"Sony", u"ILCE-QX1", u"QX1"},
});

constexpr auto lensWords = std::to_array<LensWord>({
    {u"CANON", u"Canon"},
    {u"EF", u"Canon"},
    {u"ENTANIYA", u"Entaniya"},
    {u"HAL", u"Entaniya"},
    {u"MINOLTA", u"Konica Minolta"},
    {u"MAXXUM", u"Konica Minolta"},
    {u"NIKON", u"Nikon"},
    {u"NIKKOR", u"Nikon"},
    {u"OLYMPUS", u"Olympus"},
    {u"ZUIKO", u"Olympus"},
    {u"PANASONIC", u"Panasonic"},
    {u"LUMIX", u"Panasonic"},
    {u"PELENG", u"Peleng"},
    {u"PENTAX", u"Pentax"},
    {u"SMCP", u"Pentax"},
    {u"SAMSUNG", u"Samsung"},
    {u"SAMYANG", u"Samyang"},
    {u"ROKINON", u"Samyang"},  // the same lenses under other names
    {u"WALIMEX", u"Samyang"},
    {u"BOWER", u"Samyang"},
    {u"SIGMA", u"Sigma"},
    {u"EX", u"Sigma"},
    {u"SONY", u"Sony"},
    {u"SAL", u"Sony"},
    {u"TOKINA", u"Tokina"},
    {u"LAOWA", u"Venus Laowa"},
    {u"YASUHARA", u"Yasuhara"},
    {u"MADOKA", u"Yasuhara"},
    {u"ZEISS", u"Zeiss"},
    {u"DISTAGON", u"Zeiss"},
    {u"ZENITAR", u"Zenitar"},
});

constexpr auto commonLensWords =
    std::to_array<std::u16string_view>({u"MM", u"F", u"FISHEYE", u"FISH", u"EYE", u"CIRCULAR",
                                        u"DIAGONAL", u"LENS", u"D", u"G", u"DX", u"ED"});

constexpr auto silentLenses = std::to_array<SilentLens>({
    {u"Entaniya", u""},
    {u"Nikon", u"8 mm"},
    {u"Olympus", u"FCON-T01"},  // a converter
    {u"Peleng", u""},
    {u"Pentax", u"SMCP-A 16mm f/2.8"},
    {u"Venus Laowa", u""},
    {u"Yasuhara", u""},
    {u"Zeiss", u""},
    {u"Zenitar", u""},
});

}  // namespace

std::span<const MakeName> MakeNames() {
    return makes;
}

std::span<const MakerAffix> MakerAffixes() {
    return affixes;
}

std::span<const CameraAlias> CameraAliases() {
    return aliases;
}

std::span<const LensWord> LensWords() {
    return lensWords;
}

std::span<const std::u16string_view> CommonLensWords() {
    return commonLensWords;
}

std::span<const SilentLens> SilentLenses() {
    return silentLenses;
}

}  // namespace varnel
