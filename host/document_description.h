#pragma once
#include <deque>
#include <string>

#include "host/document.h"
#include "host_interface/document_info.h"

namespace tarnwick::host {

// One plane of one layer.
struct ChannelPort {
  std::size_t layer;
  int plane;
};

}  // namespace tarnwick::host

namespace tarnwick::testhost {

// The document as the interface's lists of channels and layers. Keeps what the
// lists point at; the document's layers must not change while it is in use.
class DocumentDescription {
 public:
  // Without `withLayers` it is of the oldest version, which has no layer list.
  DocumentDescription(const Document& document, bool withLayers);
  DocumentDescription(const DocumentDescription&) = delete;
  DocumentDescription& operator=(const DocumentDescription&) = delete;
  [[nodiscard]] host::ReadImageDocumentDesc* Get() { return &description_; }

 private:
  host::ReadChannelDesc* AddChannel(const Document& document, std::size_t layer, int plane,
                                    int type);
  host::ReadChannelDesc* AddColors(const Document& document, std::size_t layer);
  host::ReadLayerDesc* AddLayer(const Document& document, std::size_t layer);

  std::deque<host::ChannelPort> ports_;
  std::deque<host::ReadChannelDesc> channels_;
  std::deque<host::ReadLayerDesc> layers_;
  host::ReadImageDocumentDesc description_{};
};

}  // namespace tarnwick::testhost
