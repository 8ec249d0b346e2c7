// SPDX-License-Identifier: MIT
// Fuzzes the lossless transforms. The first line of the input is the request, such as
// "50tg 40x30f+8-8", and the rest is the file. The first two characters of the line choose the
// operation and the markers to copy, the letters "p", "t", "g" and "s" set the flags, and the text
// after a blank is the crop.
#include "codecs/jtransform.h"
#include "fuzz/fuzzinput.h"
#include "fuzz/jpegclaims.h"

namespace {

libgr::jpeg_transform_info read_request(std::string const& line, libgr::JCOPY_OPTION& option) {
    std::string const options = line.substr(0, line.find(' '));
    auto const choice = [&](std::size_t at, unsigned int count) {
        return at < options.size() ? (static_cast<unsigned char>(options[at]) - '0') % count : 0;
    };
    libgr::jpeg_transform_info info;
    info.transform = static_cast<libgr::JXFORM_CODE>(choice(0, libgr::JXFORM_DROP + 1));
    option = static_cast<libgr::JCOPY_OPTION>(choice(1, libgr::JCOPY_ICC + 1));
    info.perfect = options.find('p') != options.npos;
    info.trim = options.find('t') != options.npos;
    info.force_grayscale = options.find('g') != options.npos;
    info.slow_hflip = options.find('s') != options.npos;
    if (options.size() < line.size()) {
        libgr::jtransform_parse_crop_spec(&info, line.c_str() + options.size() + 1);
    }
    return info;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (is_too_slow(data, size)) {
        return -1;
    }
    input_t input(data, size);
    libgr::JCOPY_OPTION option = libgr::JCOPY_NONE;
    libgr::jpeg_transform_info info = read_request(input.line(), option);
    libgr::jpegdata_t file;
    libgr::jpegdata_t turned;
    input.fill(file);
    if (libgr::transform(info, option, turned, file)) {
        libgr::jpeg_transform_info copy;
        require(libgr::transform(copy, libgr::JCOPY_ALL, file, turned));
        require(copy.output_width == info.output_width && copy.output_height == info.output_height);
    }
    return 0;
}
