// tarnwick-resources PROCESSOR VERSION FILE: writes the resource script of the
// module. Runs on the machine that builds.
#include <cstdio>
#include <exception>
#include <fstream>
#include <string_view>

#include "resources/generator/module_properties.h"
#include "resources/generator/resource_ids.h"
#include "resources/generator/terminology.h"
#include "resources/generator/version_info.h"

namespace tarnwick {
namespace {

int WriteScript(Processor processor, const char* version, const char* file) {
  const std::string id = std::to_string(kDescriptionId);
  std::ofstream out(file, std::ios::binary);
  out << "/* Made by tarnwick-resources. */\n"
         "LANGUAGE 9, 1\n\n"
      << ModuleProperties(processor).Script(id + " PiPL") << '\n'
      << ScriptTerminology().Script(id + " aete") << '\n'
      << VersionInfo(version);
  out.close();
  if (out) return 0;
  std::fprintf(stderr, "tarnwick-resources: %s: cannot be written\n", file);
  return 1;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  using tarnwick::Processor;
  const std::string_view processor = argc == 4 ? argv[1] : "";
  if (processor != "i686" && processor != "x86_64") {
    std::fputs("usage: tarnwick-resources i686|x86_64 VERSION FILE\n", stderr);
    return 2;
  }
  try {
    return tarnwick::WriteScript(processor == "i686" ? Processor::kI686 : Processor::kAmd64,
                                 argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tarnwick-resources: %s\n", error.what());
    return 1;
  }
}
