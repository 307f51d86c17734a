#include "option_parser.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "cli_error.h"
#include "did_you_mean.h"

namespace tarnwick {
namespace {

const OptionRow* FindName(std::span<const OptionRow> rows, std::string_view name) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const OptionRow& row) { return row.name == name; });
  return found == rows.end() ? nullptr : &*found;
}

const OptionRow* FindLetter(std::span<const OptionRow> rows, char letter) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const OptionRow& row) { return row.letter == letter; });
  return found == rows.end() ? nullptr : &*found;
}

[[noreturn]] void FailUnknown(std::span<const OptionRow> rows, const std::string& given) {
  std::vector<std::string> names;
  for (const OptionRow& row : rows) names.push_back("--" + std::string(row.name));
  FailUse(given, "no such option", DidYouMean(given, names, "see --help"));
}

class Parser {
 public:
  Parser(std::span<const OptionRow> rows, std::span<const std::string> arguments)
      : rows_(rows), arguments_(arguments) {}

  ParsedArguments Run() {
    bool onlyOperands = false;
    while (next_ < arguments_.size()) {
      const std::string& argument = arguments_[next_++];
      if (onlyOperands || argument.size() < 2 || argument[0] != '-') {
        parsed_.operands.push_back(argument);
      } else if (argument == "--") {
        onlyOperands = true;
      } else if (argument[1] == '-') {
        TakeLong(argument);
      } else {
        TakeShort(argument);
      }
    }
    return std::move(parsed_);
  }

 private:
  void TakeLong(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    const std::string given = argument.substr(0, equals);
    const OptionRow* row = FindName(rows_, std::string_view(given).substr(2));
    if (row == nullptr) FailUnknown(rows_, given);
    std::optional<std::string> value;
    if (equals != std::string::npos) value = argument.substr(equals + 1);
    Add(*row, given, std::move(value));
  }

  void TakeShort(const std::string& argument) {
    const std::string given = argument.substr(0, 2);
    const OptionRow* row = FindLetter(rows_, argument[1]);
    if (row == nullptr) FailUnknown(rows_, given);
    std::optional<std::string> value;
    if (argument.size() > 2) value = argument.substr(2);
    Add(*row, given, std::move(value));
  }

  void Add(const OptionRow& row, const std::string& given, std::optional<std::string> value) {
    const std::string label(row.value);
    if (row.value.empty()) {
      if (value) FailUse(given, "takes no value, but got \"" + *value + "\"", "leave it out");
    } else if (!value) {
      if (next_ == arguments_.size()) FailUse(given, "needs a value", "give " + label);
      value = arguments_[next_++];
    }
    if (!row.many && parsed_.Has(row.name)) FailUse(given, "given twice", "give it once");
    parsed_.options.push_back({&row, value.value_or("")});
  }

  std::span<const OptionRow> rows_;
  std::span<const std::string> arguments_;
  std::size_t next_ = 0;
  ParsedArguments parsed_;
};

}  // namespace

bool ParsedArguments::Has(std::string_view name) const {
  return Value(name) != nullptr;
}

const std::string* ParsedArguments::Value(std::string_view name) const {
  for (const GivenOption& option : options) {
    if (option.row->name == name) return &option.value;
  }
  return nullptr;
}

ParsedArguments ParseArguments(std::span<const OptionRow> rows,
                               std::span<const std::string> arguments) {
  return Parser(rows, arguments).Run();
}

std::string WrapText(std::string_view text, std::size_t indent, std::size_t columns) {
  std::string wrapped;
  std::size_t column = indent;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(' '), text.size());
    if (column > indent && column + 1 + length > columns) {
      wrapped += "\n" + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      wrapped += ' ';
      ++column;
    }
    wrapped += text.substr(0, length);
    column += length;
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return wrapped;
}

std::string OptionsHelp(std::span<const OptionRow> rows) {
  constexpr std::size_t kHelpColumn = 30;
  constexpr std::size_t kColumns = 90;
  std::string help;
  for (const OptionRow& row : rows) {
    std::string line = "  ";
    line += row.letter != 0 ? std::string("-") + row.letter + ", " : "    ";
    line += "--" + std::string(row.name);
    if (!row.value.empty()) line += " " + std::string(row.value);
    if (line.size() + 1 > kHelpColumn) {
      line += "\n" + std::string(kHelpColumn, ' ');
    } else {
      line.resize(kHelpColumn, ' ');
    }
    help += line + WrapText(row.help, kHelpColumn, kColumns) + "\n";
  }
  return help;
}

}  // namespace tarnwick
