// The filter as a file that is loaded, as hosts do it.
#include <windows.h>

#include <filesystem>
#include <stdexcept>

#include "host/box_watcher_win.h"
#include "host/dialog_bypass_win.h"
#include "host/module_entry.h"

namespace tarnwick::testhost {
namespace {

using PluginMainProc = void(__cdecl*)(std::int16_t, void*, std::intptr_t*, std::int16_t*);

// The host's own window, below all dialogs.
HWND MakeOwner() {
  return CreateWindowExA(0, "STATIC", "Test host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300,
                         nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
}

class LoadedModule : public ModuleEntry {
 public:
  LoadedModule(HostLog& log, std::string builtModule)
      : watcher_(log), builtModule_(std::move(builtModule)) {
    BypassOwnDialog(true);
  }
  ~LoadedModule() override {
    Unload();
    if (owner_ != nullptr) DestroyWindow(owner_);
  }
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;

  // The built module is copied to where it is to lie: its data folder is there.
  void Load(const std::string& moduleFile) override {
    if (module_ != nullptr) return;
    namespace fs = std::filesystem;
    fs::copy_file(builtModule_, moduleFile, fs::copy_options::overwrite_existing);
    module_ = LoadLibraryA(fs::path(moduleFile).make_preferred().string().c_str());
    if (module_ == nullptr) {
      throw std::runtime_error("the module cannot be loaded: error " +
                               std::to_string(GetLastError()));
    }
    WatchDialogCalls(module_);
    main_ = reinterpret_cast<PluginMainProc>(
        reinterpret_cast<void*>(GetProcAddress(module_, "PluginMain")));
    if (main_ == nullptr) throw std::runtime_error("the module has no PluginMain");
  }
  void Unload() override {
    if (module_ != nullptr) FreeLibrary(module_);
    module_ = nullptr;
    main_ = nullptr;
  }
  void Call(std::int16_t selector, void* record, std::intptr_t* data,
            std::int16_t* result) override {
    main_(selector, record, data, result);
  }
  [[nodiscard]] void* Handle() const override { return module_; }
  [[nodiscard]] void* OwnerWindow() const override { return owner_; }

  // Dialog and pages are the module's own.
  [[nodiscard]] bool TakesStandInDialog() const override { return false; }
  void SetDialog(StandInDialog*) override {}
  bool AnswerOwnDialog(OwnDialog answer) override {
    BypassOwnDialog(answer == OwnDialog::kLeftOut);
    watcher_.LeaveDialogs(answer == OwnDialog::kByHand);
    if (answer == OwnDialog::kByHand && owner_ == nullptr) owner_ = MakeOwner();
    return true;
  }
  [[nodiscard]] bool CountsPages() const override { return false; }
  [[nodiscard]] std::size_t PagesHeld() const override { return 0; }
  [[nodiscard]] std::size_t PagesKeptForLater() const override { return 0; }
  void DropPagesKept() override {}
  void FailPages(int, bool) override {}

 private:
  BoxWatcher watcher_;
  std::string builtModule_;
  HMODULE module_ = nullptr;
  HWND owner_ = nullptr;
  PluginMainProc main_ = nullptr;
};

}  // namespace

std::unique_ptr<ModuleEntry> MakeModuleEntry(HostLog& log, const std::string& builtModule) {
  return std::make_unique<LoadedModule>(log, builtModule);
}

}  // namespace tarnwick::testhost
