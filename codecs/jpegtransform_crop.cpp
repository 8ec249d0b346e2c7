// SPDX-License-Identifier: MIT
// Parses the text form of a crop.
#include <charconv>
#include <string_view>

#include "codecs/jtransform.h"

namespace libgr {

namespace {

bool take_number(std::string_view& text, JDIMENSION& number) {
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

bool take_size(std::string_view& text, JDIMENSION& size, JCROP_CODE& code) {
    if (!take_number(text, size)) {
        return false;
    }
    constexpr std::string_view crop_suffixes = "fFrR";
    std::size_t const which = text.empty() ? crop_suffixes.npos : crop_suffixes.find(text.front());
    code = which == crop_suffixes.npos ? JCROP_POSITIVE : which < 2 ? JCROP_FORCED : JCROP_REFLECT;
    text.remove_prefix(which == crop_suffixes.npos ? 0 : 1);
    return true;
}

bool take_offset(std::string_view& text, JDIMENSION& offset, JCROP_CODE& code) {
    code = text.front() == '-' ? JCROP_NEGATIVE : JCROP_POSITIVE;
    text.remove_prefix(1);
    return take_number(text, offset);
}

bool is_sign(char c) {
    return c == '+' || c == '-';
}

}  // namespace

bool jtransform_parse_crop_spec(jpeg_transform_info* info, char const* text) {
    std::string_view rest = text;
    jpeg_transform_info read = *info;
    read.crop = true;
    read.crop_width_set = read.crop_height_set = JCROP_UNSET;
    read.crop_xoffset_set = read.crop_yoffset_set = JCROP_UNSET;
    if (!rest.empty() && rest.front() != 'x' && !is_sign(rest.front()) &&
        !take_size(rest, read.crop_width, read.crop_width_set)) {
        return false;
    }
    if (!rest.empty() && rest.front() == 'x') {
        rest.remove_prefix(1);
        if (!take_size(rest, read.crop_height, read.crop_height_set)) {
            return false;
        }
    }
    if (!rest.empty() && is_sign(rest.front()) &&
        !take_offset(rest, read.crop_xoffset, read.crop_xoffset_set)) {
        return false;
    }
    if (!rest.empty() && is_sign(rest.front()) &&
        !take_offset(rest, read.crop_yoffset, read.crop_yoffset_set)) {
        return false;
    }
    if (!rest.empty()) {
        return false;
    }
    *info = read;
    return true;
}

}  // namespace libgr
