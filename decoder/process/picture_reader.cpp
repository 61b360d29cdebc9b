// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/picture_reader.h"

namespace varnel {

namespace {

constexpr int betweenQuestions = 15;  // ms; events are handled that often while a photo is read

}  // namespace

LoadedPicture ReadPicture(PictureReader& reader, const ReadRequest& request,
                          const KeepReading& keepReading) {
    ReadRequest asked = request;
    asked.inPieces = true;
    reader.Begin(asked);
    while (!reader.Wait(betweenQuestions)) {
        if (keepReading && !keepReading()) {
            reader.Cancel();
            return LoadedPicture::Refused(ReasonCode::Cancelled);
        }
    }
    return reader.Take();
}

}  // namespace varnel
