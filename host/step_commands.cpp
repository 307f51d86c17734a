#include <algorithm>

#include "host/key_list.h"
#include "host/scenario_run.h"

namespace tarnwick::testhost {
namespace {

void PutInto(Descriptor& descriptor, Words& words) {
  const std::string key = words.Next("key");
  const std::string type = words.Next("type");
  descriptor.Put(ItemFromText(key, type, words.Next("value")));
}

void RemoveFrom(Descriptor& descriptor, Words& words) {
  const host::OSType key = CodeOf(words.Next("key"));
  if (descriptor.Find(key) == nullptr) throw ScenarioError("there is no such key");
  descriptor.Remove(key);
}

// step NAME is empty | step NAME is OTHER | step NAME put KEY TYPE VALUE |
// step NAME remove KEY | step NAME reverse
void StepCommand(ScenarioRun& run, Words& words) {
  const std::string name = words.Next("step");
  if (words.Accept("is")) {
    const std::string other = words.Next("step");
    run.steps[name] = other == "empty" ? Descriptor{} : run.steps.at(other);
    return;
  }
  Descriptor& step = run.steps.at(name);
  const std::string action = words.Next("action");
  if (action == "put") {
    PutInto(step, words);
  } else if (action == "remove") {
    RemoveFrom(step, words);
  } else if (action == "reverse") {
    std::reverse(step.items.begin(), step.items.end());
  } else {
    throw ScenarioError("a step cannot " + action);
  }
}

// registry put KEY TYPE VALUE | registry remove KEY: in the module's entry.
void Registry(ScenarioRun& run, Words& words) {
  Descriptor& entry = run.Host().registry[kRegistryKey];
  if (words.Accept("put")) return PutInto(entry, words);
  words.Demand("remove");
  RemoveFrom(entry, words);
}

}  // namespace

const CommandTable& StepCommands() {
  static const CommandTable table = {
      {"step", StepCommand},
      {"registry", Registry},
      {"distinct",
       [](ScenarioRun& run, Words& words) {
         // distinct settings: every field of the list gets a value of its own.
         words.Demand("settings");
         for (const ListedKey& key : ReadKeyList(run.ListPath("keys.txt"))) {
           if (IsInBlock(key)) run.settings.emplace_back(key.field, DistinctText(key));
         }
       }},
  };
  return table;
}

}  // namespace tarnwick::testhost
