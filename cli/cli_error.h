#pragma once
#include <stdexcept>
#include <string>

namespace tarnwick {

enum class ExitCode : int { kDone = 0, kInputFailed = 1, kWrongUse = 2 };

// Why a command cannot go on. The text reads "what: why (what to do)"; the
// advice may be missing.
class CliError : public std::runtime_error {
 public:
  CliError(ExitCode exitCode, const std::string& what, const std::string& why,
           const std::string& advice = {});

  [[nodiscard]] ExitCode Code() const { return code_; }

 private:
  ExitCode code_;
};

// The command line asks for something that cannot be: exit 2.
[[noreturn]] void FailUse(const std::string& what, const std::string& why,
                          const std::string& advice = {});

// One input cannot be done; the others still are: exit 1.
[[noreturn]] void FailInput(const std::string& what, const std::string& why,
                            const std::string& advice = {});

}  // namespace tarnwick
