#pragma once
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// One option of a command: a row of its table, from which both the parser and
// the help work.
struct OptionRow {
  std::string_view name;   // without the two dashes
  char letter = 0;         // for "-x"; 0 for none
  std::string_view value;  // what follows, as help shows it; empty for a switch
  std::string_view help;
  bool many = false;  // may be given more than once
};

struct GivenOption {
  const OptionRow* row = nullptr;
  std::string value;
};

// What a command was called with: options in the order given, and the rest.
struct ParsedArguments {
  std::vector<GivenOption> options;
  std::vector<std::string> operands;

  [[nodiscard]] bool Has(std::string_view name) const;
  // Its value, or null. The first one of an option that may come many times.
  [[nodiscard]] const std::string* Value(std::string_view name) const;
};

// Reads "--name value", "--name=value", "-x value", "-xvalue" and switches;
// after "--" all are operands. `rows` must outlive the result.
//
// Errors  CliError (wrong use) for an unknown option, a missing or needless
//         value, or an option given twice that may come once.
[[nodiscard]] ParsedArguments ParseArguments(std::span<const OptionRow> rows,
                                             std::span<const std::string> arguments);

// The rows as lines of help.
[[nodiscard]] std::string OptionsHelp(std::span<const OptionRow> rows);

// Text broken into lines of at most `columns`, each after the first begun with
// `indent` blanks.
[[nodiscard]] std::string WrapText(std::string_view text, std::size_t indent, std::size_t columns);

}  // namespace tarnwick
