// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the options' values mean. Each function throws UsageError.
#pragma once

#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

#include "cli/options/options.h"

namespace varnel {

// What a bad command line throws; the text is the one line for the user.
struct UsageError {
    QString text;
};

// Names with commas between, each projection once; "all" stands for the first four.
std::vector<Projection> ProjectionsOf(const QString& text);
CatalogueName CatalogueNameOf(const QString& option, const QString& text);
// auto, off, or X,Y,R in pixels of the photo from its top left corner.
std::pair<CircleUse, ImageCircle> CircleOfOption(const QString& text);
// Millimetres.
double FocalLengthOf(const QString& text);
// A pattern of names, as PatternError has them.
QString PatternOf(const QString& text);
PixelSize PreviewBoxOf(const QString& text);
OutputType TypeOf(const QString& text);
// ".tif, .jpg ... or .hdr": the endings of the types that are written.
QString WrittenEndings();
// That of photos, and that of films.
void TakeTypes(const QStringList& texts, Options& options);
// Numbers have a decimal point whatever the locale.
float NumberOf(const QString& option, const QString& text);
int WholeBetween(const QString& option, const QString& text, int least, int most);
// Whether JPEG keeps colour at full resolution.
bool IsChroma444(const QString& text);
OutputDepth DepthOf(const QString& text);
TiffCompression CompressionOf(const QString& text);
RawJpeg RawJpegOf(const QString& text);
RawProfile RawProfileOf(const QString& text);
// The parts of FIELD=VALUE for --set; tried on an empty record, so that a wrong field or value is
// reported before any photo is read.
std::pair<QString, QString> FieldOf(const QString& text);
// Ellipses as --set Faces= takes them, at least one.
QString FacesOf(const QString& text);
int FrameCountOf(const QString& text);
std::vector<Adjustment> MorphEndOf(const QString& option, const QStringList& texts);
// A photo (without an option's name) or a file to write: not standard input or output.
QString FileNameOf(const QString& option, const QString& text);

}  // namespace varnel
