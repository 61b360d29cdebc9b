// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// peer_opencv hand|fisheye float|fixed THREADS PROCESSES TYPE FOLDER FILE...
// The job on OpenCV: the map, worked out by hand or by its fisheye model, is built once in each
// process and applied to every file; FOLDER gets files of that type (jpg, tif, png), written as
// OpenCV does by default but for the JPEG quality of 95. Without a FILE it only starts.

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <opencv2/calib3d.hpp>
#include <opencv2/core.hpp>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <string>
#include <vector>

#include "bench/compare/view.h"

namespace {

struct Job {
    bool fisheye = false;
    bool fixed = false;
    int threads = 1;
    std::string type;
    std::filesystem::path folder;
    std::vector<std::string> files;
};

struct Map {
    cv::Mat x, y;
    cv::Size size{};
};

Map HandMap(cv::Size size, bool fixed) {
    Map map{cv::Mat(size, CV_32FC1), cv::Mat(size, CV_32FC1), size};
    const double cx = (size.width - 1) / 2.0;
    const double cy = (size.height - 1) / 2.0;
    cv::parallel_for_(cv::Range(0, size.height), [&](const cv::Range& rows) {
        for (int row = rows.start; row < rows.end; ++row) {
            auto* const toX = map.x.ptr<float>(row);
            auto* const toY = map.y.ptr<float>(row);
            for (int column = 0; column < size.width; ++column) {
                const double shrink = varnel::bench::Shrink(column - cx, row - cy, size.width);
                toX[column] = static_cast<float>(cx + (column - cx) * shrink);
                toY[column] = static_cast<float>(cy + (row - cy) * shrink);
            }
        }
    });
    if (fixed) {
        cv::Mat whole, fraction;
        cv::convertMaps(map.x, map.y, whole, fraction, CV_16SC2);
        map = {whole, fraction, size};
    }
    return map;
}

// The polynomial is the series of 2 sin(theta / 2) to the ninth power, all that the model takes.
Map FisheyeMap(cv::Size size, bool fixed) {
    const auto camera = [&](double focal) {
        return cv::Matx33d(focal, 0, (size.width - 1) / 2.0, 0, focal, (size.height - 1) / 2.0, 0,
                           0, 1);
    };
    const cv::Vec4d series(-1.0 / 24, 1.0 / 1920, -1.0 / 322560, 1.0 / 92897280);
    Map map{{}, {}, size};
    cv::fisheye::initUndistortRectifyMap(camera(varnel::bench::SourceFocal(size.width)), series,
                                         cv::Matx33d::eye(),
                                         camera(varnel::bench::ViewFocal(size.width)), size,
                                         fixed ? CV_16SC2 : CV_32FC1, map.x, map.y);
    return map;
}

bool Convert(const Job& job, const std::string& file, Map& map, cv::Mat& view) {
    const cv::Mat source = cv::imread(file, cv::IMREAD_COLOR);
    if (source.empty()) {
        return false;
    }
    if (map.size != source.size()) {
        map =
            job.fisheye ? FisheyeMap(source.size(), job.fixed) : HandMap(source.size(), job.fixed);
    }
    cv::remap(source, view, map.x, map.y, cv::INTER_LINEAR, cv::BORDER_CONSTANT);
    const auto name = std::filesystem::path(file).stem().concat("." + job.type);
    const std::vector<int> options =
        job.type == "jpg" ? std::vector<int>{cv::IMWRITE_JPEG_QUALITY, 95} : std::vector<int>{};
    return cv::imwrite((job.folder / name).string(), view, options);
}

// Every so many of the files, from the given one on.
int ConvertShare(const Job& job, std::size_t first, std::size_t step) {
    cv::setNumThreads(job.threads);
    Map map;
    cv::Mat view;
    for (std::size_t n = first; n < job.files.size(); n += step) {
        if (!Convert(job, job.files[n], map, view)) {
            return 1;
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 7) {
        return 2;
    }
    const std::vector<std::string> words(argv + 1, argv + argc);
    const Job job{words[0] == "fisheye",
                  words[1] == "fixed",
                  std::stoi(words[2]),
                  words[4],
                  words[5],
                  {words.begin() + 6, words.end()}};
    const auto processes = static_cast<std::size_t>(std::stoi(words[3]));
    for (std::size_t n = 1; n < processes; ++n) {
        if (fork() == 0) {
            _exit(ConvertShare(job, n, processes));
        }
    }
    int result = ConvertShare(job, 0, processes);
    for (int status = 0; wait(&status) > 0;) {
        result |= status;
    }
    return result == 0 ? 0 : 1;
}
