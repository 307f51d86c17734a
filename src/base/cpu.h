#pragma once

namespace tarnwick {

// The instruction sets that a hot loop may exist for. All give the same bytes.
enum class Isa { kPlain, kAvx2 };

// The best one that this processor and system run.
[[nodiscard]] Isa BestIsa();

}  // namespace tarnwick
