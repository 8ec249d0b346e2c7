// SPDX-License-Identifier: MIT
// Paging rules, as numbers: a list, and a stage that loads only what it is told to.
#include "app/picturelist.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <iomanip>
#include <iterator>
#include <map>

#include "tests/support/files/testfiles.h"

namespace {

using namespace zanoview2;

/// Loads every entry but the ones in `broken`, and writes down what was asked of it.
struct stand_in_stage_t final : picture_stage_t {
    std::string broken;  ///< one letter an entry
    std::string log;     ///< a letter for each try, "-" for each removal, each behind a blank

    bool add(std::string const& path) override {
        log += " " + path;
        return broken.find(path) == std::string::npos;
    }
    void remove() override { log += " -"; }
};

walk_t walk(std::string const& move, picture_list_t& list, picture_place_t& place, unsigned long n,
            picture_stage_t& stage) {
    if (move == "initial") {
        return walk_initial(list, place, stage) ? walk_t::moved : walk_t::stranded;
    }
    return move == "forward"    ? walk_forward(list, place, n, stage)
           : move == "backward" ? walk_backward(list, place, n, stage)
           : move == "first"    ? walk_first(list, place, stage)
                                : walk_last(list, place, stage);
}

TEST(PictureList, WalksByTheRules) {
    std::map<walk_t, std::string> const names{
        {walk_t::moved, "moved"}, {walk_t::refused, "refused"}, {walk_t::stranded, "stranded"}};
    std::ifstream in(WALKS);
    int rows = 0;
    for (std::string row; std::getline(in, row);) {
        if (row.starts_with('#')) {
            continue;
        }
        ++rows;
        std::istringstream words(row);
        std::string entries, move, expected;
        stand_in_stage_t stage;
        picture_place_t place{};
        unsigned long n = 0;
        words >> std::quoted(entries) >> std::quoted(stage.broken) >> place.index >> move >> n;
        std::getline(words >> std::ws, expected);
        picture_list_t list;
        for (char const entry : entries) {
            list.emplace_back(1, entry);
        }
        place.entry = std::next(list.begin(), static_cast<long>(place.index));
        std::string const outcome = names.at(walk(move, list, place, n, stage));
        EXPECT_EQ(outcome + " " + std::to_string(place.index) + ":" + stage.log, expected) << row;
        EXPECT_EQ(std::distance(list.begin(), place.entry), static_cast<long>(place.index)) << row;
    }
    EXPECT_EQ(rows, 25);
}

TEST(PictureList, TakesPicturesByNameSortedInsideTheirDirectory) {
    temp_dir_t const directory;
    std::string const base = directory.path() + "/";
    for (char const* name :
         {"img9.jpg", "img10.jpg", "a.JPG", "B.Jpeg", "c.gif", ".x.png", "jpg", "d.tga"}) {
        write_file(base + name, {});
    }
    ASSERT_EQ(mkdir((base + "sub.bmp").c_str(), 0755), 0);

    picture_list_t list{"before"};
    EXPECT_TRUE(append_pictures(list, directory.path()));
    picture_list_t expected{"before"};
    for (char const* name :
         {".x.png", "B.Jpeg", "a.JPG", "d.tga", "img10.jpg", "img9.jpg", "sub.bmp"}) {
        expected.push_back(base + name);
    }
    EXPECT_EQ(list, expected);

    // A file need not exist, but must be named like a picture; a directory may have nothing to
    // give.
    for (std::string const& path :
         {std::string("a.gif"), std::string("-verbose"), base + "sub.bmp"}) {
        EXPECT_FALSE(append_pictures(list, path)) << path;
    }
    EXPECT_EQ(list, expected);
    EXPECT_TRUE(append_pictures(list, base) && append_pictures(list, "gone.PNG"));
    EXPECT_EQ(list.back(), "gone.PNG");
    EXPECT_EQ(*std::prev(list.end(), 2), base + "sub.bmp");
}

}  // namespace
