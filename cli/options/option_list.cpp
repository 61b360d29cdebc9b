// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/option_list.h"

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr std::array photoRows{
    OptionRow{u"like", u"PICTURE",
              u"As that picture of Varnel's was made; other options win. Without PHOTO: its own."},
    OptionRow{
        u"stitch", nullptr,
        u"Two opposite circles, in one photo or two, as one sphere; --input-aov: across each."},
    OptionRow{u"files-from", u"LIST",
              u"The photos that a file names, one a line or by zero bytes; - is standard input."},
    OptionRow{u"raw-jpeg", u"WHICH",
              u"Of photos given as raw file and as JPEG: raw, jpeg or both (default)."},
    OptionRow{u"raw-profile", u"NAME",
              u"The colours that raw photos are developed into: srgb (default), adobe-rgb or "
              u"rec2020."},
    OptionRow{u"raw-quick", nullptr, u"Raw photos at half their size, in a quarter of the time."},
    OptionRow{u"no-auto-orient", nullptr,
              u"Take photos as they are stored, whatever their EXIF says."},
};

constexpr std::array gearRows{
    OptionRow{u"gear", u"NAME",
              u"A gear of the settings (default: the default gear); auto: by the EXIF; guess: "
              u"that, or a typical fisheye."},
    OptionRow{u"circle", u"C",
              u"The image circle: auto (found; default with --gear auto, guess), off (the gear's) "
              u"or X,Y,R in pixels."},
    OptionRow{u"camera", u"BRAND/MODEL", u"A camera of the catalogue, with --lens."},
    OptionRow{u"lens", u"BRAND/MODEL", u"A lens of the catalogue, with --camera."},
    OptionRow{u"lens-file", u"FILE",
              u"A lens with a curve of its own in the place of the gear's: Varnel's JSON, or a "
              u"calibration."},
    OptionRow{u"import-lens", u"FILE",
              u"Take over the lenses of a calibration or lens database as \"My lenses/...\"."},
    OptionRow{u"export-lens", u"FILE",
              u"Write the lens of --lens or --lens-file for other programs: .json, .yaml (OpenCV), "
              u".xml (lensfun)."},
    OptionRow{u"measure-lens", u"FILE",
              u"Measure the lens from straight edges in one to four photos and write it to FILE."},
    OptionRow{u"straighten", nullptr,
              u"Measure each photo's lens from straight edges on the photo, where they tell it."},
    OptionRow{u"focal", u"MM", u"The focal length of the measured lens; fixes its angles."},
    OptionRow{u"fringes", nullptr,
              u"Measure the lens's colour fringes as well, and take them out."},
    OptionRow{u"list-gears", nullptr, u"List the gears of the settings."},
    OptionRow{u"list-cameras", nullptr, u"List the cameras (of a brand) as BRAND/MODEL."},
    OptionRow{u"list-lenses", nullptr, u"List the lenses (of a brand) as BRAND/MODEL."},
};

constexpr std::array viewRows{
    OptionRow{u"preset", u"NAME",
              u"A preset, built in or your own (real estate, group photo ...); other options win."},
    OptionRow{u"projection", u"NAMES",
              u"The projections, see below, with commas between; default: varnel."},
    OptionRow{u"list-presets", nullptr, u"List the presets."},
    OptionRow{u"output-aov", u"D",
              u"Angle of view of the output, degrees (not of varnel, equidistance, horizon)."},
    OptionRow{u"input-aov", u"D", u"Angle of view of the lens, degrees (equidistance)."},
    OptionRow{u"effect", u"P", u"Strength of the projection, percent (0.1 to 100)."},
    OptionRow{u"rotate-x", u"D", u"Tilt of the camera, degrees; positive looks down."},
    OptionRow{u"rotate-y", u"D", u"Pan of the camera, degrees; positive looks right."},
    OptionRow{u"rotate-z", u"D", u"Roll of the camera, degrees; positive is counter-clockwise."},
    OptionRow{u"translate-x", u"P", u"Shift of the picture, percent; positive is right."},
    OptionRow{u"translate-y", u"P", u"Shift of the picture, percent; positive is up."},
    OptionRow{u"panini-d", u"D", u"0 to 1: from rectilinear to wide (panini; default: 1)."},
    OptionRow{u"panini-squeeze", u"P", u"Straightens lines across, percent (panini)."},
    OptionRow{u"unroll-start", u"D",
              u"Azimuth of the left border, degrees clockwise from the top (unrolled)."},
    OptionRow{u"unroll-direction", u"N", u"1: clockwise as seen, -1: the other way (unrolled)."},
    OptionRow{u"unroll-from", u"D",
              u"Angle from the axis at the bottom, degrees (unrolled; default: 0)."},
    OptionRow{u"unroll-to", u"D",
              u"Angle from the axis at the top, degrees (unrolled; default: 90)."},
    OptionRow{u"camera-pose", u"POSE",
              u"How the camera was held: level, up or down (little-planet; default: level)."},
    OptionRow{u"tunnel", nullptr, u"Look the other way, at the sky (little-planet)."},
    OptionRow{u"size", u"S",
              u"Of the result, after the crop: WxH or W in pixels, or centre: the middle keeps the "
              u"photo's resolution."},
    OptionRow{u"aspect", u"W:H", u"The shape of the frame; default: the photo's."},
    OptionRow{u"crop", u"C",
              u"clean or clean:W:H: the largest part without outside; or X,Y,W,H in parts of 1 "
              u"or %."},
    OptionRow{u"outside", u"O",
              u"Beside the photo and its image circle: transparent (PNG, TIFF), black (default) or "
              u"#rrggbb."},
    OptionRow{u"sampling", u"S",
              u"classic (default), or fine: sharper where the view is enlarged, no moire where "
              u"reduced."},
    OptionRow{u"marks", nullptr, u"Draw N, E, S, W and angles onto the result (unrolled)."},
    OptionRow{
        u"faces", u"X,Y,W,H[,A]",
        u"Ellipses that keep their shape (rectilinear), in parts of 1; A degrees; by semicolons."},
    OptionRow{u"set", u"FIELD=VALUE",
              u"Any field of the image record, after all the rest; may be repeated."},
};

