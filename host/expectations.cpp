#include <algorithm>
#include <cstring>

#include "host/key_list.h"
#include "host/scenario_run.h"
#include "settings/effect_settings.h"

namespace tarnwick::testhost {
namespace {

void Compare(const std::string& what, const std::string& found, const std::string& wanted) {
  if (found != wanted) throw ScenarioError(what + " is " + found + ", not " + wanted);
}

// expect error NUMBER [or NUMBER ...]: of the last run or call.
void ExpectError(ScenarioRun& run, Words& words) {
  bool isExpected = words.NextInt("error") == run.lastError;
  while (words.Accept("or")) isExpected = words.NextInt("error") == run.lastError || isExpected;
  if (!isExpected) throw ScenarioError("the error is " + std::to_string(run.lastError));
  run.errorIsOpen = false;
}

// expect box TEXT | expect box with TEXT: the first one that has not been expected
// yet; the latter only holds the text.
void ExpectBox(ScenarioRun& run, Words& words) {
  const bool isPart = words.Accept("with");
  const std::string wanted = words.Next("text");
  std::vector<std::string>& boxes = run.Host().log.boxes;
  if (boxes.empty()) throw ScenarioError("there was no box");
  const std::string box = boxes.front();
  boxes.erase(boxes.begin());
  if (isPart ? box.find(wanted) == std::string::npos : box != wanted) {
    throw ScenarioError("the box says: " + box);
  }
}

// expect boxes NUMBER: that nobody has expected yet.
void ExpectBoxes(ScenarioRun& run, Words& words) {
  std::vector<std::string>& boxes = run.Host().log.boxes;
  Compare("the number of boxes", std::to_string(boxes.size()),
          std::to_string(words.NextInt("number")));
  boxes.clear();
}

// expect picker PROMPT RED GREEN BLUE: the first one that has not been expected yet; the
// colour is the one it started with. expect pickers 0: there were no more.
void ExpectPicker(ScenarioRun& run, Words& words) {
  std::string wanted = words.Next("prompt");
  for (int i = 0; i < 3; ++i) wanted += ' ' + std::to_string(words.NextInt("colour"));
  std::vector<std::string>& pickers = run.Host().log.pickers;
  if (pickers.empty()) throw ScenarioError("there was no picker");
  const std::string first = pickers.front();
  pickers.erase(pickers.begin());
  Compare("the picker", first, wanted);
}

// expect setting FIELD VALUE: in the module's block.
void ExpectSetting(ScenarioRun& run, Words& words) {
  TestHost& host = run.Host();
  if (host.parameters == nullptr) throw ScenarioError("there are no settings");
  EffectSettings block;
  const std::vector<char>& contents = host.handles.Contents(host.parameters);
  std::memcpy(static_cast<void*>(&block), contents.data(), sizeof block);
  const std::string field = words.Next("setting");
  Compare(field, FieldText(&block, field), words.Next("value"));
}

// expect query 0 | 1: whether the next start is to show the dialog.
void ExpectQuery(ScenarioRun& run, Words& words) {
  TestHost& host = run.Host();
  const auto handle = reinterpret_cast<host::Handle>(host.dataSlot);
  if (handle == nullptr) throw ScenarioError("the module keeps no data");
  // The flag is the first byte of what the module keeps.
  Compare("the flag", std::to_string(int{host.handles.Contents(handle).at(0)}),
          words.Next("value"));
}

void ExpectItem(const Descriptor& descriptor, Words& words) {
  const std::string key = words.Next("key");
  const std::string wanted = words.Next("value");
  const DescriptorItem* const item = descriptor.Find(CodeOf(key));
  Compare(key, item == nullptr ? "absent" : TextOf(*item), wanted);
}

// expect step NAME KEY VALUE | absent
void ExpectStep(ScenarioRun& run, Words& words) {
  ExpectItem(run.steps.at(words.Next("step")), words);
}

// expect registry KEY VALUE | absent; expect registry empty
void ExpectRegistry(ScenarioRun& run, Words& words) {
  const auto& registry = run.Host().registry;
  const auto entry = registry.find(kRegistryKey);
  if (words.Accept("empty")) {
    if (entry != registry.end()) throw ScenarioError("the registry has an entry");
    return;
  }
  if (entry == registry.end()) throw ScenarioError("the registry has no entry");
  ExpectItem(entry->second, words);
}

void ExpectRecorded(ScenarioRun& run, Words& words) {
  words.Demand("nothing");
  if (run.Host().hasRecorded) throw ScenarioError("something was recorded");
}

// expect selectors N N ...: of the last run.
void ExpectSelectors(ScenarioRun& run, Words& words) {
  std::string wanted;
  while (!words.IsEmpty()) wanted += words.Next("selector") + ' ';
  std::string found;
  for (const std::int16_t selector : run.Host().log.selectors) {
    found += std::to_string(selector) + ' ';
  }
  Compare("the order of selectors", found, wanted);
}

// expect progress to 100: that far it came, and a last report with a total of 0
// has told that it is over.
void ExpectProgress(ScenarioRun& run, Words& words) {
  words.Demand("to");
  const int wanted = words.NextInt("most");
  int most = 0;
  std::string all;
  for (const auto& [done, total] : run.Host().log.progress) {
    if (total == 100) most = std::max(most, done);
    all += ' ' + std::to_string(done) + '/' + std::to_string(total);
  }
  const bool hasEnd = !all.empty() && run.Host().log.progress.back().second == 0;
  if (most != wanted || !hasEnd) throw ScenarioError("it went" + all);
}

// expect NAME NUMBER, of what is only counted.
template <typename Get>
Command Number(const char* name, Get get) {
  return [=](ScenarioRun& run, Words& words) {
    Compare(name, std::to_string(get(run)), std::to_string(words.NextInt("number")));
  };
}

// expect kept-blocks NUMBER: of pages, for a later pass.
void ExpectKeptBlocks(ScenarioRun& run, Words& words) {
  const int wanted = words.NextInt("number");
  if (!run.Host().module->CountsPages()) return;
  Compare("the number of kept blocks", std::to_string(run.Host().module->PagesKeptForLater()),
          std::to_string(wanted));
}

// expect module-abouts NUMBER: boxes of the module's own that told of it; one that is
// linked in has none.
void ExpectModuleAbouts(ScenarioRun& run, Words& words) {
  const int wanted = words.NextInt("number");
  if (run.Host().module->TakesStandInDialog()) return;
  Compare("the number of boxes", std::to_string(run.Host().log.aboutsShown),
          std::to_string(wanted));
}

}  // namespace

const CommandTable& Expectations() {
  static const CommandTable table = {
      {"error", ExpectError},
      {"box", ExpectBox},
      {"picker", ExpectPicker},
      {"boxes", ExpectBoxes},
      {"setting", ExpectSetting},
      {"marker", ExpectSetting},
      {"query", ExpectQuery},
      {"step", ExpectStep},
      {"registry", ExpectRegistry},
      {"recorded", ExpectRecorded},
      {"selectors", ExpectSelectors},
      {"progress", ExpectProgress},
      {"kept-blocks", ExpectKeptBlocks},
      {"module-abouts", ExpectModuleAbouts},
      {"max-space",
       Number("maxSpace", [](ScenarioRun& run) { return run.Host().Record().maxSpace; })},
      {"buffer-space",
       Number("bufferSpace", [](ScenarioRun& run) { return run.Host().Record().bufferSpace; })},
      {"record-info", Number("recordInfo", [](ScenarioRun& run) { return run.Host().recordInfo; })},
      {"advances", Number("advances", [](ScenarioRun& run) { return run.Host().log.advances; })},
      {"pickers",
       Number("the pickers left", [](ScenarioRun& run) { return run.Host().log.pickers.size(); })},
      {"dialogs", Number("dialogs", [](ScenarioRun& run) { return run.Host().log.dialogsShown; })},
      {"abouts", Number("abouts", [](ScenarioRun& run) { return run.Host().log.aboutsShown; })},
      {"handles", Number("handles", [](ScenarioRun& run) { return run.Host().handles.Live(); })},
  };
  return table;
}

}  // namespace tarnwick::testhost
