#include "host/scenario_run.h"

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "settings/effect_settings.h"

namespace tarnwick::testhost {
namespace {

namespace fs = std::filesystem;

const Command* FindCommand(const std::string& word) {
  for (const CommandTable* table :
       {&HostCommands(), &DocumentCommands(), &RunCommands(), &StepCommands()}) {
    if (const auto found = table->find(word); found != table->end()) return &found->second;
  }
  return nullptr;
}

const Command* FindExpectation(const std::string& word) {
  for (const CommandTable* table :
       {&Expectations(), &PixelExpectations(), &KeyExpectations(), &ViewExpectations()}) {
    if (const auto found = table->find(word); found != table->end()) return &found->second;
  }
  return nullptr;
}

// The registry as one descriptor of descriptors' bytes.
void SaveRegistry(const std::map<std::string, Descriptor>& registry, const std::string& path) {
  std::ofstream out(path, std::ios::binary);
  for (const auto& [key, descriptor] : registry) {
    const std::vector<char> bytes = BytesOf(descriptor);
    out << key << '\n' << bytes.size() << '\n';
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
}

std::map<std::string, Descriptor> LoadRegistry(const std::string& path) {
  std::map<std::string, Descriptor> registry;
  std::ifstream in(path, std::ios::binary);
  std::string key;
  std::string size;
  while (std::getline(in, key) && std::getline(in, size)) {
    std::vector<char> bytes(std::stoul(size));
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    registry[key] = DescriptorFrom(bytes);
  }
  return registry;
}

}  // namespace

ScenarioRun::ScenarioRun(const ScenarioPaths& paths) : paths_(paths) {
  fs::copy(DataPath("golden/textures"), OutPath("Tarnwick Studio"), fs::copy_options::recursive);
  MakeHost();
}

ScenarioRun::~ScenarioRun() {
  EndHost();
}

void ScenarioRun::MakeHost() {
  host_ = std::make_unique<TestHost>();
  SetTheHost(host_.get());
  host_->module = MakeModuleEntry(host_->log, paths_.builtModule);
}

void ScenarioRun::EndHost() {
  if (host_ == nullptr) return;
  host_->module->FailPages(0, false);
  host_->module->SetDialog(nullptr);
  host_->module->Unload();
  host_->module->DropPagesKept();
  host_.reset();
  SetTheHost(nullptr);
}

void ScenarioRun::LoadModule() {
  host_->module->Load(OutPath(moduleName));
  if (hasDialog) host_->module->SetDialog(this);
  if (dialogIsByHand) host_->module->AnswerOwnDialog(ModuleEntry::OwnDialog::kByHand);
}

void ScenarioRun::RestartHost() {
  CheckEnd();
  const HostOptions options = host_->options;
  const Document document = host_->document;
  SaveRegistry(host_->registry, RegistryFile());
  EndHost();
  MakeHost();
  host_->options = options;
  host_->document = document;
  host_->registry = LoadRegistry(RegistryFile());
}

void ScenarioRun::ApplySettings(const std::vector<std::pair<std::string, std::string>>& values) {
  if (values.empty()) return;
  if (host_->parameters == nullptr) throw ScenarioError("the module has no settings yet");
  std::vector<char>& contents = host_->handles.Contents(host_->parameters);
  EffectSettings block;
  if (contents.size() != sizeof block) throw ScenarioError("the settings have another size");
  std::memcpy(static_cast<void*>(&block), contents.data(), sizeof block);
  for (const auto& [name, value] : values) StoreField(&block, name, value);
  std::memcpy(contents.data(), &block, sizeof block);
}

void ScenarioRun::Invoke(RunRequest request) {
  CheckNoError();
  LoadModule();
  if (!sessionStep.items.empty() && request.step == nullptr) {
    request.step = &sessionStep;
    request.playInfo = host::plugInDialogDisplay;
  }
  request.afterParameters = [this](TestHost&) { ApplySettings(std::exchange(settings, {})); };
  lastError = RunFilter(*host_, request);
  errorIsOpen = lastError != 0;
  sessionStep = {};
  // The run has not come to them: they are not for another one.
  settings.clear();
}

void ScenarioRun::CheckNoError() {
  if (errorIsOpen)
    throw ScenarioError("the run before has ended with " + std::to_string(lastError));
}

bool ScenarioRun::Show(void* block) {
  ++host_->log.dialogsShown;
  for (const auto& [name, value] : dialogSettings) StoreField(block, name, value);
  return dialogAccepts;
}

void ScenarioRun::ShowAbout() {
  ++host_->log.aboutsShown;
}

void ScenarioRun::Step(const ScenarioLine& line) {
  Words words(line.text);
  const bool isExpectation = words.Accept("expect");
  const std::string word = words.Next("command");
  const Command* const command = isExpectation ? FindExpectation(word) : FindCommand(word);
  if (command == nullptr) throw ScenarioError("nobody knows how to " + line.text);
  if (!isExpectation) CheckNoError();
  (*command)(*this, words);
  if (!isSkipped) words.End();
}

void ScenarioRun::CheckEnd() {
  CheckNoError();
  HostLog& log = host_->log;
  if (!ignoresBoxes && !log.boxes.empty()) {
    throw ScenarioError("a box that nobody has expected: " + log.boxes.front());
  }
  if (!log.faults.empty()) throw ScenarioError(log.faults.front());
  // The two blocks that are kept for the module, and nothing else.
  std::size_t kept = host_->parameters != nullptr ? 1 : 0;
  if (host_->dataSlot != 0) ++kept;
  if (host_->handles.Live() != kept) {
    throw ScenarioError(std::to_string(host_->handles.Live()) + " handles are left, " +
                        std::to_string(kept) + " of them on purpose");
  }
  if (host_->module->CountsPages() && host_->module->PagesHeld() != 0) {
    throw ScenarioError(std::to_string(host_->module->PagesHeld()) + " blocks of pages are left");
  }
}

void ScenarioRun::Run(const Scenario& scenario) {
  int number = 0;
  try {
    for (const ScenarioLine& line : scenario.lines) {
      number = line.number;
      Step(line);
      if (isSkipped) return;
    }
    CheckEnd();
  } catch (const std::exception& error) {
    throw ScenarioError("line " + std::to_string(number) + ": " + error.what());
  }
}

}  // namespace tarnwick::testhost
