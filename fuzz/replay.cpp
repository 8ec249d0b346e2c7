// SPDX-License-Identifier: MIT
// Runs a fuzz target once for each file of the given directories, in builds without libFuzzer. A
// fault ends the process; the last line printed is then the file that caused it.
#include <cstdio>
#include <filesystem>

#include "fuzz/fuzzinput.h"

int main(int argc, char** argv) {
    unsigned int files = 0;
    for (int i = 1; i < argc; ++i) {
        for (auto const& entry : std::filesystem::directory_iterator(argv[i])) {
            std::string const path = entry.path().string();
            std::string const bytes = content_of(path);
            std::printf("%s\n", path.c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()),
                                   bytes.size());
            ++files;
        }
    }
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
