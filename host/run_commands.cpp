#include "host/gui_growth.h"
#include "host/scenario_run.h"
#include "settings/settings_access.h"
#include "settings/settings_text.h"
#include "support/flat_json.h"

namespace tarnwick::testhost {
namespace {

// The settings of a recorded picture. What only a step can carry goes into one.
void SettingsFromFile(ScenarioRun& run, const std::string& path) {
  EffectSettings block;
  SettingsSession session;
  for (const auto& [name, values] : testing::ReadFlatJson(path)) {
    const SettingField* const field = FindSetting(name);
    if (field == nullptr ||
        SetSettingFromText(*field, values.at(0), block, session) != SettingError::kNone) {
      throw ScenarioError(path + ": cannot set " + name);
    }
    if (!field->inSession) {
      run.settings.emplace_back(name, FieldText(&block, name));
    } else if (field->key != 0) {
      DescriptorItem item{field->key, kTypeInteger};
      item.integer = static_cast<std::int32_t>(SettingNumber(*field, block, session));
      run.sessionStep.Put(item);
    }
  }
}

// settings FIELD VALUE [FIELD VALUE ...] | settings of CASE
// Written into the module's block after its next parameters selector.
void Settings(ScenarioRun& run, Words& words) {
  if (words.Accept("of")) {
    return SettingsFromFile(run,
                            run.DataPath("golden/render/" + words.Next("case") + "/settings.json"));
  }
  do {
    const std::string field = words.Next("setting");
    run.settings.emplace_back(field, words.Next("value"));
  } while (!words.IsEmpty());
}

// run: chosen from the menu. run dialog-off: without the parameters selector.
void Run(ScenarioRun& run, Words& words) {
  RunRequest request;
  request.asksParameters = !words.Accept("dialog-off");
  request.playInfo =
      request.asksParameters ? host::plugInDialogDisplay : host::plugInDialogDontDisplay;
  run.Invoke(request);
}

// repeat last: the filter again, as it was.
void Repeat(ScenarioRun& run, Words& words) {
  words.Demand("last");
  run.Invoke({});
}

void OpenOften(ScenarioRun& run, int times) {
  for (int i = 0; i < times; ++i) {
    RunRequest request;
    request.asksParameters = true;
    request.playInfo = host::plugInDialogDisplay;
    run.Invoke(request);
    run.errorIsOpen = false;
    run.Host().handles.DropLeft();
    if (run.lastError != host::userCanceledErr) throw ScenarioError("the dialog was not cancelled");
  }
}

// open NUMBER dialogs: one after the other, each cancelled after ten refreshes. They
// leave no graphics object and no window behind, and less than a kilobyte each.
void OpenDialogs(ScenarioRun& run, Words& words) {
  const int times = words.NextInt("number");
  words.Demand("dialogs");
  run.LoadModule();
  if (!run.Host().module->AnswerOwnDialog(ModuleEntry::OwnDialog::kCancelled)) {
    run.isSkipped = true;
    return;
  }
  // What the system keeps from the first ones is no growth.
  constexpr int kWarmUp = 20;
  OpenOften(run, kWarmUp);
  const GuiRoom before = MeasureGuiRoom();
  OpenOften(run, times);
  const GuiRoom after = MeasureGuiRoom();
  const int graphics = before.graphics - after.graphics;
  const int windows = before.windows - after.windows;
  const long long bytes = after.bytes - before.bytes;
  if (graphics > 0 || windows > 0 || bytes > 1024LL * times) {
    throw ScenarioError(std::to_string(times) + " openings leave " + std::to_string(graphics) +
                        " graphics objects, " + std::to_string(windows) + " windows and " +
                        std::to_string(bytes) + " bytes");
  }
}

// record NAME: what the last run has left becomes a step.
void Record(ScenarioRun& run, Words& words) {
  if (!run.Host().hasRecorded) throw ScenarioError("nothing was recorded");
  run.steps[words.Next("name")] = run.Host().recorded;
}

// replay NAME [dialog]
void Replay(ScenarioRun& run, Words& words) {
  const std::string name = words.Next("step");
  const auto step = run.steps.find(name);
  if (step == run.steps.end()) throw ScenarioError("there is no step " + name);
  RunRequest request;
  request.step = &step->second;
  if (words.Accept("dialog")) request.playInfo = host::plugInDialogDisplay;
  run.Invoke(request);
}

// call NUMBER [with SETTING VALUE]: one selector, out of its order.
void Call(ScenarioRun& run, Words& words) {
  const int selector = words.NextInt("selector");
  run.LoadModule();
  run.lastError = CallSelector(run.Host(), static_cast<std::int16_t>(selector));
  run.errorIsOpen = run.lastError != 0;
}

void About(ScenarioRun& run, Words&) {
  run.LoadModule();
  run.lastError = CallAbout(run.Host());
  run.errorIsOpen = run.lastError != 0;
}

}  // namespace

const CommandTable& RunCommands() {
  static const CommandTable table = {
      {"settings", Settings}, {"run", Run},   {"repeat", Repeat}, {"record", Record},
      {"replay", Replay},     {"call", Call}, {"about", About},   {"open", OpenDialogs},
  };
  return table;
}

}  // namespace tarnwick::testhost
