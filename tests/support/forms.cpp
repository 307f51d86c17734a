#include "support/forms.h"

#include <map>
#include <memory>

namespace tarnwick::testing {

ThreadPool* Form::Pool() const {
  static std::map<int, std::unique_ptr<ThreadPool>> pools;
  if (threads == 1) return nullptr;
  std::unique_ptr<ThreadPool>& pool = pools[threads];
  if (pool == nullptr) pool = std::make_unique<ThreadPool>(threads);
  return pool.get();
}

const std::vector<Form>& AllForms() {
  static const std::vector<Form> forms = [] {
    std::vector<Form> all;
    for (const int threads : {1, 2, 3, 7}) all.push_back({Isa::kPlain, threads});
    if (BestIsa() != Isa::kPlain) {
      for (const int threads : {1, 2, 3, 7}) all.push_back({BestIsa(), threads});
    }
    return all;
  }();
  return forms;
}

std::ostream& operator<<(std::ostream& out, const Form& form) {
  return out << (form.isa == Isa::kPlain ? "plain" : "avx2") << " with " << form.threads
             << " threads";
}

}  // namespace tarnwick::testing
