// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>

#include "film/writing/film_writer.h"

namespace varnel {

namespace {

template <class Value>
struct Named {
    Value value;
    const char16_t* text;
};

constexpr std::array containers{
    Named<FilmContainer>{FilmContainer::Mp4, u"mp4"},
    Named<FilmContainer>{FilmContainer::Matroska, u"mkv"},
    Named<FilmContainer>{FilmContainer::QuickTime, u"mov"},
};

constexpr std::array codecs{
    Named<FilmCodec>{FilmCodec::H264, u"h264"}, Named<FilmCodec>{FilmCodec::H265, u"h265"},
    Named<FilmCodec>{FilmCodec::Av1, u"av1"},   Named<FilmCodec>{FilmCodec::Vp9, u"vp9"},
    Named<FilmCodec>{FilmCodec::Ffv1, u"ffv1"}, Named<FilmCodec>{FilmCodec::ProRes, u"prores"},
};

template <class Rows, class Value>
QString TextIn(const Rows& rows, Value value) {
    const auto row = std::ranges::find_if(rows, [&](const auto& r) { return r.value == value; });
    return QString::fromUtf16(row->text);
}

template <class Value, std::size_t N>
std::optional<Value> ValueIn(const std::array<Named<Value>, N>& rows, QStringView text) {
    const auto row = std::ranges::find_if(rows, [&](const auto& r) {
        return text.compare(QStringView(r.text), Qt::CaseInsensitive) == 0;
    });
    return row == rows.end() ? std::nullopt : std::optional(row->value);
}

}  // namespace

QString ToText(FilmContainer container) {
    return TextIn(containers, container);
}

QString ToText(FilmCodec codec) {
    return TextIn(codecs, codec);
}

std::optional<FilmContainer> FilmContainerFromText(QStringView text) {
    return ValueIn(containers, text);
}

std::optional<FilmCodec> FilmCodecFromText(QStringView text) {
    return ValueIn(codecs, text);
}

}  // namespace varnel
