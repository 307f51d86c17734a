#pragma once
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace tarnwick {

// What InflateStream returns besides 0 and zlib's own negative codes.
inline constexpr int kInflateReadError = -1;
inline constexpr int kInflateTruncated = -3;
inline constexpr int kInflateNoBuffer = -4;

// Inflates the zlib stream at the present place of `file` into `destination`,
// `size` bytes, through a buffer of 256 KiB.
//
// Returns 0 at the stream's end, also when it gave fewer than `size` bytes: the
// rest keeps what was there. Of a stream that gives more the rest is read and
// dropped. A damaged stream gives zlib's code, a file that ends before its
// stream does kInflateTruncated; what was inflated until then stays.
// `complaint` is set to a text where the system lacked something, else to null.
[[nodiscard]] int InflateStream(std::FILE* file, std::uint8_t* destination, std::size_t size,
                                const char*& complaint);

}  // namespace tarnwick
