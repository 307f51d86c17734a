#include "cli_error.h"

namespace tarnwick {
namespace {

std::string Join(const std::string& what, const std::string& why, const std::string& advice) {
  std::string text = what + ": " + why;
  if (!advice.empty()) text += " (" + advice + ")";
  return text;
}

}  // namespace

CliError::CliError(ExitCode exitCode, const std::string& what, const std::string& why,
                   const std::string& advice)
    : std::runtime_error(Join(what, why, advice)), code_(exitCode) {}

void FailUse(const std::string& what, const std::string& why, const std::string& advice) {
  throw CliError(ExitCode::kWrongUse, what, why, advice);
}

void FailInput(const std::string& what, const std::string& why, const std::string& advice) {
  throw CliError(ExitCode::kInputFailed, what, why, advice);
}

}  // namespace tarnwick
