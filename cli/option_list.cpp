// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/option_list.h"

namespace varnel {

namespace {

constexpr std::array numberOptions{
    NumberOption{u"input-aov",
                 u"D",
                 u"Angle of view of the lens across the frame, degrees.",
                 {u"InputAOV", nullptr}},
    NumberOption{
        u"output-aov", u"D", u"Angle of view of the output, degrees.", {u"OutputAOV", nullptr}},
    NumberOption{u"effect",
                 u"P",
                 u"Strength of the projection, percent (0.1 to 100).",
                 {u"EffectVarnel", u"EffectRectilinear"}},
    NumberOption{u"rotate-x",
                 u"D",
                 u"Tilt of the camera, degrees; positive looks down.",
                 {u"RotateX", nullptr}},
    NumberOption{u"rotate-y",
                 u"D",
                 u"Pan of the camera, degrees; positive looks right.",
                 {u"RotateY", nullptr}},
    NumberOption{u"rotate-z",
                 u"D",
                 u"Roll of the camera, degrees; positive is counter-clockwise.",
                 {u"RotateZ", nullptr}},
    NumberOption{u"translate-x",
                 u"P",
                 u"Shift of the picture, percent; positive is right.",
                 {u"TranslateX", nullptr}},
    NumberOption{u"translate-y",
                 u"P",
                 u"Shift of the picture, percent; positive is up.",
                 {u"TranslateY", nullptr}}};

QCommandLineOption Flag(const char16_t* name, const char16_t* help) {
    return QCommandLineOption(OptionText(name), OptionText(help));
}

QCommandLineOption Valued(const char16_t* name, const char16_t* value, const char16_t* help) {
    return QCommandLineOption(OptionText(name), OptionText(help), OptionText(value));
}

}  // namespace

std::span<const NumberOption> NumberOptions() {
    return numberOptions;
}

void DeclareOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Converts fisheye photos into other projections."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Photos to convert."),
                                 QStringLiteral("FILE..."));
    parser.addOptions({
        Valued(u"projection", u"NAME",
               u"varnel, rectilinear, equidistance, horizon or all; default varnel."),
        Valued(u"like", u"PICTURE",
               u"Gear, projection and adjustments of a picture that Varnel wrote; other options "
               u"win. Without FILE its own photo is converted."),
        Valued(u"gear", u"NAME",
               u"A gear of the settings, or auto: what each photo's EXIF tells; default: the "
               u"default gear."),
        Valued(u"camera", u"BRAND/MODEL", u"A camera of the catalogue, with --lens."),
        Valued(u"lens", u"BRAND/MODEL", u"A lens of the catalogue, with --camera."),
    });
    for (const NumberOption& option : numberOptions) {
        parser.addOption(Valued(option.name, option.value, option.help));
    }
    parser.addOptions({
        Valued(u"set", u"FIELD=VALUE",
               u"Any field of the image record, after all the rest; may be repeated."),
        Valued(u"morph", u"N", u"A sequence of N frames instead of one picture."),
        Valued(u"from", u"FIELD=VALUE", u"Where the sequence starts; may be repeated."),
        Valued(u"to", u"FIELD=VALUE", u"Where the sequence ends; may be repeated."),
        Valued(u"preview", u"WxH", u"The preview of that size instead of the full picture."),
        Flag(u"antialiased", u"Interpolate the preview."),
        Valued(u"output", u"FILE", u"The file to write."),
        Valued(u"output-dir", u"DIR", u"The folder to write to, under the batch's names."),
        Valued(u"type", u"TYPE",
               u"tiff, jpeg, bmp or png; default: the ending of --output, "
               u"else the setting."),
        Valued(u"quality", u"Q", u"JPEG quality, 1 to 100; default: the setting."),
        Valued(u"chroma", u"C",
               u"444: JPEG with colour at full resolution, 420: at half of it; default: the "
               u"setting."),
        Flag(u"no-metadata", u"Leave the photo's EXIF, IPTC and XMP out."),
        Flag(u"no-auto-orient", u"Take photos as they are stored, whatever their EXIF says."),
        Flag(u"no-settings", u"Do not write the settings into the results."),
        Flag(u"force", u"Replace existing files."),
        Flag(u"skip-existing", u"Do only what is missing: leave results that lie there alone."),
        Valued(u"jobs", u"N", u"How many cores to use, 1 to 256; default: all."),
        Flag(u"list-cameras", u"List the cameras (of a brand) as BRAND/MODEL."),
        Flag(u"list-lenses", u"List the lenses (of a brand) as BRAND/MODEL."),
        Flag(u"list-gears", u"List the gears of the settings."),
        Flag(u"quiet", u"No progress bar and no names of written files."),
        Flag(u"help", u"Show this text."),
        Flag(u"version", u"Show the version."),
    });
}

}  // namespace varnel
