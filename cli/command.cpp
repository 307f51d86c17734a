#include "command.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <new>
#include <system_error>
#include <vector>

#include "did_you_mean.h"
#include "unfinished_files.h"

namespace tarnwick {
namespace {

constexpr std::array<Command, 7> kCommands = {{
    {"age", "age photographs", RunAge},
    {"auto", "age a photograph with a look that dice throw", RunAuto},
    {"gallery", "show a photograph in every look of the library, as a web page", RunGallery},
    {"presets", "list, show and check presets", RunPresets},
    {"textures", "list textures and tell what is in one", RunTextures},
    {"texture", "make a texture from a picture, or a picture from a texture", RunTexture},
    {"settings", "list and describe the settings that --set takes", RunSettings},
}};

std::string ProgramHelp() {
  return "tarnwick ages photographs: washes eat and stain them, surfaces give them relief\n"
         "and tone, a background shows where they are eaten away.\n"
         "\n"
         "usage: tarnwick COMMAND ...\n"
         "\n" +
         CommandsHelp(kCommands) +
         "\n"
         "  tarnwick COMMAND --help    tells more, with examples\n"
         "  tarnwick --version         tells the version\n"
         "\n"
         "exit status: 0 done, 1 some input failed, 2 wrong use\n";
}

ExitCode Run(Console& console, std::span<const std::string> arguments) {
  const std::string first = arguments.empty() ? "" : arguments[0];
  if (first == "--help" || first == "-h" || first == "help") {
    Print(ProgramHelp());
    return ExitCode::kDone;
  }
  if (first == "--version") {
    Print("tarnwick " TARNWICK_VERSION "\n");
    return ExitCode::kDone;
  }
  return FindCommand(kCommands, arguments, "tarnwick").run(console, arguments.subspan(1));
}

}  // namespace

const Command& FindCommand(std::span<const Command> commands,
                           std::span<const std::string> arguments, const std::string& parent) {
  if (arguments.empty()) FailUse(parent, "needs a command", "see " + parent + " --help");
  std::vector<std::string> names;
  for (const Command& command : commands) {
    if (command.name == arguments[0]) return command;
    names.emplace_back(command.name);
  }
  FailUse(arguments[0], "no such command of " + parent,
          DidYouMean(arguments[0], names, "see " + parent + " --help"));
}

std::string CommandsHelp(std::span<const Command> commands) {
  constexpr std::size_t kSummaryColumn = 14;
  std::string help;
  for (const Command& command : commands) {
    std::string line = "  " + std::string(command.name);
    line.resize(kSummaryColumn, ' ');
    help += line + std::string(command.summary) + "\n";
  }
  return help;
}

ExitCode RunGroup(Console& console, std::span<const std::string> arguments,
                  const std::string& parent, std::span<const Command> commands,
                  std::string_view examples) {
  if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "-h")) {
    Print("usage: " + parent + " COMMAND ...\n\n" + CommandsHelp(commands) + "\nexamples:\n" +
          std::string(examples));
    return ExitCode::kDone;
  }
  return FindCommand(commands, arguments, parent).run(console, arguments.subspan(1));
}

void Print(std::string_view text) {
  const bool whole = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!whole || std::fflush(stdout) != 0) {
    FailInput("standard output", "cannot be written: " + std::generic_category().message(errno));
  }
}

ExitCode RunTarnwick(std::span<const std::string> arguments) {
  Console console;
  try {
    RemoveUnfinishedOnSignals();
    return Run(console, arguments);
  } catch (const CliError& error) {
    console.Error(error.what());
    return error.Code();
  } catch (const std::bad_alloc&) {
    console.Error("memory: there is not enough of it (close other programs)");
  } catch (const std::exception& error) {
    console.Error(std::string("unexpected fault: ") + error.what());
  }
  return ExitCode::kInputFailed;
}

}  // namespace tarnwick
