#pragma once
#include <cstdint>
#include <span>
#include <vector>

namespace tarnwick {

// IPTC data lies bare in a TIFF file, while a JPEG file has it as one resource,
// number 0x0404, of a block that begins with a program's name. The picture
// library hands on either as it found it, so a change of format has to change
// the wrapping.

// The data without the block around it; as it is, if it has none. Empty if the
// block holds no such resource.
[[nodiscard]] std::vector<std::uint8_t> BareIptc(std::span<const std::uint8_t> data);

// The data as a block with this one resource; as it is, if it is one already.
[[nodiscard]] std::vector<std::uint8_t> WrappedIptc(std::span<const std::uint8_t> data);

}  // namespace tarnwick
