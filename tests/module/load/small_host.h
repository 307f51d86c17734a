#pragma once
#include <cstdint>
#include <vector>

#include "host_interface/filter_record.h"

namespace tarnwick {

using EntryPoint = void(std::int16_t, void*, std::intptr_t*, std::int16_t*);

// Takes a picture of 96 x 64 RGB samples through one whole run, without the
// dialog and with no texture in any group, unless one is given to the wash. Only
// blocks, rectangles and pixels are offered to the module. One at a time.
class SmallHost {
 public:
  SmallHost();
  ~SmallHost();
  SmallHost(const SmallHost&) = delete;
  SmallHost& operator=(const SmallHost&) = delete;

  // A file of the module's data folder, to stain the picture by.
  void StainBy(const char* texture) { washTexture_ = texture; }

  // The first error of a selector; 0 if there was none.
  [[nodiscard]] std::int16_t Run(EntryPoint* entryPoint);

  // Rows of samples, from after the run.
  [[nodiscard]] const std::vector<std::uint8_t>& Result() const { return output_; }
  [[nodiscard]] const std::vector<std::uint8_t>& Original() const { return input_; }

 private:
  void ChooseTextures();

  const char* washTexture_ = nullptr;
  std::vector<std::uint8_t> input_;
  std::vector<std::uint8_t> output_;
  host::HandleProcs handles_{};
  host::FilterRecord record_{};
  std::intptr_t slot_ = 0;
};

}  // namespace tarnwick
