// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/tiff_structure.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <compare>
#include <set>
#include <utility>
#include <vector>

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
    DngVersion = 50706,
    CfaLayout = 50711,
    DefaultScale = 50718
};

// Bytes of a value by its type's number; 0 for numbers that mean nothing.
constexpr std::array<std::int64_t, 19> typeBytes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                 8, 4, 8, 4, 0, 0, 8, 8, 8};

// A sound file has a handful of directories and some thousand strips at most.
constexpr std::size_t mostDirectories = 1000;
constexpr std::int64_t mostValues = 1 << 22;
constexpr std::uint64_t mostProfile = 1 << 26;  // bytes

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

struct Entry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint64_t count = 0;
    std::int64_t place = 0;  // of its values in the file
};

class TiffWalk {
  public:
    explicit TiffWalk(const PictureFile& file) : file_(file) {}

    bool Begin() {
        const QByteArray head = file_.Read(0, 16);
        bigEndian_ = head.startsWith("MM");
        if (head.size() < 8 || (!bigEndian_ && !head.startsWith("II"))) {
            return false;
        }
        const std::uint64_t magic = Number(head, 2, 2);
        wide_ = magic == 43 && head.size() == 16;
        if (magic != 42 && !wide_) {
            return false;
        }
        Await(wide_ ? Number(head, 8, 8) : Number(head, 4, 4), false);
        return true;
    }
    TiffStructure Facts() {
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

        auto operator<=>(const Waiting&) const = default;
    };

    // 0 unless all of its bytes are there.
    std::uint64_t Number(const QByteArray& bytes, std::int64_t at, std::int64_t size) const {
        std::uint64_t number = 0;
        for (std::int64_t i = 0; i < size && at + size <= bytes.size(); ++i) {
            const auto byte = static_cast<std::uint64_t>(static_cast<unsigned char>(
                bytes.at(static_cast<qsizetype>(bigEndian_ ? at + i : at + size - 1 - i))));
            number = number << 8 | byte;
        }
        return number;
    }
    // Notes whether that many bytes at that place are there.
    bool Reaches(std::uint64_t place, std::uint64_t bytes) {
        const auto length = static_cast<std::uint64_t>(file_.Length());
        const bool reaches = place <= length && bytes <= length - place;
        bool& isCut = inMetadata_ ? facts_.isMetadataCut : facts_.isCut;
        isCut = isCut || !reaches;
        return reaches;
    }
    void Await(std::uint64_t directory, bool isOfMetadata) {
        if (directory != 0) {
            waiting_.push_back({directory, isOfMetadata});
        }
    }

