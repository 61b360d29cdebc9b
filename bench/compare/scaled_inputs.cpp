// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// scaled_inputs PHOTO FOLDER MEGAPIXELS...
// Writes FOLDER/N.jpg for each number: pictures of that many megapixels, 3 to 2, that repeat the
// photo mirrored at its borders, so that all cost the same a pixel; baseline at quality 95 with
// 4:2:0 colour. Prints N and the true number of megapixels of each.

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <jpeglib.h>

namespace {

struct Photo {
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<JSAMPLE> pixels{};  // red, green, blue, from the top row down

    const JSAMPLE* Row(std::size_t y) const { return pixels.data() + y * width * 3; }
};

// What is not a JPEG ends the program, as libjpeg does by itself.
Photo Read(const char* name) {
    Photo photo;
    std::FILE* const file = std::fopen(name, "rb");
    if (file == nullptr) {
        return photo;
    }
    jpeg_error_mgr errors{};
    jpeg_decompress_struct info{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&info);
    photo.width = info.output_width;
    photo.height = info.output_height;
    photo.pixels.resize(photo.width * photo.height * 3);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = photo.pixels.data() + info.output_scanline * photo.width * 3;
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    std::fclose(file);
    return photo;
}

// A place in the photo, there and back again.
std::size_t Mirrored(std::size_t place, std::size_t side) {
    const std::size_t within = place % (2 * side);
    return within < side ? within : 2 * side - 1 - within;
}

void PutRow(const Photo& photo, std::size_t y, std::vector<JSAMPLE>& row) {
    const JSAMPLE* const from = photo.Row(Mirrored(y, photo.height));
    for (std::size_t x = 0; x < row.size() / 3; ++x) {
        for (std::size_t n = 0; n < 3; ++n) {
            row[3 * x + n] = from[3 * Mirrored(x, photo.width) + n];
        }
    }
}

bool Write(const Photo& photo, std::size_t width, std::size_t height,
           const std::filesystem::path& name) {
    std::FILE* const file = std::fopen(name.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    jpeg_error_mgr errors{};
    jpeg_compress_struct info{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_stdio_dest(&info, file);
    info.image_width = static_cast<JDIMENSION>(width);
    info.image_height = static_cast<JDIMENSION>(height);
    info.in_color_space = JCS_RGB;
    info.input_components = 3;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 95, TRUE);
    jpeg_start_compress(&info, TRUE);
    std::vector<JSAMPLE> row(width * 3);
    for (std::size_t y = 0; y < height; ++y) {
        PutRow(photo, y, row);
        JSAMPROW bytes = row.data();
        jpeg_write_scanlines(&info, &bytes, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    return std::fclose(file) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("scaled_inputs PHOTO FOLDER MEGAPIXELS...\n", stderr);
        return 2;
    }
    const Photo photo = Read(argv[1]);
    if (photo.pixels.empty()) {
        std::perror(argv[1]);
        return 1;
    }
    const std::filesystem::path folder = argv[2];
    std::filesystem::create_directories(folder);
    for (int n = 3; n < argc; ++n) {
        const double pixels = std::stod(argv[n]) * 1e6;
        const auto width = static_cast<std::size_t>(std::lround(std::sqrt(pixels * 1.5)));
        const std::size_t height = width * 2 / 3;
        if (!Write(photo, width, height, folder / (argv[n] + std::string(".jpg")))) {
            std::perror(argv[n]);
            return 1;
        }
        std::printf("%s %.3f\n", argv[n], static_cast<double>(width * height) / 1e6);
    }
    return 0;
}
