#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick::testhost {

struct HostLog;

// A picture of planes one after the other; empty when there is none.
struct PlanarPicture {
  int width = 0, height = 0, planes = 0;
  std::vector<std::uint8_t> samples;
};

// What a dialog asks of the document when it opens, and what it gets to see.
struct DocumentView {
  float scale = 1;  // document pixels for a shown one
  int x = 0, y = 0, width = 0, height = 0;
  bool toOutput = false;

  bool hasRead = false;    // the outcome of the reading of layers,
  std::int16_t error = 0;  // and the error that it left
  PlanarPicture documentCopy, layersBelow;
  PlanarPicture sampled;  // the copy, in the view's window
  std::int16_t fetchError = 0;
  PlanarPicture selectionPlane, documentPixels;
  bool knowsModule = false;  // the handle of the module was found
};

// The way into the filter module: linked in, or a file that is loaded. What only
// one of the two can do is asked for first.
class ModuleEntry {
 public:
  virtual ~ModuleEntry() = default;

  // Where the module lies, its name included; its data folder is found from it.
  // Load does nothing when it is loaded. Throws std::runtime_error.
  virtual void Load(const std::string& moduleFile) = 0;
  // Forgets all of the module's own variables.
  virtual void Unload() = 0;
  virtual void Call(std::int16_t selector, void* record, std::intptr_t* data,
                    std::int16_t* result) = 0;
  // The platform's handle of the loaded module; null when it is linked in.
  [[nodiscard]] virtual void* Handle() const = 0;

  // The platform's handle of the window that dialogs of the module belong to, or null.
  [[nodiscard]] virtual void* OwnerWindow() const { return nullptr; }

  // A dialog in the place of the module's own: each time it is to be shown, `show`
  // is called with the settings and answers for the user. Null shows none.
  [[nodiscard]] virtual bool TakesStandInDialog() const = 0;
  class StandInDialog {
   public:
    virtual ~StandInDialog() = default;
    virtual bool Show(void* settings) = 0;
    virtual void ShowAbout() = 0;
    // Null: it does not look at the document.
    virtual DocumentView* View() = 0;
  };
  virtual void SetDialog(StandInDialog* dialog) = 0;

  // What becomes of the module's own dialog: at first it is left out, as if OK were
  // pressed at once. False: it has none.
  enum class OwnDialog : std::uint8_t { kLeftOut, kCancelled, kByHand };
  virtual bool AnswerOwnDialog(OwnDialog answer) = 0;

  // Blocks of pages that the module has taken and not given back, apart from
  // those that it keeps on purpose for a later pass.
  [[nodiscard]] virtual bool CountsPages() const = 0;
  [[nodiscard]] virtual std::size_t PagesHeld() const = 0;
  [[nodiscard]] virtual std::size_t PagesKeptForLater() const = 0;
  virtual void DropPagesKept() = 0;
  // The `nth` request for pages from now on fails, counting from 1, and all later
  // ones too if `onwards`. 0: none.
  virtual void FailPages(int nth, bool onwards) = 0;
};

// `log` takes the module's message boxes; it must outlive the entry.
[[nodiscard]] std::unique_ptr<ModuleEntry> MakeModuleEntry(HostLog& log,
                                                           const std::string& builtModule);

}  // namespace tarnwick::testhost
