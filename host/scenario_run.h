#pragma once
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/filter_run.h"
#include "host/scenario_lines.h"
#include "host/test_host.h"
#include "host/words.h"
#include "support/temp_folder.h"

namespace tarnwick::testhost {

struct ScenarioPaths {
  std::string dataFolder;   // what the files of a scenario are named from
  std::string listFolder;   // lists of keys
  std::string builtModule;  // the module's file; not used when it is linked in
  std::string keptFolder;  // where the module and its files lie, and stay; empty: gone with the run
};

// One scenario on a host of its own. The commands stand in tables, by their first
// word; README.md lists them.
class ScenarioRun : public ModuleEntry::StandInDialog {
 public:
  explicit ScenarioRun(const ScenarioPaths& paths);
  ~ScenarioRun() override;
  ScenarioRun(const ScenarioRun&) = delete;
  ScenarioRun& operator=(const ScenarioRun&) = delete;

  // Throws ScenarioError with what went wrong and where.
  void Run(const Scenario& scenario);

  // For the commands.
  [[nodiscard]] TestHost& Host() { return *host_; }
  [[nodiscard]] std::string DataPath(const std::string& name) const {
    return name.front() == '/' ? name : paths_.dataFolder + '/' + name;
  }
  [[nodiscard]] std::string ListPath(const std::string& name) const {
    return paths_.listFolder + '/' + name;
  }
  [[nodiscard]] std::string OutPath(const std::string& name) const {
    return (paths_.keptFolder.empty() ? folder_.Path() : paths_.keptFolder) + '/' + name;
  }
  // Loads the module, from the folder that the scenario has made.
  void LoadModule();
  // Ends the host's process, as far as that can be: what stays is what it keeps
  // in files.
  void RestartHost();
  void Invoke(RunRequest request);
  // An error of the last run that nobody has expected.
  void CheckNoError();
  // Puts a value into the module's block, whose handle is not locked.
  void ApplySettings(const std::vector<std::pair<std::string, std::string>>& settings);

  bool Show(void* settings) override;
  void ShowAbout() override;
  DocumentView* View() override { return hasView ? &view : nullptr; }

  std::string moduleName = "TarnikStudi.8bf";
  std::map<std::string, Descriptor> steps;
  std::map<std::string, std::vector<std::uint8_t>> keptPixels;
  // Waiting for the next run: into the block, and what only a step can carry.
  std::vector<std::pair<std::string, std::string>> settings;
  Descriptor sessionStep;
  // What the stand-in dialog does.
  bool hasDialog = false;
  bool dialogAccepts = true;
  bool hasView = false;
  DocumentView view;
  std::vector<std::pair<std::string, std::string>> dialogSettings;
  bool dialogIsByHand = false;  // the module's own dialog waits for its user
  std::int16_t lastError = 0;
  bool errorIsOpen = false;
  bool ignoresBoxes = false;
  bool isSkipped = false;  // cannot be done with this kind of module

 private:
  void Step(const ScenarioLine& line);
  void CheckEnd();
  void MakeHost();
  void EndHost();
  [[nodiscard]] std::string RegistryFile() const { return OutPath("registry.bin"); }

  ScenarioPaths paths_;
  testing::TempFolder folder_;
  std::unique_ptr<TestHost> host_;
};

using Command = std::function<void(ScenarioRun&, Words&)>;
using CommandTable = std::map<std::string, Command>;

[[nodiscard]] const CommandTable& HostCommands();
[[nodiscard]] const CommandTable& DocumentCommands();
[[nodiscard]] const CommandTable& RunCommands();
[[nodiscard]] const CommandTable& StepCommands();
// After `expect`.
[[nodiscard]] const CommandTable& Expectations();
[[nodiscard]] const CommandTable& PixelExpectations();
[[nodiscard]] const CommandTable& KeyExpectations();
[[nodiscard]] const CommandTable& ViewExpectations();

// A value of the record by the name of its field, and back; the text is the very
// bytes. `settings` is an EffectSettings.
void StoreField(void* settings, const std::string& name, const std::string& value);
[[nodiscard]] std::string FieldText(const void* settings, const std::string& name);

}  // namespace tarnwick::testhost