    void ReadDirectory(std::uint64_t place, bool first) {
        const int countBytes = wide_ ? 8 : 2;
        const int entryBytes = wide_ ? 20 : 12;
        const int linkBytes = wide_ ? 8 : 4;
        if (!Reaches(place, countBytes)) {
            return;
        }
        const auto start = static_cast<std::int64_t>(place);
        const std::uint64_t count = Number(file_.Read(start, countBytes), 0, countBytes);
        if (count > 65535 || !Reaches(place, countBytes + count * entryBytes)) {
            return;
        }
        const auto entryTotal = static_cast<std::int64_t>(count) * entryBytes;
        const QByteArray bytes = file_.Read(start + countBytes, entryTotal + linkBytes);
        std::vector<Entry> entries;
        for (std::int64_t at = 0; at < entryTotal; at += entryBytes) {
            if (!inMetadata_) {
                NoteHidden(Number(bytes, at, 2), start + countBytes + at + (bigEndian_ ? 1 : 0));
            }
            if (const std::optional<Entry> entry = ReadEntry(bytes, at, start + countBytes)) {
                entries.push_back(*entry);
            }
        }
        if (!inMetadata_) {
            Await(Number(bytes, entryTotal, linkBytes), false);
            CheckData(entries);
            Note(entries, first);
        }
    }
    void NoteHidden(std::uint64_t tag, std::int64_t lowestByte) {
        constexpr std::array<std::uint64_t, 5> metadata{Xmp, Iptc, ImageResources, ExifDirectory,
                                                        GpsDirectory};
        if (bigEndian_ && tag == Iptc) {
            facts_.deadlyTags.push_back(lowestByte);
        } else if (std::ranges::find(metadata, tag) != metadata.end()) {
            facts_.metadataTags.push_back(lowestByte);
        }
    }
    std::optional<Entry> ReadEntry(const QByteArray& bytes, std::int64_t at, std::int64_t origin) {
        const int fieldBytes = wide_ ? 8 : 4;
        Entry entry;
        entry.tag = static_cast<std::uint16_t>(Number(bytes, at, 2));
        entry.type = static_cast<std::uint16_t>(Number(bytes, at + 2, 2));
        entry.count = Number(bytes, at + 4, fieldBytes);
        const std::int64_t size = entry.type < typeBytes.size() ? typeBytes[entry.type] : 0;
        if (size == 0) {
            return std::nullopt;
        }
        entry.place = origin + at + 4 + fieldBytes;
        if (entry.count > static_cast<std::uint64_t>(fieldBytes / size)) {
            const std::uint64_t place = Number(bytes, at + 4 + fieldBytes, fieldBytes);
            const auto length = static_cast<std::uint64_t>(file_.Length());
            const bool isOfMetadata = IsOfMetadata(entry.tag);
            const bool was = std::exchange(inMetadata_, inMetadata_ || isOfMetadata);
            const bool reaches = Reaches(place, std::min(entry.count, length + 1) * size);
            inMetadata_ = was;
            if (!reaches) {
                return std::nullopt;
            }
            entry.place = static_cast<std::int64_t>(place);
        }
        return entry;
    }
    std::vector<std::uint64_t> Values(const std::vector<Entry>& entries, Tag tag) const {
        const auto entry = std::ranges::find(entries, tag, &Entry::tag);
        if (entry == entries.end()) {
            return {};
        }
        const std::int64_t size = typeBytes[entry->type];
        const auto count = static_cast<std::int64_t>(
            std::min(entry->count, static_cast<std::uint64_t>(mostValues)));
        const QByteArray bytes = file_.Read(entry->place, count * size);
        std::vector<std::uint64_t> values;
        for (std::int64_t at = 0; at + size <= bytes.size(); at += size) {
            values.push_back(Number(bytes, at, size));
        }
        return values;
    }
    void CheckData(const std::vector<Entry>& entries) {
        constexpr std::array<std::pair<Tag, Tag>, 3> places{{{StripOffsets, StripByteCounts},
                                                             {TileOffsets, TileByteCounts},
                                                             {PreviewOffset, PreviewLength}}};
        for (const auto& [offsetTag, countTag] : places) {
            const std::vector<std::uint64_t> offsets = Values(entries, offsetTag);
            const std::vector<std::uint64_t> counts = Values(entries, countTag);
            for (std::size_t i = 0; i < offsets.size(); ++i) {
                Reaches(offsets[i], i < counts.size() ? counts[i] : 0);
            }
        }
    }
    void NoteOrientation(const std::vector<Entry>& entries) {
        const std::vector<std::uint64_t> told = Values(entries, Orientation);
        if (told.size() != 1 || told.front() > 8 || told.front() == 0) {
            return;
        }
        const auto entry = std::ranges::find(entries, Orientation, &Entry::tag);
        facts_.orientation = static_cast<int>(told.front());
        facts_.orientationPlace = entry->place + (bigEndian_ ? typeBytes[entry->type] - 1 : 0);
    }
    void Note(const std::vector<Entry>& entries, bool first) {
        for (const Tag tag : {SubDirectories, ExifDirectory}) {
            for (const std::uint64_t place : Values(entries, tag)) {
                Await(place, tag == ExifDirectory);
            }
        }
        facts_.isDng = facts_.isDng || !Values(entries, DngVersion).empty();
        for (const std::uint64_t layout : Values(entries, CfaLayout)) {
            facts_.isEven = facts_.isEven && layout == 1;
        }
        // Two fractions of eight bytes, across and down.
        const std::vector<std::uint64_t> scale = Values(entries, DefaultScale);
        facts_.isEven = facts_.isEven && (scale.size() < 2 || scale[0] == scale[1]);
        if (first) {
            NoteOrientation(entries);
        }
        const auto profile = std::ranges::find(entries, ColourProfile, &Entry::tag);
        if (first && profile != entries.end() && typeBytes[profile->type] == 1) {
            facts_.colourProfile = file_.Read(
                profile->place, static_cast<std::int64_t>(std::min(profile->count, mostProfile)));
        }
    }

    const PictureFile& file_;
    bool bigEndian_ = false;
    bool wide_ = false;  // the variant with offsets of eight bytes
    bool inMetadata_ = false;
    std::vector<Waiting> waiting_;
    std::set<Waiting> seen_;
    TiffStructure facts_;
};

}  // namespace

std::optional<TiffStructure> TiffFactsOf(const PictureFile& file) {
    TiffWalk walk(file);
    return walk.Begin() ? std::optional(walk.Facts()) : std::nullopt;
}

}  // namespace varnel
