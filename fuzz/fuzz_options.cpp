// SPDX-License-Identifier: MIT
// Fuzzes the user default file and the command line with the same text. Settings that were read
// must come back after they were saved.
#include <cstring>
#include <list>
#include <sstream>
#include <vector>

#include "fuzz/fuzzinput.h"
#include "options/option.h"
#include "options/userdefault.h"

namespace {

/// Returns the file that the settings are saved as. By design a colour does not read back, and a
/// pair that begins with 0 reads back as a hexadecimal number.
std::string saved_settings() {
    auto& settings = zanolib::g_option;
    settings.framecolor = {};
    for (auto* pair : {&settings.winsize, &settings.maxmargin, &settings.maxsize}) {
        pair->x = std::max(pair->x, 1);
    }
    std::string const path = scratch_path("saved");
    zanolib::option_save(path.c_str());
    return content_of(path);
}

void enter_command_line(std::string const& text) {
    std::istringstream in(text);
    std::list<std::string> words = {"zanoview3"};
    for (std::string word; in >> word;) {
        word.resize(std::strlen(word.c_str()));  // an argument ends at its first null character
        if (word != "-h" && word != "-H" && word != "-h+" && word != "-H+") {  // they call exit
            words.push_back(word);
        }
    }
    std::vector<char*> elements;
    for (std::string& word : words) {
        elements.push_back(word.data());
    }
    int argc = static_cast<int>(elements.size());
    char** argv = elements.data();
    zanolib::option_enter_argument(&argc, &argv);
    require(argc >= 1 && static_cast<std::size_t>(argc) <= words.size());
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text = input_t(data, size).rest();
    zanolib::g_option = {};
    zanolib::option_init();
    zanolib::option_load(scratch_file("defaults", text).c_str());
    enter_command_line(text);
    std::string const settings = saved_settings();
    zanolib::g_option = {};
    zanolib::option_load(scratch_path("saved").c_str());
    require(saved_settings() == settings);
    return 0;
}
