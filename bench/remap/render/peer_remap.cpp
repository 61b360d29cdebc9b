// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/remap/render/peer_remap.h"

#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace varnel::bench {

void PeerRectilinear(const RectilinearView& view, std::uint8_t* source, std::uint8_t* result,
                     int threads) {
    cv::setNumThreads(threads);
    const int width = view.source.size.width;
    const int height = view.source.size.height;
    cv::Mat mapX(height, width, CV_32FC1);
    cv::Mat mapY(height, width, CV_32FC1);
    const RectilinearRadius radius(view);
    cv::parallel_for_(cv::Range(0, height), [&](const cv::Range& rows) {
        for (int row = rows.start; row < rows.end; ++row) {
            const double y = row - height / 2;
            for (int column = 0; column < width; ++column) {
                const double x = column - width / 2;
                const double r = std::sqrt(x * x + y * y);
                const double scale = r == 0.0 ? 0.0 : radius.At(r) / r;
                mapX.at<float>(row, column) = static_cast<float>(width / 2 + x * scale);
                mapY.at<float>(row, column) = static_cast<float>(height / 2 + y * scale);
            }
        }
    });
    const cv::Mat from(height, width, CV_8UC3, source);
    cv::Mat to(height, width, CV_8UC3, result);
    cv::remap(from, to, mapX, mapY, cv::INTER_LINEAR, cv::BORDER_CONSTANT);
}

}  // namespace varnel::bench
