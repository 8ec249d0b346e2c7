// SPDX-License-Identifier: MIT
// Fuzzes the functions that take file names apart. The first two bytes of the input are the room of
// the functions that write into an array, the rest is the name.
#include <clocale>
#include <memory>

#include "fuzz/fuzzinput.h"
#include "utils/path.h"
#include "utils/token.h"

namespace {

/// Calls a function that writes a part of `name` into an array of `room` bytes.
void write_part(std::size_t (*part)(char*, char const*, std::size_t), std::string const& name,
                std::size_t room) {
    std::unique_ptr<char[]> const array(new char[room]);
    std::size_t const length = part(array.get(), name.c_str(), room);
    require(length <= room && (length == room || array[length] == '\0'));
}

void split_and_join(std::string const& name) {
    auto const parts = std::make_unique<libutils::splitpath_t>();
    libutils::split(*parts, name.c_str());
    char whole[4 * sizeof parts->name];
    libutils::concat(whole, *parts);
    require(name.size() >= sizeof parts->name || name == whole);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static char const* const locale = std::setlocale(LC_ALL, "C.UTF-8");
    require(locale != nullptr);
    input_t input(data, size);
    std::size_t const room = input.number(2) % 2048;
    std::string const name = input.rest().substr(0, input.rest().find('\0'));
    write_part(libutils::basename, name, room);
    write_part(libutils::dirname, name, room);
    split_and_join(name);
    std::string const directory = libutils::dirname(name);
    require(name.starts_with(directory + libutils::basename(name)));
    require(name.ends_with(libutils::baseptr(name.c_str())));
    require(name.size() > 255 || libutils::path_beside(name.c_str(), ".zvw") ==
                                     directory + libutils::basename(name) + ".zvw");
    libutils::extcasecmp(name, ".jpeg");
    std::wstring const wide = libutils::str2wstr(name);
    require(wide.empty() || libutils::wstr2str(wide) == name);
    return 0;
}
