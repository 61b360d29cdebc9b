// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/tiff_structure.h"

#include <algorithm>
#include <array>
#include <compare>
#include <set>
#include <utility>
#include <vector>

#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

enum Tag : std::uint16_t {
    StripOffsets = 273,
    Orientation = 274,
    StripByteCounts = 279,
    TileOffsets = 324,
    TileByteCounts = 325,
    SubDirectories = 330,
    PreviewOffset = 513,
    PreviewLength = 514,
    Xmp = 700,
    Iptc = 33723,
    ImageResources = 34377,
    ExifDirectory = 34665,
    GpsDirectory = 34853,
    ColourProfile = 34675,
    DngVersion = 50706
};

// A sound file has a handful of directories and some thousand strips at most.
constexpr std::size_t mostDirectories = 1000;
constexpr std::int64_t mostValues = 1 << 22;
constexpr std::int64_t mostProfile = 1 << 26;  // bytes

// What tells about the photo and not of its pixels: description, maker, model, program, time,
// artist, computer, copyright and whole blocks.
bool IsOfMetadata(std::uint16_t tag) {
    constexpr std::array<int, 14> tags{270,
                                       271,
                                       272,
                                       305,
                                       306,
                                       315,
                                       316,
                                       33432,
                                       Xmp,
                                       Iptc,
                                       ImageResources,
                                       ExifDirectory,
                                       GpsDirectory,
                                       ColourProfile};
    return std::ranges::find(tags, tag) != tags.end();
}

IfdReader::Source SourceOf(const PictureFile& file) {
    return {file.Length(),
            [&file](std::int64_t place, std::int64_t most) { return file.Read(place, most); }};
}

class TiffWalk {
  public:
    explicit TiffWalk(const PictureFile& file) : reader_(SourceOf(file)) {}

    std::optional<TiffStructure> Facts() {
        if (!reader_.IsTiff()) {
            return std::nullopt;
        }
        Await(reader_.First(), false);
        for (bool first = true; !waiting_.empty() && seen_.size() < mostDirectories;
             first = false) {
            const Waiting directory = waiting_.back();
            waiting_.pop_back();
            inMetadata_ = directory.isOfMetadata;
            if (seen_.insert(directory).second) {
                ReadDirectory(directory.place, first);
            }
        }
        return facts_;
    }

  private:
    struct Waiting {
        std::uint64_t place;
        bool isOfMetadata;  // EXIF; only whether it is whole is of interest

        auto operator<=>(const Waiting&) const = default;  // NOLINT(modernize-use-nullptr)
    };

    void NoteCut(bool isOfMetadata) { (isOfMetadata ? facts_.isMetadataCut : facts_.isCut) = true; }
    void Await(std::uint64_t directory, bool isOfMetadata) {
        if (directory != 0) {
            waiting_.push_back({directory, isOfMetadata});
        }
    }

    void ReadDirectory(std::uint64_t place, bool first) {
        Ifd directory = reader_.Directory(place);
        if (!directory.isWhole) {
            NoteCut(inMetadata_);
            return;
        }
        if (!inMetadata_) {
            std::ranges::for_each(directory.entries,
                                  [this](const IfdEntry& entry) { NoteHidden(entry); });
        }
        std::erase_if(directory.entries, [this](const IfdEntry& entry) { return !IsSound(entry); });
        if (!inMetadata_) {
            Await(directory.next, false);
            CheckData(directory);
            Note(directory, first);
        }
    }
    // Where the lowest byte of a number of so many bytes is.
    std::int64_t LowestByte(std::uint64_t place, std::int64_t bytes) const {
        return static_cast<std::int64_t>(place) + (reader_.IsBigEndian() ? bytes - 1 : 0);
    }
    void NoteHidden(const IfdEntry& entry) {
        constexpr std::array<std::uint16_t, 5> metadata{Xmp, Iptc, ImageResources, ExifDirectory,
                                                        GpsDirectory};
        const std::int64_t place = LowestByte(static_cast<std::uint64_t>(entry.place), 2);
        if (reader_.IsBigEndian() && entry.tag == Iptc) {
            facts_.deadlyTags.push_back(place);
        } else if (std::ranges::find(metadata, entry.tag) != metadata.end()) {
            facts_.metadataTags.push_back(place);
        }
    }
    // Notes values that are not there.
    bool IsSound(const IfdEntry& entry) {
        const bool isKnown = TiffTypeBytes(entry.type) > 0;
        const bool isSound = reader_.HoldsValues(entry);
        if (isKnown && !isSound) {
            NoteCut(inMetadata_ || IsOfMetadata(entry.tag));
        }
        return isSound;
    }
    std::vector<std::uint64_t> Values(const Ifd& directory, Tag tag) const {
        const IfdEntry* const entry = directory.Find(tag);
        return entry == nullptr ? std::vector<std::uint64_t>()
                                : reader_.Numbers(*entry, mostValues);
    }
    void CheckData(const Ifd& directory) {
        constexpr std::array<std::pair<Tag, Tag>, 3> places{{{StripOffsets, StripByteCounts},
                                                             {TileOffsets, TileByteCounts},
                                                             {PreviewOffset, PreviewLength}}};
        for (const auto& [offsetTag, countTag] : places) {
            const std::vector<std::uint64_t> offsets = Values(directory, offsetTag);
            const std::vector<std::uint64_t> counts = Values(directory, countTag);
            for (std::size_t i = 0; i < offsets.size(); ++i) {
                if (!reader_.Holds(offsets[i], i < counts.size() ? counts[i] : 0)) {
                    NoteCut(false);
                }
            }
        }
    }
    void NoteOrientation(const Ifd& directory) {
        const std::vector<std::uint64_t> told = Values(directory, Orientation);
        if (told.size() != 1 || told.front() > 8 || told.front() == 0) {
            return;
        }
        const IfdEntry& entry = *directory.Find(Orientation);
        facts_.orientation = static_cast<int>(told.front());
        facts_.orientationPlace = LowestByte(entry.valuePlace, TiffTypeBytes(entry.type));
    }
    void Note(const Ifd& directory, bool first) {
        for (const Tag tag : {SubDirectories, ExifDirectory}) {
            for (const std::uint64_t place : Values(directory, tag)) {
                Await(place, tag == ExifDirectory);
            }
        }
        facts_.isDng = facts_.isDng || !Values(directory, DngVersion).empty();
        if (first) {
            NoteOrientation(directory);
        }
        const IfdEntry* const profile = directory.Find(ColourProfile);
        if (first && profile != nullptr && TiffTypeBytes(profile->type) == 1) {
            facts_.colourProfile = reader_.Bytes(*profile, mostProfile);
        }
    }

    const IfdReader reader_;
    bool inMetadata_ = false;
    std::vector<Waiting> waiting_;
    std::set<Waiting> seen_;
    TiffStructure facts_;
};

}  // namespace

std::optional<TiffStructure> TiffFactsOf(const PictureFile& file) {
    return TiffWalk(file).Facts();
}

}  // namespace varnel
