// A module that breaks the rules, one at a time: the host has to say so, and to
// say nothing of one that keeps them.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "host/filter_run.h"
#include "host/layer_fill.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::FilterRecord;
using Misdeed = std::function<void(FilterRecord&, std::intptr_t& slot)>;

// Asks for everything in its start, gives the picture back darker, and does the
// one thing that it should not.
class BadModule : public ModuleEntry {
 public:
  explicit BadModule(Misdeed misdeed) : misdeed_(std::move(misdeed)) {}
  void Load(const std::string&) override {}
  void Unload() override {}
  void Call(std::int16_t selector, void* address, std::intptr_t* data,
            std::int16_t* result) override {
    if (selector != host::filterSelectorStart) return;
    FilterRecord& record = *static_cast<FilterRecord*>(address);
    record.inRect = record.outRect = record.maskRect = record.filterRect;
    record.inHiPlane = record.outHiPlane = static_cast<std::int16_t>(record.planes - 1);
    *result = record.advanceState();
    const auto* const in = static_cast<const std::uint8_t*>(record.inData);
    auto* const out = static_cast<std::uint8_t*>(record.outData);
    for (int y = 0; y < record.filterRect.bottom; ++y) {
      for (int x = 0; x < record.filterRect.right * record.planes; ++x) {
        out[y * record.outRowBytes + x] =
            static_cast<std::uint8_t>(in[y * record.inRowBytes + x] / 2);
      }
    }
    record.inRect = record.outRect = record.maskRect = {};
    misdeed_(record, *data);
  }
  [[nodiscard]] void* Handle() const override { return nullptr; }
  [[nodiscard]] bool TakesStandInDialog() const override { return false; }
  void SetDialog(StandInDialog*) override {}
  bool AnswerOwnDialog(OwnDialog) override { return false; }
  [[nodiscard]] bool CountsPages() const override { return false; }
  [[nodiscard]] std::size_t PagesHeld() const override { return 0; }
  [[nodiscard]] std::size_t PagesKeptForLater() const override { return 0; }
  void DropPagesKept() override {}
  void FailPages(int, bool) override {}

 private:
  Misdeed misdeed_;
};

constexpr int kWidth = 7, kHeight = 5;

// What the host has to say of a run with this misdeed, its handles included.
std::vector<std::string> FaultsAfter(const Misdeed& misdeed) {
  TestHost host;
  SetTheHost(&host);
  host.options.bigDocument = false;
  host.document.width = kWidth;
  host.document.height = kHeight;
  host.document.layers = {MakeLayer(host.document, "Layer", 3, PatternPicture(kWidth, kHeight))};
  host.document.selection.assign(kWidth * kHeight, 255);
  host.document.filterRect = host.document.Bounds();
  host.module = std::make_unique<BadModule>(misdeed);
  EXPECT_EQ(RunFilter(host, {}), 0);
  const Layer& layer = host.document.layers[0];
  for (std::size_t i = 0; i < layer.samples.size(); ++i) {
    EXPECT_EQ(layer.samples[i], layer.original[i] / 2) << "sample " << i;
  }
  std::vector<std::string> faults = host.log.faults;
  if (host.handles.Live() != 0) faults.emplace_back("handles are left");
  SetTheHost(nullptr);
  return faults;
}

const void* Acquire(FilterRecord& record, const char* name, int version) {
  const void* suite = nullptr;
  EXPECT_EQ(record.sSPBasic->AcquireSuite(name, version, &suite), host::kSPNoError);
  return suite;
}

// What is lost on purpose stays reachable, so that nobody else complains of it.
void Lose(void* lost) {
  static auto& all = *new std::vector<void*>;
  all.push_back(lost);
}

std::uint8_t* Bytes(void* buffer) {
  return static_cast<std::uint8_t*>(buffer);
}

TEST(Host, SaysNothingOfAModuleThatKeepsTheRules) {
  EXPECT_THAT(FaultsAfter([](FilterRecord&, std::intptr_t&) {}), ::testing::IsEmpty());
}

TEST(Host, SeesWhatAModuleDoesWrong) {
  const struct {
    const char* fault;
    Misdeed misdeed;
  } kMisdeeds[] = {
      {"the input was written to",
       [](FilterRecord& r, std::intptr_t&) { Bytes(r.inData)[4] ^= 1; }},
      {"the input was written to",  // its padding
       [](FilterRecord& r, std::intptr_t&) { Bytes(r.inData)[r.inRowBytes - 1] ^= 1; }},
      {"the mask was written to",
       [](FilterRecord& r, std::intptr_t&) { Bytes(r.maskData)[0] ^= 1; }},
      {"the padding of the output was written to",
       [](FilterRecord& r, std::intptr_t&) { Bytes(r.outData)[kWidth * r.planes] ^= 1; }},
      {"a suite was not released",
       [](FilterRecord& r, std::intptr_t&) { (void)Acquire(r, host::kPSColorSpaceSuite, 1); }},
      {"a suite was released that was not held",
       [](FilterRecord& r, std::intptr_t&) {
         r.sSPBasic->ReleaseSuite(host::kPSColorSpaceSuite, 1);
       }},
      {"a descriptor was not freed",
       [](FilterRecord& r, std::intptr_t&) {
         host::ActionDescriptor* made = nullptr;
         static_cast<const host::PSActionDescriptorProcs*>(
             Acquire(r, host::kPSActionDescriptorSuite, 3))
             ->Make(&made);
         Lose(made);
         r.sSPBasic->ReleaseSuite(host::kPSActionDescriptorSuite, 3);
       }},
      {"a reference was not freed",
       [](FilterRecord& r, std::intptr_t&) {
         host::ActionReference* made = nullptr;
         static_cast<const host::PSActionReferenceProcs*>(
             Acquire(r, host::kPSActionReferenceSuite, 3))
             ->Make(&made);
         Lose(made);
         r.sSPBasic->ReleaseSuite(host::kPSActionReferenceSuite, 3);
       }},
      {"a write descriptor was not closed",
       [](FilterRecord& r, std::intptr_t&) {
         Lose(r.descriptorParameters->writeDescriptorProcs->openWriteDescriptorProc());
       }},
      {"a block is still locked",
       [](FilterRecord& r, std::intptr_t& slot) {
         const host::Handle block = r.handleProcs->newProc(8);
         r.handleProcs->lockProc(block, 1);
         slot = reinterpret_cast<std::intptr_t>(block);
       }},
      {"handles are left",
       [](FilterRecord& r, std::intptr_t&) { (void)r.handleProcs->newProc(8); }},
      {"disposal of a handle that does not exist",
       [](FilterRecord& r, std::intptr_t&) {
         const host::Handle block = r.handleProcs->newProc(8);
         r.handleProcs->disposeProc(block);
         r.handleProcs->disposeProc(block);
       }},
  };
  for (const auto& c : kMisdeeds) {
    EXPECT_THAT(FaultsAfter(c.misdeed), ::testing::Contains(c.fault)) << c.fault;
  }
}

TEST(Host, StopsARunThatAsksForEver) {
  const auto faults = FaultsAfter([](FilterRecord& r, std::intptr_t&) {
    r.maskRect = {0, 0, 1, 1};
  });
  EXPECT_THAT(faults, ::testing::Contains("the run does not end"));
}

}  // namespace
}  // namespace tarnwick::testhost
