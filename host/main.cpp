// tarnwick-host: runs scenarios against the filter.
//
//   tarnwick-host [--data FOLDER] [--lists FOLDER] [--module FILE] [--keep FOLDER] FILE...
//
// --keep: where the one scenario's module and its files lie, and stay.
// Exit code 0: all of them show what they say; 1: not; 2: wrong usage.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "host/gui_growth.h"
#include "host/scenario_run.h"

namespace {

using namespace tarnwick::testhost;  // NOLINT(google-build-using-namespace): its own program

// True when the scenario shows what it says.
bool RunOne(const Scenario& scenario, const ScenarioPaths& paths, const std::string& file) {
  try {
    ScenarioRun run(paths);
    run.Run(scenario);
    if (run.isSkipped) std::printf("left out: %s: %s\n", file.c_str(), scenario.title.c_str());
    return true;
  } catch (const std::exception& error) {
    std::printf("%s: \"%s\", %s\n", file.c_str(), scenario.title.c_str(), error.what());
    return false;
  }
}

// The number of scenarios that fail, or -1 for a file that cannot be read.
int RunFile(const std::string& file, const ScenarioPaths& paths, int& count) {
  int failed = 0;
  try {
    for (const Scenario& scenario : ReadScenarios(file, paths.dataFolder)) {
      ++count;
      if (!RunOne(scenario, paths, file)) ++failed;
    }
  } catch (const std::exception& error) {
    std::printf("%s: %s\n", file.c_str(), error.what());
    return -1;
  }
  return failed;
}

}  // namespace

int main(int argc, char** argv) {
  BecomeScreenAware();
  ScenarioPaths paths{"tests/data", "tests/filter", "TarnikStudi.8bf", ""};
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    std::string* const option = word == "--data"     ? &paths.dataFolder
                                : word == "--lists"  ? &paths.listFolder
                                : word == "--module" ? &paths.builtModule
                                : word == "--keep"   ? &paths.keptFolder
                                                     : nullptr;
    if (option == nullptr) {
      files.push_back(word);
    } else if (++i < argc) {
      *option = argv[i];
    }
  }
  if (files.empty()) {
    std::printf(
        "usage: tarnwick-host [--data FOLDER] [--lists FOLDER] [--module FILE] [--keep FOLDER] "
        "FILE...\n");
    return 2;
  }
  int count = 0;
  int failed = 0;
  for (const std::string& file : files) {
    const int inFile = RunFile(file, paths, count);
    failed += inFile < 0 ? 1 : inFile;
  }
  std::printf("%d scenarios, %d failed\n", count, failed);
  return failed == 0 ? 0 : 1;
}
