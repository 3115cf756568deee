#pragma once

#include <optional>
#include <vector>

#include "platform/PropertyValue.h"

namespace brimly {

// The GPU accelerator services, each as its property dictionary. A service's load figures sit in
// its "PerformanceStatistics" dictionary under keys such as "Device Utilization %".
class AcceleratorPort {
 public:
  virtual ~AcceleratorPort() = default;
  // Nothing when the services cannot be enumerated; one entry per service in enumeration order,
  // each nothing when that service's properties cannot be read as a dictionary.
  virtual std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() = 0;
};

}  // namespace brimly
