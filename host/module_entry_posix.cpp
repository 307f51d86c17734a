// The filter linked into this program.
#include <algorithm>
#include <stdexcept>

#include "base/page_memory.h"
#include "filter/filter_globals.h"
#include "filter/filter_windows.h"
#include "filter/plugin_main.h"
#include "filter/saved_blocks.h"
#include "host/counted_pages.h"
#include "host/document_view.h"
#include "host/linked_module.h"
#include "host/module_entry.h"

namespace tarnwick::testhost {
namespace {

HostLog*& CurrentLog() {
  static HostLog* log = nullptr;
  return log;
}

bool IsKeptForLater(void* pages) {
  return FindBlock(reinterpret_cast<std::uintptr_t>(pages)).pages != nullptr;
}

class LinkedModule : public ModuleEntry, FilterWindows {
 public:
  explicit LinkedModule(HostLog& log) {
    CurrentLog() = &log;
    // Its table of kept blocks is made once and stays.
    (void)FindBlock(1);
    atStart_ = LivePages();
  }
  ~LinkedModule() override { Unload(); }
  LinkedModule(const LinkedModule&) = delete;
  LinkedModule& operator=(const LinkedModule&) = delete;

  void Load(const std::string& moduleFile) override { LinkedModuleFile() = moduleFile; }
  void Unload() override {
    Globals() = FilterGlobals{};
    SetFilterWindows(dialog_ != nullptr ? this : nullptr);
  }
  void Call(std::int16_t selector, void* record, std::intptr_t* data,
            std::int16_t* result) override {
    RunSelector(selector, record, data, result);
  }
  [[nodiscard]] void* Handle() const override { return nullptr; }

  [[nodiscard]] bool TakesStandInDialog() const override { return true; }
  void SetDialog(StandInDialog* dialog) override {
    dialog_ = dialog;
    SetFilterWindows(dialog_ != nullptr ? this : nullptr);
  }

  bool AnswerOwnDialog(OwnDialog) override { return false; }

  [[nodiscard]] bool CountsPages() const override { return true; }
  [[nodiscard]] std::size_t PagesHeld() const override {
    // A wrong way of giving back counts as not given back.
    return Count([](void* pages) { return !IsKeptForLater(pages); }) + TakeWrongFrees();
  }
  [[nodiscard]] std::size_t PagesKeptForLater() const override { return Count(IsKeptForLater); }
  void DropPagesKept() override {
    for (void* const pages : LivePages()) {
      const SavedBlock block = TakeBlock(reinterpret_cast<std::uintptr_t>(pages));
      FreePages(block.pages, block.bytes);
    }
  }
  void FailPages(int nth, bool onwards) override { FailPageRequest(nth, onwards); }

 private:
  bool ShowMainDialog(FilterGlobals& g) override {
    g.DialogActive = 1;
    if (DocumentView* const view = dialog_->View()) LookAtDocument(g, *view);
    const bool accepted = dialog_->Show(g.gParams);
    g.DialogActive = 0;
    return accepted;
  }
  void ShowAboutBox(FilterGlobals&) override { dialog_->ShowAbout(); }

  template <typename Match>
  [[nodiscard]] std::size_t Count(const Match& match) const {
    const std::vector<void*> live = LivePages();
    return static_cast<std::size_t>(std::count_if(live.begin(), live.end(), [&](void* pages) {
      return std::find(atStart_.begin(), atStart_.end(), pages) == atStart_.end() && match(pages);
    }));
  }

  StandInDialog* dialog_ = nullptr;
  std::vector<void*> atStart_;
};

}  // namespace

HostLog& LinkedModuleLog() {
  if (CurrentLog() == nullptr) throw std::runtime_error("no module is in use");
  return *CurrentLog();
}

std::string& LinkedModuleFile() {
  static std::string file;
  return file;
}

std::unique_ptr<ModuleEntry> MakeModuleEntry(HostLog& log, const std::string&) {
  return std::make_unique<LinkedModule>(log);
}

}  // namespace tarnwick::testhost
