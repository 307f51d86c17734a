#include <algorithm>

#include "host/key_list.h"
#include "host/scenario_run.h"
#include "settings/effect_settings.h"

#include <cstring>

namespace tarnwick::testhost {
namespace {

std::vector<ListedKey> Listed(ScenarioRun& run) {
  return ReadKeyList(run.ListPath("keys.txt"));
}

// Types by their codes; the list's words, turned round.
std::string TypeWord(host::OSType type) {
  switch (type) {
    case kTypeBoolean:
      return "boolean";
    case kTypeInteger:
      return "integer";
    case kTypeFloat:
      return "float";
    case kTypeText:
      return "string";
    case kTypeUnitFloat:
      return "percent";
    default:
      return "enumerated";
  }
}

// The descriptor holds the distinct value of every listed key that goes this way,
// in the list's order, and nothing else.
void CheckDistinct(const Descriptor& descriptor, const std::vector<ListedKey>& keys,
                   bool ListedKey::*way) {
  std::size_t at = 0;
  for (const ListedKey& key : keys) {
    if (!(key.*way)) continue;
    if (at == descriptor.items.size()) throw ScenarioError(key.key + " is missing at the end");
    const DescriptorItem& item = descriptor.items[at++];
    if (CodeText(item.key) != key.key) {
      throw ScenarioError(CodeText(item.key) + " stands where " + key.key + " has to");
    }
    if (TypeWord(item.type) != key.type) throw ScenarioError(key.key + " has another type");
    if (IsInBlock(key) && TextOf(item) != DistinctDescriptorText(key)) {
      throw ScenarioError(key.key + " is " + TextOf(item) + ", not " + DistinctDescriptorText(key));
    }
  }
  if (at != descriptor.items.size()) {
    throw ScenarioError(CodeText(descriptor.items[at].key) + " is one key too many");
  }
}

// expect distinct step NAME | expect distinct registry
void ExpectDistinct(ScenarioRun& run, Words& words) {
  if (words.Accept("step")) {
    return CheckDistinct(run.steps.at(words.Next("step")), Listed(run), &ListedKey::scriptWrite);
  }
  words.Demand("registry");
  CheckDistinct(run.Host().registry.at(kRegistryKey), Listed(run), &ListedKey::registryWrite);
}

// expect carried by script | registry: in the block stand the distinct values of
// the keys that this way brings back, and defaults in all other fields.
void ExpectCarried(ScenarioRun& run, Words& words) {
  words.Demand("by");
  const bool byScript = words.Accept("script");
  if (!byScript) words.Demand("registry");
  TestHost& host = run.Host();
  if (host.parameters == nullptr) throw ScenarioError("there are no settings");
  EffectSettings block;
  std::memcpy(static_cast<void*>(&block), host.handles.Contents(host.parameters).data(),
              sizeof block);
  for (const ListedKey& key : Listed(run)) {
    if (!IsInBlock(key)) continue;
    // Nobody takes the disposition back, whoever asks for it.
    const bool isCarried =
        key.type != "enumerated" &&
        (byScript ? key.scriptWrite && key.scriptRead : key.registryWrite && key.registryRead);
    const std::string wanted = isCarried ? DistinctText(key) : DefaultText(key);
    const std::string found = FieldText(&block, key.field);
    if (found != wanted) throw ScenarioError(key.field + " is " + found + ", not " + wanted);
  }
}

// expect expected-keys: the module has told the host exactly the listed ones.
void ExpectExpectedKeys(ScenarioRun& run, Words&) {
  std::vector<std::string> wanted = ReadLines(run.ListPath("expected_keys.txt"));
  std::vector<std::string> found;
  for (const host::OSType key : run.Host().expectedKeys) found.push_back(CodeText(key));
  std::sort(wanted.begin(), wanted.end());
  std::sort(found.begin(), found.end());
  std::string difference;
  std::vector<std::string> odd;
  std::set_symmetric_difference(wanted.begin(), wanted.end(), found.begin(), found.end(),
                                std::back_inserter(odd));
  for (const std::string& key : odd) difference += ' ' + key;
  if (!odd.empty()) throw ScenarioError("they differ in" + difference);
}

// expect missing-keys KEY ...: of the expected ones, what the step had not.
void ExpectMissingKeys(ScenarioRun& run, Words& words) {
  std::string wanted;
  while (!words.IsEmpty()) wanted += words.Next("key") + ' ';
  std::string found;
  for (const host::OSType key : run.Host().missingKeys) found += CodeText(key) + ' ';
  if (found != wanted) throw ScenarioError("missing were " + found);
}

}  // namespace

const CommandTable& KeyExpectations() {
  static const CommandTable table = {
      {"distinct", ExpectDistinct},
      {"carried", ExpectCarried},
      {"expected-keys", ExpectExpectedKeys},
      {"missing-keys", ExpectMissingKeys},
  };
  return table;
}

}  // namespace tarnwick::testhost
