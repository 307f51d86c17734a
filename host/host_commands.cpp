#include <filesystem>
#include <fstream>

#include "host/scenario_run.h"
#include "textures/wash_file_writer.h"

namespace tarnwick::testhost {
namespace {

namespace fs = std::filesystem;

// Short names of suites.
std::string SuiteName(const std::string& word) {
  static const std::map<std::string, std::string> kNames = {
      {"descriptors", host::kPSActionDescriptorSuite},
      {"references", host::kPSActionReferenceSuite},
      {"action-control", host::kPSBasicActionControlSuite},
      {"registry", host::kPSDescriptorRegistrySuite},
      {"channel-ports", host::kPSChannelPortsSuite},
      {"color-space", host::kPSColorSpaceSuite},
      {"access", host::kSPAccessSuite},
  };
  const auto found = kNames.find(word);
  if (found == kNames.end()) throw ScenarioError("there is no suite " + word);
  return found->second;
}

std::pair<std::string, int> NextSuite(Words& words) {
  words.Demand("suite");
  const std::string name = SuiteName(words.Next("suite"));
  return {name, words.NextInt("version")};
}

// host minimal | host full
void SetHost(ScenarioRun& run, Words& words) {
  const std::string kind = words.Next("kind of host");
  if (kind == "minimal") {
    run.Host().options = MinimalOptions();
  } else if (kind == "full") {
    run.Host().options = HostOptions{};
  } else {
    throw ScenarioError("a host is minimal or full");
  }
}

void Option(ScenarioRun& run, Words& words) {
  const std::string name = words.Next("option");
  SetOption(run.Host().options, name, words.Next("value"));
}

void Refuse(ScenarioRun& run, Words& words) {
  run.Host().options.refusedSuites.insert(NextSuite(words));
}

// empty suite NAME VERSION: it is there, and none of its procedures is.
void Empty(ScenarioRun& run, Words& words) {
  run.Host().options.emptySuites.insert(NextSuite(words));
}

void Allow(ScenarioRun& run, Words& words) {
  run.Host().options.refusedSuites.erase(NextSuite(words));
}

std::int16_t NextError(Words& words) {
  return static_cast<std::int16_t>(words.NextInt("error"));
}

void FailPages(ScenarioRun& run, Words& words) {
  const int nth = words.NextInt("number of the request");
  const bool onwards = words.Accept("onwards");
  if (!run.Host().module->CountsPages()) {
    run.isSkipped = true;
    return;
  }
  run.Host().module->FailPages(nth, onwards);
}

void Fail(ScenarioRun& run, Words& words) {
  TestHost& host = run.Host();
  HostFailures& failures = host.failures;
  const std::string what = words.Next("thing to fail");
  if (what == "advance") {
    failures.advance = NextError(words);
  } else if (what == "new-handle") {
    host.handles.FailNew(words.NextInt("number of the request"));
  } else if (what == "lock") {
    host.handles.FailLock(words.NextInt("number of the request"));
  } else if (what == "pages") {
    FailPages(run, words);
  } else if (what == "read-key") {
    failures.readKey = words.NextInt("number of the key");
    failures.readKeyError = NextError(words);
  } else if (what == "open-read") {
    failures.openRead = true;
  } else if (what == "close-read") {
    failures.closeRead = NextError(words);
  } else if (what == "open-write") {
    failures.openWrite = true;
  } else if (what == "put") {
    failures.putKey = CodeOf(words.Next("key"));
    failures.putKeyError = NextError(words);
  } else if (what == "layer") {
    failures.unreadableLayer = words.Next("name of the layer");
  } else if (what == "make-reference") {
    failures.makeReference = true;
  } else if (what == "make-descriptor") {
    failures.makeDescriptor = true;
  } else {
    throw ScenarioError(what + " cannot fail");
  }
}

// module named X: the file name that the module lies under when it is loaded next.
void Module(ScenarioRun& run, Words& words) {
  words.Demand("named");
  run.Host().module->Unload();
  run.moduleName = words.Next("file name");
}

// file NAME "line": beside the module. A vertical bar stands for a line's end.
void File(ScenarioRun& run, Words& words) {
  const std::string path = run.OutPath(words.Next("file name"));
  std::string text = words.Next("text");
  for (char& c : text) {
    if (c == '|') c = '\n';
  }
  std::ofstream(path, std::ios::binary) << text;
}

// texture NAME WxH: a grey ramp in the data folder.
void Texture(ScenarioRun& run, Words& words) {
  const std::string path = run.OutPath("Tarnwick Studio/" + words.Next("file name"));
  WashFileHeader header;
  const std::string size = words.Next("size");
  header.width = std::stoi(size);
  header.height = std::stoi(size.substr(size.find('x') + 1));
  std::vector<std::uint8_t> samples(static_cast<std::size_t>(header.width * header.height));
  for (std::size_t i = 0; i < samples.size(); ++i) samples[i] = static_cast<std::uint8_t>(i * 7);
  if (WriteWashFile(path, header, samples) != WashWriteOutcome::kDone) {
    throw ScenarioError(path + " cannot be written");
  }
}

// remove NAME: a file or a folder beside the module.
void Remove(ScenarioRun& run, Words& words) {
  if (fs::remove_all(run.OutPath(words.Next("file name"))) == 0) {
    throw ScenarioError("there is no such file");
  }
}

// forget registry | parameters | data
void Forget(ScenarioRun& run, Words& words) {
  TestHost& host = run.Host();
  const std::string what = words.Next("thing to forget");
  if (what == "registry") {
    host.registry.clear();
  } else if (what == "parameters") {
    if (host.parameters != nullptr) host.handles.Dispose(host.parameters);
    host.parameters = nullptr;
  } else if (what == "data") {
    if (host.dataSlot != 0) host.handles.Dispose(reinterpret_cast<host::Handle>(host.dataSlot));
    host.dataSlot = 0;
  } else {
    throw ScenarioError(what + " cannot be forgotten");
  }
}

// reload module: unloaded and loaded again; the host and its process stay.
void Reload(ScenarioRun& run, Words& words) {
  words.Demand("module");
  run.Host().module->Unload();
}

void Restart(ScenarioRun& run, Words& words) {
  words.Demand("host");
  run.RestartHost();
}

// dialog ok | cancel [FIELD VALUE ...]; dialog none: of the one that stands in.
// dialog by-hand: the module's own, which waits for its user.
void Dialog(ScenarioRun& run, Words& words) {
  if (words.Accept("by-hand")) {
    run.dialogIsByHand = run.Host().module->AnswerOwnDialog(ModuleEntry::OwnDialog::kByHand);
    run.isSkipped = !run.dialogIsByHand;
    return;
  }
  if (!run.Host().module->TakesStandInDialog()) {
    run.isSkipped = true;
    return;
  }
  const std::string end = words.Next("end of the dialog");
  if (end != "ok" && end != "cancel" && end != "none") {
    throw ScenarioError("a dialog ends with ok or cancel");
  }
  run.hasDialog = end != "none";
  run.dialogAccepts = end == "ok";
  run.dialogSettings.clear();
  while (!words.IsEmpty()) {
    const std::string field = words.Next("setting");
    run.dialogSettings.emplace_back(field, words.Next("value"));
  }
  run.Host().module->SetDialog(run.hasDialog ? &run : nullptr);
}

// view WxH at X Y scale S [to output]: what the stand-in dialog looks at.
void View(ScenarioRun& run, Words& words) {
  const std::string size = words.Next("size");
  run.hasView = true;
  run.view = {};
  run.view.width = std::stoi(size);
  run.view.height = std::stoi(size.substr(size.find('x') + 1));
  words.Demand("at");
  run.view.x = words.NextInt("column");
  run.view.y = words.NextInt("row");
  words.Demand("scale");
  run.view.scale = std::stof(words.Next("scale"));
  run.view.toOutput = words.Accept("to");
  if (run.view.toOutput) words.Demand("output");
}

// picker chooses RED GREEN BLUE | picker cancels | picker fails: what comes of the
// colour pickers that the module opens, one after the other; later ones are cancelled.
void Picker(ScenarioRun& run, Words& words) {
  PickerAnswer answer;
  if (words.Accept("chooses")) {
    answer.error = host::noErr;
    for (std::size_t i = 0; i < 3; ++i) answer.color[i] = words.NextInt("colour");
  } else if (words.Accept("fails")) {
    answer.error = host::paramErr;
  } else {
    words.Demand("cancels");
  }
  run.Host().pickerAnswers.push_back(answer);
}

void Ignore(ScenarioRun& run, Words& words) {
  words.Demand("boxes");
  run.ignoresBoxes = true;
}

}  // namespace

const CommandTable& HostCommands() {
  static const CommandTable table = {
      {"host", SetHost},    {"option", Option},   {"refuse", Refuse}, {"allow", Allow},
      {"empty", Empty},     {"fail", Fail},       {"module", Module}, {"file", File},
      {"remove", Remove},   {"texture", Texture}, {"forget", Forget}, {"reload", Reload},
      {"restart", Restart}, {"dialog", Dialog},   {"ignore", Ignore}, {"view", View},
      {"picker", Picker},
  };
  return table;
}

}  // namespace tarnwick::testhost
