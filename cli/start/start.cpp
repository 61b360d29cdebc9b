// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's beginning: needs the C library only, which is there at once.
#include <dlfcn.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "cli/start/names_jpeg.h"
#include "cli/start/program_module.h"

namespace {

// The path of a file beside this program, or in the package's folder for such, as
// base/program_file.h has it.
class ProgramPath {
  public:
    explicit ProgramPath(const char* name) {
        const ssize_t length = readlink("/proc/self/exe", path_.data(), PATH_MAX - 1);
        const char* const slash = length > 0 ? std::strrchr(path_.data(), '/') : nullptr;
        const std::ptrdiff_t folder = slash != nullptr ? slash - path_.data() : 0;
        for (const char* between : {"/", "/../lib/varnel/"}) {
            std::snprintf(path_.data() + folder, path_.size() - static_cast<std::size_t>(folder),
                          "%s%s", between, name);
            if (access(path_.data(), F_OK) == 0) {
                return;
            }
        }
    }
    const char* Text() const { return path_.data(); }

  private:
    std::array<char, PATH_MAX + 64> path_{};
};

}  // namespace

int main(int argc, char* argv[]) {
    using namespace varnel;
    const StartedDecoder decoder = NamesJpeg(argc, argv)
                                       ? StartDecoder(ProgramPath("varnel-jpeg-decoder").Text())
                                       : StartedDecoder();
    void* const module = dlopen(ProgramPath(programModule).Text(), RTLD_LAZY);
    void* const symbol = module != nullptr ? dlsym(module, programSymbol) : nullptr;
    if (symbol == nullptr) {
        std::fprintf(stderr, "varnel-convert: %s\n", dlerror());
        return 2;
    }
    return reinterpret_cast<ProgramFunction*>(symbol)(argc, argv, &decoder);
}
