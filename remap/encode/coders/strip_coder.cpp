// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/strip_coder.h"

#include <libdeflate.h>
#include <zstd.h>

#include <algorithm>
#include <array>
#include <new>
#include <span>
#include <utility>
#include <vector>

namespace varnel {

namespace {

class LzwStrips : public StripCoder {
  public:
    std::size_t Room(std::size_t bytes) const override { return LargestLzw(bytes); }
    void Encode(LzwStrip& first, LzwStrip& second) override { encoder_.Encode(first, second); }

  private:
    LzwEncoder encoder_;
};

// Those that take one strip after the other.
class SingleStrips : public StripCoder {
  public:
    void Encode(LzwStrip& first, LzwStrip& second) final {
        for (LzwStrip* strip : {&first, &second}) {
            strip->length = strip->bytes.empty() ? 0 : Code(strip->bytes, strip->codes);
        }
    }
    // The number of bytes of the codes; 0 when the library fails.
    virtual std::size_t Code(std::span<const std::uint8_t> bytes, std::uint8_t* codes) = 0;
};

// Each strip as that of two coders that makes it smaller: noise comes out larger at many a higher
// level than at the lowest.
class SmallerStrips : public SingleStrips {
  public:
    SmallerStrips(std::unique_ptr<SingleStrips> one, std::unique_ptr<SingleStrips> other)
        : one_(std::move(one)), other_(std::move(other)) {}
    std::size_t Room(std::size_t bytes) const override {
        return std::max(one_->Room(bytes), other_->Room(bytes));
    }
    std::size_t Code(std::span<const std::uint8_t> bytes, std::uint8_t* codes) override {
        const std::size_t length = one_->Code(bytes, codes);
        codes_.resize(Room(bytes.size()));
        const std::size_t others = other_->Code(bytes, codes_.data());
        if (length > 0 && others > 0 && others < length) {
            std::copy_n(codes_.begin(), others, codes);
        }
        return std::min(length, others);
    }

  private:
    std::unique_ptr<SingleStrips> one_, other_;
    std::vector<std::uint8_t> codes_;
};

// Those of the libraries, by ours: 0 is the usual one.
using Levels = std::array<int, 10>;

// As zlib's. The differences of noisy samples of 16 bits hardly repeat themselves: of a photo with
// the grain of a sensor level 1 makes 0.771 in two thirds of the time of level 4, which makes
// 0.783.
class DeflatedStrips : public SingleStrips {
  public:
    explicit DeflatedStrips(int level)
        : compressor_(libdeflate_alloc_compressor(levels.at(static_cast<std::size_t>(level)))) {
        if (!compressor_) {
            throw std::bad_alloc();
        }
    }
    std::size_t Room(std::size_t bytes) const override {
        return libdeflate_zlib_compress_bound(compressor_.get(), bytes);
    }
    std::size_t Code(std::span<const std::uint8_t> bytes, std::uint8_t* codes) override {
        return libdeflate_zlib_compress(compressor_.get(), bytes.data(), bytes.size(), codes,
                                        Room(bytes.size()));
    }

  private:
    static constexpr Levels levels{1, 1, 2, 4, 5, 6, 7, 8, 10, 12};
    struct Freer {
        void operator()(libdeflate_compressor* compressor) const {
            libdeflate_free_compressor(compressor);
        }
    };
    std::unique_ptr<libdeflate_compressor, Freer> compressor_;
};

class ZstdStrips : public SingleStrips {
  public:
    explicit ZstdStrips(int level)
        : level_(levels.at(static_cast<std::size_t>(level))), context_(ZSTD_createCCtx()) {
        if (!context_) {
            throw std::bad_alloc();
        }
    }
    std::size_t Room(std::size_t bytes) const override { return ZSTD_compressBound(bytes); }
    std::size_t Code(std::span<const std::uint8_t> bytes, std::uint8_t* codes) override {
        const std::size_t length = ZSTD_compressCCtx(context_.get(), codes, Room(bytes.size()),
                                                     bytes.data(), bytes.size(), level_);
        return ZSTD_isError(length) != 0 ? 0 : length;
    }

  private:
    static constexpr Levels levels{3, 1, 3, 5, 7, 9, 12, 15, 17, 19};
    struct Freer {
        void operator()(ZSTD_CCtx* context) const { ZSTD_freeCCtx(context); }
    };
    int level_;
    std::unique_ptr<ZSTD_CCtx, Freer> context_;
};

class PlainStrips : public SingleStrips {
  public:
    std::size_t Room(std::size_t bytes) const override { return bytes; }
    std::size_t Code(std::span<const std::uint8_t> bytes, std::uint8_t* codes) override {
        std::ranges::copy(bytes, codes);
        return bytes.size();
    }
};

template <class Strips>
std::unique_ptr<StripCoder> OfLevel(int level) {
    auto strips = std::make_unique<Strips>(level);
    if (level <= 1) {
        return strips;
    }
    return std::make_unique<SmallerStrips>(std::move(strips), std::make_unique<Strips>(1));
}

}  // namespace

std::unique_ptr<StripCoder> NewStripCoder(TiffCompression compression, int level) {
    switch (compression) {
        case TiffCompression::Deflate:
            return OfLevel<DeflatedStrips>(level);
        case TiffCompression::Zstd:
            return OfLevel<ZstdStrips>(level);
        case TiffCompression::None:
            return std::make_unique<PlainStrips>();
        case TiffCompression::Usual:
        case TiffCompression::Lzw:
            break;
    }
    return std::make_unique<LzwStrips>();
}

}  // namespace varnel
