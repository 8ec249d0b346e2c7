// SPDX-License-Identifier: MIT
// Paging rules, as numbers: a list, and a stage that loads only what it is told to.
#include "app/picturelist.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <iterator>
#include <vector>

#include "tests/support/files/testfiles.h"

namespace {

using namespace zanoview2;

/// Loads every entry but the ones in `broken`, and writes down what was asked of it.
struct stand_in_stage_t final : picture_stage_t {
    std::string broken;  ///< one letter an entry
    std::string log;     ///< a letter for each try, "-" for each removal

    bool add(std::string const& path) override {
        log += path;
        return broken.find(path) == std::string::npos;
    }
    void remove() override { log += '-'; }
};

struct walk_row_t {
    char const* entries;  ///< one letter an entry
    char const* broken;
    unsigned long from;
    char move;  ///< f forward, b backward, h first, e last
    unsigned long n;
    walk_t outcome;
    unsigned long to;
    char const* log;
};

TEST(PictureList, WalksByTheRules) {
    walk_row_t const rows[] = {
        {"abcde", "", 1, 'f', 1, walk_t::moved, 2, "-c"},
        {"abcde", "", 4, 'f', 1, walk_t::refused, 4, ""},
        {"abcde", "", 1, 'f', 10, walk_t::refused, 1, ""},
        {"abcdefghijklmno", "", 8, 'f', 10, walk_t::refused, 8, ""},
        {"abcdefghijklmno", "", 8, 'b', 10, walk_t::moved, 0, "-a"},
        {"abcde", "cd", 1, 'f', 1, walk_t::moved, 4, "-cde"},
        // Nothing loads to the end: the search turns round, and never tries the first entry.
        {"abcde", "e", 3, 'f', 1, walk_t::moved, 3, "-eed"},
        {"abcde", "bcde", 1, 'f', 2, walk_t::stranded, 1, "-deedcb"},
        {"abcde", "", 3, 'b', 2, walk_t::moved, 1, "-b"},
        {"abcde", "", 0, 'b', 1, walk_t::refused, 0, ""},
        {"abcde", "bc", 4, 'b', 2, walk_t::moved, 0, "-cba"},
        {"abcde", "abc", 4, 'b', 2, walk_t::moved, 3, "-cbabcd"},
        {"abc", "abc", 2, 'b', 1, walk_t::stranded, 2, "-babc"},
        {"abc", "a", 2, 'h', 0, walk_t::moved, 1, "-ab"},
        {"abc", "abc", 2, 'h', 0, walk_t::stranded, 2, "-abc"},
        {"abc", "bc", 2, 'e', 0, walk_t::moved, 0, "-cba"},
        {"abc", "abc", 1, 'e', 0, walk_t::stranded, 1, "-cba"},
        {"", "", 0, 'f', 1, walk_t::refused, 0, ""},
        {"", "", 0, 'b', 1, walk_t::refused, 0, ""},
        {"", "", 0, 'h', 0, walk_t::refused, 0, ""},
        {"", "", 0, 'e', 0, walk_t::refused, 0, ""},
        // Past the end, as after a first load that found nothing.
        {"abc", "", 3, 'f', 1, walk_t::refused, 3, ""},
        {"abc", "", 3, 'b', 1, walk_t::moved, 2, "-c"},
    };
    for (walk_row_t const& row : rows) {
        SCOPED_TRACE(std::string(row.entries) + " without " + row.broken + ", " + row.move +
                     std::to_string(row.n) + " from " + std::to_string(row.from));
        picture_list_t list;
        for (char const* entry = row.entries; *entry; ++entry) {
            list.emplace_back(1, *entry);
        }
        stand_in_stage_t stage;
        stage.broken = row.broken;
        picture_place_t place{std::next(list.begin(), static_cast<long>(row.from)), row.from};
        walk_t const outcome = row.move == 'f'   ? walk_forward(list, place, row.n, stage)
                               : row.move == 'b' ? walk_backward(list, place, row.n, stage)
                               : row.move == 'h' ? walk_first(list, place, stage)
                                                 : walk_last(list, place, stage);
        EXPECT_EQ(outcome, row.outcome);
        EXPECT_EQ(place.index, row.to);
        EXPECT_EQ(std::distance(list.begin(), place.entry), static_cast<long>(row.to));
        EXPECT_EQ(stage.log, row.log);
    }
}

TEST(PictureList, FirstLoadSkipsToTheFirstThatLoadsOrTheEnd) {
    picture_list_t list{"a", "b", "c"};
    stand_in_stage_t stage;
    picture_place_t place{};
    stage.broken = "a";
    EXPECT_TRUE(walk_initial(list, place, stage));
    EXPECT_EQ(place.index, 1u);
    stage.broken = "abc";
    EXPECT_FALSE(walk_initial(list, place, stage));
    EXPECT_EQ(place.index, 3u);
    EXPECT_EQ(place.entry, list.end());
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
    EXPECT_TRUE(append_pictures(list, "gone.PNG"));
    EXPECT_EQ(list.back(), "gone.PNG");
    EXPECT_FALSE(append_pictures(list, "a.gif"));
    EXPECT_FALSE(append_pictures(list, "-verbose"));
    EXPECT_FALSE(append_pictures(list, base + "sub.bmp"));
    EXPECT_EQ(list.size(), expected.size() + 1);
    EXPECT_TRUE(append_pictures(list, base));
    EXPECT_EQ(list.back(), base + "sub.bmp");
}

}  // namespace