constexpr std::array sequenceRows{
    OptionRow{u"morph", u"N", u"Write N frames that move evenly from a start to an end."},
    OptionRow{u"from", u"FIELD=VALUE", u"A setting of the first frame; may be repeated."},
    OptionRow{u"to", u"FIELD=VALUE", u"A setting of the last frame; may be repeated."},
};

constexpr std::array filmRows{
    OptionRow{u"codec", u"NAME", u"h264 (default), h265, av1, vp9, ffv1 (lossless) or prores."},
    OptionRow{u"crf", u"N", u"Quality, 0 (best) to 51 or 63; default: the encoder's."},
    OptionRow{u"speed", u"NAME",
              u"Of the encoder: ultrafast to placebo (h264, h265), or a number (av1, vp9)."},
    OptionRow{u"from-time", u"T", u"Begin at that time: seconds, M:S or H:M:S."},
    OptionRow{u"to-time", u"T", u"End at that time."},
    OptionRow{u"keys", u"FILE", u"Settings that move along the film, as JSON."},
    OptionRow{u"frame", u"T", u"The frame of that time as a picture, converted as a photo."},
    OptionRow{u"film", u"FILE", u"Write the results of all photos, or of --morph, as one film."},
    OptionRow{u"fps", u"N", u"Frames in a second of --film, as 25 or 30000/1001; default: 25."},
    OptionRow{u"keep-part", nullptr,
              u"Keep FILE.part, which plays, of a film that is not finished."},
};

constexpr std::array outputRows{
    OptionRow{u"output", u"FILE", u"The file to write, for one photo and one projection."},
    OptionRow{u"output-dir", u"DIR",
              u"The folder to write to, under names that tell the settings."},
    OptionRow{u"name", u"PATTERN",
              u"Names of the results of {name} {ending} {projection} {tags} {suffix} {sampling} "
              u"{n} {date}."},
    OptionRow{u"keep-ending", nullptr,
              u"Results of y.jpg and y.png in one folder: y.jpg.Varnel.TIF, y.png.Varnel.TIF."},
    OptionRow{
        u"type", u"TYPE",
        u"tiff, jpeg, bmp, png, exr, hdr, jxl; films mp4, mkv, mov; default: by the name, else "
        u"the setting."},
    OptionRow{u"quality", u"Q",
              u"Quality of JPEG and JPEG XL, 1 to 100, JPEG XL's 100 without loss; default: the "
              u"setting."},
    OptionRow{u"chroma", u"C",
              u"444: JPEG with colour at full resolution, 420: at half of it; default: the "
              u"setting."},
    OptionRow{u"depth", u"D",
              u"auto: as deep as the photo, as far as the type goes; 8, 16 or float; default: the "
              u"setting."},
    OptionRow{u"tiff", u"C",
              u"Compression of TIFF: lzw, deflate, zstd, none or auto: lzw for 8 bits, else "
              u"deflate."},
    OptionRow{u"compression", u"N",
              u"Of PNG and of TIFF by deflate or zstd: 1 (fast) to 9 (small); default: fast."},
    OptionRow{u"planar", nullptr,
              u"Large JPEG photos in half the memory, the same results somewhat later."},
    OptionRow{u"preview", u"WxH", u"The preview of that size instead of the full picture."},
    OptionRow{u"antialiased", nullptr, u"Interpolate the preview."},
    OptionRow{u"no-metadata", nullptr, u"Leave the photo's EXIF, IPTC and XMP out."},
    OptionRow{u"no-settings", nullptr, u"Do not write the settings into the results."},
};

