// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The other streams of the source in the new file, and what is known of it as a whole. Throws
// std::bad_alloc.
#pragma once

#include <vector>

#include "base/reason.h"
#include "film/frames/film_info.h"
#include "film/writing/film_writer.h"
#include "film/writing/module/av_headers.h"

namespace varnel {

// A stream of the source that is carried over.
struct StreamCopy {
    int source = 0;  // its index
    AVStream* stream = nullptr;
    AVRational timeBase{};  // of the source
    std::int64_t lastDts = AV_NOPTS_VALUE;
    bool isSparse = false;  // its times need not rise
};

// Adds a stream for each that the container can hold; a reason for each of the others.
std::vector<StreamCopy> CopyStreams(const FilmInfo& source, FilmContainer container,
                                    AVFormatContext& file, Reasons& leftOut);

// Whether the container can hold that stream alone.
bool CanHold(const AVOutputFormat& container, const AVStream& stream);

void CopyTags(const TagList& tags, AVDictionary*& target);
void CopyChapters(const FilmInfo& source, AVFormatContext& file);
// What is known of the picture stream and stays true.
void CopyPictureSideData(const StreamInfo& source, AVStream& stream);

const AVOutputFormat* OutputFormatOf(FilmContainer container);

}  // namespace varnel
