// SPDX-License-Identifier: MIT
// Functions that read and write pixels through a stream.
#include "codecs/binaryio.h"

#include <sys/stat.h>

#include <cerrno>

#include "utils/diagnostics.h"

namespace libgr {

bool reject_header(std::uint64_t size) {
    return libutils::reject(size == 0 ? "empty file" : "ends within its header");
}

bool open_file(std::ifstream& stream, char const* path) {
    struct stat info {};
    if (::stat(path, &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode)) {
        errno = EINVAL;
        return libutils::reject("not a regular file");
    }
    stream.open(path, std::ios_base::binary);
    return stream.is_open() || libutils::reject_errno(errno);
}

std::uint64_t bytes_left(std::istream& stream) {
    std::streamoff const position = stream.tellg();
    stream.seekg(0, std::ios_base::end);
    std::streamoff const end = stream.tellg();
    stream.seekg(position);
    return stream && end > position ? static_cast<std::uint64_t>(end - position) : 0;
}

bool read_pixels(image_bytes_t& pixels, std::istream& stream, std::uint64_t size) {
    image_bytes_t block;
    if (size != 0) {
        if (!block.resize(size, 0)) {
            return libutils::reject("not enough memory");
        }
        stream.read(reinterpret_cast<char*>(block.begin()), static_cast<std::streamsize>(size));
    }
    pixels = block;
    return true;
}

void write_pixels(std::ostream& stream, image_bytes_t const& pixels) {
    if (!pixels.empty()) {
        stream.write(reinterpret_cast<char const*>(pixels.begin()),
                     static_cast<std::streamsize>(pixels.size()));
    }
}

}  // namespace libgr
