// SPDX-License-Identifier: MIT
// The rules of paging, and the pictures of a directory.
#include "app/picturelist.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <iomanip>
#include <iterator>
#include <map>

#include "options/option.h"
#include "tests/support/files/transcript.h"

namespace {

using namespace zanoview2;

/// Loads all entries except those in `broken`, and records the calls.
struct fake_loader_t final : picture_loader_t {
    std::string broken;  ///< a letter for each entry
    std::string log;     ///< after a blank, the entry for each load, "unload" for each unload

    bool load(std::string const& path) override {
        log += " " + path;
        return broken.find(path) == std::string::npos;
    }
    void unload() override { log += " unload"; }
};

walk_t walk(std::string const& move, picture_list_t& list, picture_place_t& place, unsigned long n,
            picture_loader_t& loader) {
    if (move == "initial") {
        return walk_initial(list, place, loader) ? walk_t::moved : walk_t::nothing_loads;
    }
    return move == "forward"    ? walk_forward(list, place, n, loader)
           : move == "backward" ? walk_backward(list, place, n, loader)
           : move == "first"    ? walk_first(list, place, loader)
                                : walk_last(list, place, loader);
}

TEST(PictureList, SkipsEntriesThatDoNotLoad) {
    std::map<walk_t, std::string> const names{{walk_t::moved, "moved"},
                                              {walk_t::no_move, "no_move"},
                                              {walk_t::nothing_loads, "nothing_loads"}};
    for (std::string const& row : transcript::lines_of(read_file(WALKS))) {
        if (row.starts_with('#')) {
            continue;
        }
        std::istringstream words(row);
        std::string entries, move, expected;
        fake_loader_t loader;
        picture_place_t place{};
        unsigned long n = 0;
        words >> std::quoted(entries) >> std::quoted(loader.broken) >> place.index >> move >> n;
        std::getline(words >> std::ws, expected);
        picture_list_t list;
        for (char const entry : entries) {
            list.emplace_back(1, entry);
        }
        place.entry = std::next(list.begin(), static_cast<long>(place.index));
        std::string const outcome = names.at(walk(move, list, place, n, loader));
        EXPECT_EQ(outcome + " " + std::to_string(place.index) + ":" + loader.log, expected) << row;
        EXPECT_EQ(std::distance(list.begin(), place.entry), static_cast<long>(place.index)) << row;
    }
}

TEST(PictureList, AppendsThePicturesOfADirectorySortedByName) {
    temp_dir_t const directory;
    std::string const base = directory.path() + "/";
    for (char const* name : {"img9.jpg", "img10.jpg", "a.JPG", "c.gif", ".x.png"}) {
        write_file(base + name, {});
    }
    ASSERT_EQ(mkdir((base + "sub.bmp").c_str(), 0755), 0);
    picture_list_t list{"before"};
    EXPECT_TRUE(append_pictures(list, directory.path()));
    picture_list_t const expected{"before",           base + ".x.png",   base + "a.JPG",
                                  base + "img10.jpg", base + "img9.jpg", base + "sub.bmp"};
    EXPECT_EQ(list, expected);
    // A file need not exist, but it needs the name of a picture.
    for (std::string const& path : {std::string("a.gif"), base + "sub.bmp"}) {
        EXPECT_FALSE(append_pictures(list, path)) << path;
    }
    EXPECT_EQ(list, expected);
    EXPECT_TRUE(append_pictures(list, base));
    EXPECT_TRUE(append_pictures(list, "gone.PNG"));
    EXPECT_EQ(list.back(), "gone.PNG");
    EXPECT_EQ(*std::prev(list.end(), 2), base + "sub.bmp");
}

TEST(PictureList, PrintsFilesUnderVerboseAndDebug) {
    temp_dir_t const directory;
    write_file(directory.file("a.jpg"), "");
    capture_t capture;
    picture_list_t list;
    zanolib::g_option.verbose = zanolib::g_option.debug = true;
    append_pictures(list, directory.path());
    append_pictures(list, "b.jpg");
    zanolib::g_option = {};
    std::string const printed = replace_all(capture.out(), directory.path(), "folder");
    for (char const* line : {"srchpath: folder\ndir: folder\n", "skip: ..\n", "file add: a.jpg\n",
                             "srchpath: b.jpg\nfile add: b.jpg\n"}) {
        EXPECT_NE(printed.find(line), std::string::npos) << line << printed;
    }
}

}  // namespace
