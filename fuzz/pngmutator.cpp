// SPDX-License-Identifier: MIT
// Repairs the checksums of a PNG file after each change that libFuzzer makes. With a wrong checksum
// no change to a chunk would reach the code that reads the chunk.
#include <zlib.h>

#include <cstddef>
#include <cstdint>

extern "C" {
/// libFuzzer's own mutations. Returns the new size, at most `limit`.
std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t limit);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t limit,
                                    unsigned int seed);
}

namespace {

constexpr std::size_t signature_size = 8;
constexpr std::size_t length_size = 4;
constexpr std::size_t name_size = 4;
constexpr std::size_t checksum_size = 4;

void put_checksum(std::uint8_t* place, unsigned long checksum) {
    for (unsigned int i = 0; i < checksum_size; ++i) {
        place[i] = static_cast<std::uint8_t>(checksum >> (24 - 8 * i));
    }
}

}  // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t limit,
                                    unsigned int /*seed*/) {
    size = LLVMFuzzerMutate(data, size, limit);
    std::size_t at = signature_size;
    while (at + length_size + name_size + checksum_size <= size) {
        std::size_t content = name_size;
        for (std::size_t i = 0; i < length_size; ++i) {
            content += std::size_t{data[at + i]} << (24 - 8 * i);
        }
        std::size_t const start = at + length_size;
        if (content > size - start || size - start - content < checksum_size) {
            break;
        }
        put_checksum(data + start + content, crc32(0, data + start, static_cast<uInt>(content)));
        at = start + content + checksum_size;
    }
    return size;
}
