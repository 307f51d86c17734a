#include "filter/document_queries.h"

#include <vector>

#include "filter/host_suites.h"

namespace tarnwick {
namespace {

using host::ActionDescriptor;
using host::ActionReference;
using host::FourCC;
using host::ReadChannelDesc;

constexpr host::OSType kLayerClass = FourCC("Lyr ");
constexpr host::OSType kPropertyClass = FourCC("Prpr");
constexpr host::OSType kVisibleKey = FourCC("Vsbl");
constexpr host::OSType kNameKey = FourCC("Nm  ");
// No layer's name is longer; a host that says so is not believed.
constexpr std::uint32_t kLongestName = 1U << 16;

// One property of one layer. A reference is built from the inside out: first the
// property, then the layer.
class LayerQuery {
 public:
  LayerQuery(host::SPBasicSuite* broker, host::OSType property)
      : descriptors_(broker, host::kPSActionDescriptorSuite, 2),
        references_(broker, host::kPSActionReferenceSuite, 2),
        control_(broker, host::kPSBasicActionControlSuite, 1) {
    if (!descriptors_ || !references_ || !control_) return;
    ActionReference* made = nullptr;
    if (references_->Make(&made) != host::noErr || made == nullptr) return;
    reference_ = made;
    isGood_ = references_->PutProperty(made, kPropertyClass, property) == host::noErr;
  }
  ~LayerQuery() {
    if (answer_ != nullptr) descriptors_->Free(answer_);
    if (reference_ != nullptr) references_->Free(reference_);
  }
  LayerQuery(const LayerQuery&) = delete;
  LayerQuery& operator=(const LayerQuery&) = delete;

  void Named(const char* name) {
    if (isGood_) isGood_ = references_->PutName(reference_, kLayerClass, name) == host::noErr;
  }
  void Target() {
    if (!isGood_) return;
    isGood_ = references_->PutEnumerated(reference_, kLayerClass, FourCC("Ordn"), FourCC("Trgt")) ==
              host::noErr;
  }
  // False when the host has no answer.
  [[nodiscard]] bool Ask() {
    return isGood_ && control_->Get(&answer_, reference_) == host::noErr && answer_ != nullptr;
  }
  [[nodiscard]] const DescriptorSuite& Descriptors() const { return descriptors_; }
  [[nodiscard]] ActionDescriptor* Answer() const { return answer_; }

 private:
  DescriptorSuite descriptors_;
  ReferenceSuite references_;
  ActionControlSuite control_;
  ActionReference* reference_ = nullptr;
  ActionDescriptor* answer_ = nullptr;
  bool isGood_ = false;
};

std::int32_t CountOf(const ReadChannelDesc* channel) {
  std::int32_t count = 0;
  for (; channel != nullptr; channel = channel->next) ++count;
  return count;
}

}  // namespace

std::int32_t DocumentPlaneCount(const host::FilterRecord& record) {
  const host::ReadImageDocumentDesc* const document = record.documentInfo;
  if (document == nullptr) return record.planes;
  const ReadChannelDesc* const target = document->targetCompositeChannels;
  return CountOf(target != nullptr ? target : document->mergedCompositeChannels);
}

bool HasLayerInfo(const host::FilterRecord& record) {
  const host::ReadImageDocumentDesc* const document = record.documentInfo;
  return document != nullptr && document->minVersion <= 2 && document->maxVersion >= 2;
}

const ReadChannelDesc* DepthChannel(const host::FilterRecord& record) {
  const host::ReadImageDocumentDesc* const document = record.documentInfo;
  if (document == nullptr) return nullptr;
  if (document->targetCompositeChannels != nullptr) return document->targetCompositeChannels;
  if (document->mergedCompositeChannels != nullptr) return document->mergedCompositeChannels;
  return document->alphaChannels;
}

bool IsLayerVisible(host::SPBasicSuite* broker, const host::ReadLayerDesc& layer) {
  if (layer.name == nullptr) return false;
  LayerQuery query(broker, kVisibleKey);
  query.Named(layer.name);
  if (!query.Ask()) return false;
  host::Boolean hasKey = 0;
  host::Boolean isVisible = 0;
  return query.Descriptors()->HasKey(query.Answer(), kVisibleKey, &hasKey) == host::noErr &&
         hasKey != 0 &&
         query.Descriptors()->GetBoolean(query.Answer(), kVisibleKey, &isVisible) == host::noErr &&
         isVisible != 0;
}

std::optional<std::string> GetTargetLayerName(host::SPBasicSuite* broker) {
  LayerQuery query(broker, kNameKey);
  query.Target();
  if (!query.Ask()) return std::nullopt;
  std::uint32_t length = 0;
  if (query.Descriptors()->GetStringLength(query.Answer(), kNameKey, &length) != host::noErr ||
      length > kLongestName) {
    return std::nullopt;
  }
  std::vector<char> name(length + 1, '\0');
  if (query.Descriptors()->GetString(query.Answer(), kNameKey, name.data(), length + 1) !=
      host::noErr) {
    return std::nullopt;
  }
  name[length] = '\0';
  return std::string(name.data());
}

}  // namespace tarnwick
