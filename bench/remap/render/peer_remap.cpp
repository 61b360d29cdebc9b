// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/remap/render/peer_remap.h"

#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace varnel::bench {

namespace {

struct Maps {
    cv::Mat x, y;

    explicit Maps(const RectilinearView& view)
        : x(view.source.size.height, view.source.size.width, CV_32FC1), y(x.size(), CV_32FC1) {
        const RectilinearRadius radius(view);
        cv::parallel_for_(cv::Range(0, x.rows), [&](const cv::Range& rows) {
            for (int row = rows.start; row < rows.end; ++row) {
                const double up = row - x.rows / 2;
                for (int column = 0; column < x.cols; ++column) {
                    const double across = column - x.cols / 2;
                    const double r = std::sqrt(across * across + up * up);
                    const double scale = r == 0.0 ? 0.0 : radius.At(r) / r;
                    x.at<float>(row, column) = static_cast<float>(x.cols / 2 + across * scale);
                    y.at<float>(row, column) = static_cast<float>(x.rows / 2 + up * scale);
                }
            }
        });
    }
    void Draw(std::uint8_t* source, std::uint8_t* result, int kernel) const {
        const cv::Mat from(x.size(), CV_8UC3, source);
        cv::Mat to(x.size(), CV_8UC3, result);
        cv::remap(from, to, x, y, kernel, cv::BORDER_CONSTANT);
    }
};

}  // namespace

void PeerRectilinear(const RectilinearView& view, std::uint8_t* source, std::uint8_t* result,
                     int threads) {
    cv::setNumThreads(threads);
    Maps(view).Draw(source, result, cv::INTER_LINEAR);
}

struct PeerLanczos::Map : Maps {
    using Maps::Maps;
};

PeerLanczos::PeerLanczos(const RectilinearView& view) : map_(std::make_unique<Map>(view)) {}

PeerLanczos::~PeerLanczos() = default;

void PeerLanczos::Draw(std::uint8_t* source, std::uint8_t* result) const {
    cv::setNumThreads(1);
    map_->Draw(source, result, cv::INTER_LANCZOS4);
}

}  // namespace varnel::bench