constexpr std::array runRows{
    OptionRow{u"force", nullptr, u"Replace existing files; photos are never replaced."},
    OptionRow{u"skip-existing", nullptr,
              u"Do only what is missing: leave results that lie there alone."},
    OptionRow{u"keep-both", nullptr,
              u"Where a file has the name of a result, write IMG.Varnel-2.TIF and so on."},
    OptionRow{u"jobs", u"N", u"How many cores to use, 1 to 256; default: all."},
    OptionRow{u"shard", u"K/N",
              u"Every N-th photo from the K-th on: N such runs make what one makes of all."},
    OptionRow{u"quiet", nullptr, u"No progress and no names of written files."},
    OptionRow{u"json", nullptr,
              u"For scripts: one JSON object a line on standard output for each result."},
    OptionRow{u"help", nullptr, u"Show this text."},
    OptionRow{u"version", nullptr, u"Show the version."},
};

constexpr std::array groups{
    OptionGroup{u"Photos", photoRows},
    OptionGroup{u"Camera and lens", gearRows},
    OptionGroup{u"Projection and view", viewRows},
    OptionGroup{u"Sequences", sequenceRows},
    OptionGroup{u"Films", filmRows},
    OptionGroup{u"Output", outputRows},
    OptionGroup{u"Behaviour", runRows},
};

constexpr std::array numberOptions{
    NumberOption{u"input-aov", {u"InputAOV", nullptr}},
    NumberOption{u"output-aov", {u"OutputAOV", nullptr}},
    NumberOption{u"effect", {u"EffectVarnel", u"EffectRectilinear"}},
    NumberOption{u"rotate-x", {u"RotateX", nullptr}},
    NumberOption{u"rotate-y", {u"RotateY", nullptr}},
    NumberOption{u"rotate-z", {u"RotateZ", nullptr}},
    NumberOption{u"translate-x", {u"TranslateX", nullptr}},
    NumberOption{u"translate-y", {u"TranslateY", nullptr}},
    NumberOption{u"panini-d", {u"PaniniD", nullptr}, {{0.0F, 1.0F}}},
    NumberOption{u"panini-squeeze", {u"PaniniSqueeze", nullptr}, {{0.0F, 100.0F}}},
    NumberOption{u"unroll-start", {u"UnrollStart", nullptr}},
    NumberOption{u"unroll-from", {u"UnrollFrom", nullptr}, {{0.0F, 180.0F}}},
    NumberOption{u"unroll-to", {u"UnrollTo", nullptr}, {{0.0F, 180.0F}}},
};

constexpr std::array wordOptions{
    WordOption{u"unroll-direction", u"UnrollDirection", u"1 or -1"},
    WordOption{u"camera-pose", u"Pose", u"level, up or down"},
    WordOption{u"tunnel", u"Tunnel", u""},
    WordOption{u"sampling", u"Sampling", u"classic or fine"},
};

}  // namespace

QStringList ProjectionKeys() {
    QStringList keys;
    for (const Projection projection : AllProjections()) {
        keys.append(KeyOf(projection).toLower());
    }
    return keys;
}

QString ProjectionNames() {
    return ProjectionKeys().join(QStringLiteral(", "));
}

std::span<const OptionGroup> OptionGroups() {
    return groups;
}

const OptionRow* FindOption(QStringView name) {
    for (const OptionGroup& group : groups) {
        for (const OptionRow& row : group.rows) {
            if (name == QStringView(row.name)) {
                return &row;
            }
        }
    }
    return nullptr;
}

QStringList OptionNames() {
    QStringList names;
    for (const OptionGroup& group : groups) {
        for (const OptionRow& row : group.rows) {
            names.append(OptionText(row.name));
        }
    }
    return names;
}

std::span<const WordOption> WordOptions() {
    return wordOptions;
}

std::span<const NumberOption> NumberOptions() {
    return numberOptions;
}

void DeclareOptions(QCommandLineParser& parser) {
    for (const OptionGroup& group : groups) {
        for (const OptionRow& row : group.rows) {
            QCommandLineOption option(OptionText(row.name));
            if (row.value != nullptr) {
                option.setValueName(OptionText(row.value));
            }
            parser.addOption(option);
        }
    }
}

}  // namespace varnel
