// SPDX-License-Identifier: MIT
// The posix_memalign() of the program.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <set>
#include <vector>

namespace {

struct freed_t {
    void operator()(void* block) const { std::free(block); }
};
using block_t = std::unique_ptr<void, freed_t>;

TEST(AlignedMemoryTest, LargeBlocksAreAlignedAndUsedAgain) {
    void* block = nullptr;
    EXPECT_EQ(posix_memalign(&block, 4, 65536), EINVAL);
    EXPECT_EQ(posix_memalign(&block, 48, 65536), EINVAL);
    ASSERT_EQ(block, nullptr);

    // The blocks of a software driver: a texture, one that replaces it, and something small.
    constexpr std::size_t texture = 262144;
    constexpr std::size_t with_mipmaps = 350464;
    std::vector<block_t> kept;
    std::set<void*> first_textures;
    for (std::size_t tile = 0; tile < 64; ++tile) {
        for (std::size_t const size : {texture, with_mipmaps}) {
            ASSERT_EQ(posix_memalign(&block, 64, size), 0);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 64, 0U) << size;
            kept.emplace_back(block);
            kept.emplace_back(std::malloc(24 + tile % 5 * 16));
        }
        first_textures.insert(kept[kept.size() - 4].get());
        kept.erase(kept.end() - 4);
    }
#ifndef __SANITIZE_ADDRESS__  // it keeps freed blocks, and ends the process for large ones
    EXPECT_EQ(posix_memalign(&block, 64, PTRDIFF_MAX / 2), ENOMEM);
    EXPECT_LE(first_textures.size(), 4U);
#endif
}

}  // namespace
