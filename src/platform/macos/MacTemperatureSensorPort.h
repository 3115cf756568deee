#pragma once

#include <memory>

#include "platform/TemperatureSensorPort.h"

namespace brimly {

// Reads the temperature sensors of the HID event system. Its client functions are private, so they
// are looked up by name at run time: where they are missing the reader lists no sensor.
std::unique_ptr<TemperatureSensorPort> makeMacTemperatureSensorPort();

}  // namespace brimly
