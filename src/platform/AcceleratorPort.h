#pragma once

#include <optional>
#include <vector>

#include "platform/PropertyValue.h"

namespace brimly {

// The GPU accelerator services, each as its properties: at least "IOClass" (the service's class
// name) and its "PerformanceStatistics" dictionary, where the load figures sit under keys such as
// "Device Utilization %"; a backend may bring more.
class AcceleratorPort {
 public:
  virtual ~AcceleratorPort() = default;
  // Nothing when the services cannot be enumerated; one entry per service in enumeration order,
  // each nothing when that service's properties cannot be read as a dictionary.
  virtual std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() = 0;
};

}  // namespace brimly
