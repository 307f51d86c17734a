#include "host/host_options.h"

#include <map>
#include <stdexcept>

namespace tarnwick::testhost {

HostOptions MinimalOptions() {
  HostOptions options;
  options.broker = options.descriptors = options.bigDocument = options.colorServices = false;
  options.channelPorts = options.documentInfo = options.mask = options.pluginRef = false;
  options.depth = options.progress = options.abort = false;
  options.rowPadding = 0;
  options.sampling = 0;
  return options;
}

void SetOption(HostOptions& options, const std::string& name, const std::string& value) {
  static const std::map<std::string, bool HostOptions::*> kSwitches = {
      {"broker", &HostOptions::broker},
      {"descriptors", &HostOptions::descriptors},
      {"empty-procs", &HostOptions::emptyProcs},
      {"read-procs", &HostOptions::readProcs},
      {"write-procs", &HostOptions::writeProcs},
      {"big-document", &HostOptions::bigDocument},
      {"color-services", &HostOptions::colorServices},
      {"channel-ports", &HostOptions::channelPorts},
      {"document-info", &HostOptions::documentInfo},
      {"document-layers", &HostOptions::documentLayers},
      {"progress", &HostOptions::progress},
      {"abort", &HostOptions::abort},
      {"advance", &HostOptions::advance},
      {"handle-procs", &HostOptions::handleProcs},
      {"plugin-ref", &HostOptions::pluginRef},
      {"mask", &HostOptions::mask},
      {"depth", &HostOptions::depth},
      {"auto-mask", &HostOptions::autoMask},
      {"stale-mask", &HostOptions::staleMask},
      {"only-expected-keys", &HostOptions::onlyExpectedKeys},
      {"registry-error", &HostOptions::registryError},
      {"coercions", &HostOptions::coercions},
      {"keeps-parameters", &HostOptions::keepsParameters},
      {"keeps-data", &HostOptions::keepsData},
      {"finish-after-failed-start", &HostOptions::finishAfterFailedStart},
  };
  static const std::map<std::string, int HostOptions::*> kNumbers = {
      {"result-at-entry", &HostOptions::resultAtEntry},
      {"row-padding", &HostOptions::rowPadding},
      {"sampling", &HostOptions::sampling},
      {"max-space", &HostOptions::maxSpace},
  };
  if (const auto found = kSwitches.find(name); found != kSwitches.end()) {
    if (value != "on" && value != "off") throw std::runtime_error(name + " is on or off");
    options.*found->second = value == "on";
  } else if (const auto number = kNumbers.find(name); number != kNumbers.end()) {
    options.*number->second = std::stoi(value);
  } else {
    throw std::runtime_error("there is no option " + name);
  }
}

}  // namespace tarnwick::testhost
