#pragma once
#include <ostream>
#include <vector>

#include "base/cpu.h"
#include "base/thread_pool.h"

namespace tarnwick::testing {

// A way to run a stage: all of them have to give the same bytes.
struct Form {
  Isa isa;
  int threads;
  // Kept for the whole run of the tests; null for one thread.
  [[nodiscard]] ThreadPool* Pool() const;
};

// Every instruction set of this processor with 1, 2, 3 and 7 threads; the plain
// one with one thread comes first.
[[nodiscard]] const std::vector<Form>& AllForms();

std::ostream& operator<<(std::ostream& out, const Form& form);

}  // namespace tarnwick::testing
