#pragma once
#include <span>
#include <string>
#include <string_view>

#include "cli_error.h"
#include "console.h"

namespace tarnwick {

// One word of the command line: "age", "presets" ...
struct Command {
  std::string_view name;
  std::string_view summary;
  // `arguments` are those after the name. Faults are thrown as CliError.
  ExitCode (*run)(Console& console, std::span<const std::string> arguments);
};

ExitCode RunAge(Console& console, std::span<const std::string> arguments);
ExitCode RunAuto(Console& console, std::span<const std::string> arguments);
ExitCode RunGallery(Console& console, std::span<const std::string> arguments);
ExitCode RunPresets(Console& console, std::span<const std::string> arguments);
ExitCode RunTextures(Console& console, std::span<const std::string> arguments);
ExitCode RunTexture(Console& console, std::span<const std::string> arguments);
ExitCode RunSettings(Console& console, std::span<const std::string> arguments);

// The command called `name` in `commands`; wrong use if there is none.
// `parent` is what stands before it in a message: "tarnwick presets".
[[nodiscard]] const Command& FindCommand(std::span<const Command> commands,
                                         std::span<const std::string> arguments,
                                         const std::string& parent);

// Names and summaries as lines of help.
[[nodiscard]] std::string CommandsHelp(std::span<const Command> commands);

// A command with commands of its own, called by the first argument; --help lists
// them and the examples.
[[nodiscard]] ExitCode RunGroup(Console& console, std::span<const std::string> arguments,
                                const std::string& parent, std::span<const Command> commands,
                                std::string_view examples);

// Writes to standard output. A full disk or a closed pipe is a failure of the
// command, not something to be passed over.
void Print(std::string_view text);

// The program: the first argument names the command. Never throws.
[[nodiscard]] ExitCode RunTarnwick(std::span<const std::string> arguments);

}  // namespace tarnwick
