// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/list_run.h"

#include <QMultiHash>
#include <algorithm>
#include <iterator>

namespace varnel {

namespace {

// How many lines at the beginning and at the end of two lists are the same.
template <class A, class B, class Same>
std::pair<std::size_t, std::size_t> SameEnds(const A& a, std::size_t sizeA, const B& b,
                                             std::size_t sizeB, Same same) {
    const std::size_t most = std::min(sizeA, sizeB);
    std::size_t head = 0;
    while (head < most && same(a[head], b[head])) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < most - head && same(a[sizeA - 1 - tail], b[sizeB - 1 - tail])) {
        ++tail;
    }
    return {head, tail};
}

bool SamePhoto(const ImageRecord& a, const ImageRecord& b) {
    return a.FileName == b.FileName && a.Folder == b.Folder;
}

ListRun Part(const ListRun& run, std::size_t from, std::size_t to) {
    return ListRun(std::next(run.begin(), static_cast<std::ptrdiff_t>(from)),
                   std::next(run.begin(), static_cast<std::ptrdiff_t>(to)));
}

}  // namespace

ListRun Spliced(const ListRun& run, std::size_t first, std::size_t count, const ListRun& instead) {
    ListRun spliced = Part(run, 0, first);
    spliced.insert(spliced.end(), instead.begin(), instead.end());
    const ListRun rest = Part(run, first + count, run.size());
    spliced.insert(spliced.end(), rest.begin(), rest.end());
    return spliced;
}

ListRun SharedWith(const ListRun& known, const RecordArray<ImageRecord>& images) {
    const auto count = static_cast<std::size_t>(images.UpperBound());
    const auto [head, tail] =
        SameEnds(known, known.size(), images.begin(), count,
                 [](const SharedRecord& a, const ImageRecord& b) { return *a == b; });
    QMultiHash<QString, SharedRecord> between;
    for (std::size_t n = head; n < known.size() - tail; ++n) {
        between.insert(SourcePath(*known[n]), known[n]);
    }
    ListRun run = Part(known, 0, head);
    run.reserve(count);
    for (std::size_t n = head; n < count - tail; ++n) {
        const ImageRecord& image = images(static_cast<int>(n) + 1);
        const QString path = SourcePath(image);
        auto found = between.find(path);
        while (found != between.end() && found.key() == path && **found != image) {
            ++found;
        }
        if (found != between.end() && found.key() == path) {
            run.push_back(*found);
            between.erase(found);  // each line has a record of its own
        } else {
            run.push_back(std::make_shared<const ImageRecord>(image));
        }
    }
    run.insert(run.end(), known.end() - static_cast<std::ptrdiff_t>(tail), known.end());
    return run;
}

RunChange ChangeBetween(const ListRun& before, const ListRun& after) {
    const auto [head, tail] =
        SameEnds(before, before.size(), after, after.size(),
                 [](const SharedRecord& a, const SharedRecord& b) { return a == b; });
    return {head, Part(before, head, before.size() - tail), Part(after, head, after.size() - tail)};
}

bool SamePhotos(const ListRun& a, const ListRun& b) {
    return std::ranges::equal(
        a, b, [](const SharedRecord& x, const SharedRecord& y) { return SamePhoto(*x, *y); });
}

std::vector<int> OriginOf(const ListRun& before, const ListRun& after) {
    QMultiHash<QString, int> lines;
    for (std::size_t n = before.size(); n-- > 0;) {  // the last one put in is found first
        lines.insert(SourcePath(*before[n]), static_cast<int>(n));
    }
    std::vector<int> origin;
    for (const SharedRecord& record : after) {
        const auto found = lines.find(SourcePath(*record));
        origin.push_back(found == lines.end() ? -1 : *found);
        if (found != lines.end()) {
            lines.erase(found);
        }
    }
    return origin;
}

}  // namespace varnel
