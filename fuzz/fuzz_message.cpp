// SPDX-License-Identifier: MIT
// Fuzzes the reader of message files.
#include <cstring>

#include "fuzz/fuzzinput.h"
#include "options/message.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text = input_t(data, size).rest();
    std::string const path = scratch_file("messages.msg", text);
    std::string const directory = path.substr(0, path.rfind('/') + 1);
    require(zanolib::init_message(directory.c_str(), "messages") == path);
    auto const lines = static_cast<unsigned int>(std::count(text.begin(), text.end(), '\n'));
    std::size_t length = 0;
    for (unsigned int id = 0; id < lines; ++id) {
        length += std::strlen(zanolib::getmsg(zanolib::e_message_t{id})) + 1;
    }
    require(length <= text.size());
    zanolib::make_title(zanolib::getmsg(zanolib::e_message_t{lines}), "");
    return 0;
}
