// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/deflate/prefix_code.h"

#include <algorithm>
#include <array>

namespace varnel {

namespace {

constexpr int longest = 15;  // bits of a code of deflate

struct Leaf {
    std::uint32_t count;
    std::uint16_t symbol;
};

using LengthCounts = std::array<std::uint32_t, longest + 1>;  // how many codes have a length

// Of Huffman's tree above leaves in the order of their counts, of which there are two at least;
// longer ones than `most` counted as such.
LengthCounts TreeLengths(std::span<const Leaf> leaves, int most) {
    const std::size_t count = leaves.size();
    std::array<std::uint64_t, mostSymbols> sums{};  // of inner nodes, which come in their order
    std::array<std::uint16_t, 2 * mostSymbols> parent{};  // inner nodes stand behind the leaves
    std::size_t leaf = 0;
    std::size_t inner = 0;
    for (std::size_t made = 0; made + 1 < count; ++made) {
        for (int child = 0; child < 2; ++child) {
            const bool isLeaf =
                leaf < count && (inner == made || leaves[leaf].count <= sums[inner]);
            sums[made] += isLeaf ? leaves[leaf].count : sums[inner];
            parent[isLeaf ? leaf++ : count + inner++] = static_cast<std::uint16_t>(count + made);
        }
    }
    LengthCounts lengths{};
    std::array<int, 2 * mostSymbols> depth{};
    for (std::size_t node = 2 * count - 2; node-- > 0;) {
        depth[node] = depth[parent[node]] + 1;
        if (node < count) {
            ++lengths[static_cast<std::size_t>(std::min(depth[node], most))];
        }
    }
    return lengths;
}

// Makes place in the code for those that were cut: each goes beside the longest that is shorter,
// which gets a bit more.
void MakeRoom(LengthCounts& lengths, int most) {
    const auto last = static_cast<std::size_t>(most);
    std::uint32_t taken = 0;
    for (std::size_t length = 1; length <= last; ++length) {
        taken += lengths[length] << (last - length);
    }
    for (; taken > 1U << last; --taken) {
        std::size_t shorter = last - 1;
        while (lengths[shorter] == 0) {
            --shorter;
        }
        --lengths[last];
        --lengths[shorter];
        lengths[shorter + 1] += 2;
    }
}

}  // namespace

void CodeLengths(std::span<const std::uint32_t> counts, int most, std::span<std::uint8_t> lengths) {
    std::ranges::fill(lengths, std::uint8_t{0});
    std::array<Leaf, mostSymbols> memory{};
    std::size_t used = 0;
    for (std::size_t symbol = 0; symbol < counts.size(); ++symbol) {
        if (counts[symbol] > 0) {
            memory[used++] = {counts[symbol], static_cast<std::uint16_t>(symbol)};
        }
    }
    const std::span leaves(memory.data(), used);
    if (used < 2) {
        for (const Leaf& leaf : leaves) {
            lengths[leaf.symbol] = 1;
        }
        return;
    }
    std::ranges::sort(leaves, [](const Leaf& a, const Leaf& b) {
        return a.count != b.count ? a.count < b.count : a.symbol < b.symbol;
    });
    LengthCounts ofLength = TreeLengths(leaves, most);
    MakeRoom(ofLength, most);
    auto length = static_cast<std::size_t>(most);
    for (const Leaf& leaf : leaves) {
        while (ofLength[length] == 0) {
            --length;
        }
        --ofLength[length];
        lengths[leaf.symbol] = static_cast<std::uint8_t>(length);
    }
}

void AssignCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes) {
    LengthCounts ofLength{};
    for (const std::uint8_t length : lengths) {
        ++ofLength[length];
    }
    ofLength[0] = 0;
    std::array<std::uint32_t, longest + 2> next{};
    for (std::size_t length = 1; length <= longest; ++length) {
        next[length + 1] = (next[length] + ofLength[length]) << 1;
    }
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        std::uint32_t code = lengths[symbol] > 0 ? next[lengths[symbol]]++ : 0;
        std::uint32_t turned = 0;
        for (int bit = 0; bit < lengths[symbol]; ++bit, code >>= 1) {
            turned = turned << 1 | (code & 1U);
        }
        codes[symbol] = static_cast<std::uint16_t>(turned);
    }
}

}  // namespace varnel
