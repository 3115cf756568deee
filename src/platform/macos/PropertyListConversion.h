#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <optional>
#include <string>

#include "platform/PropertyValue.h"

namespace brimly {

// Converts property-list values as the system hands them out (registry properties, power-source
// descriptions) into plain values. Strings, Booleans, integers and floats (kept apart as the
// number says it is stored), arrays and string-keyed dictionaries convert; other values (data,
// dates) are left out of their container. All arguments are borrowed; null gives nothing.

// Nothing when `value` is null or of a type without a plain counterpart.
std::optional<PropertyValue> propertyValueFromCF(CFTypeRef value);

// Nothing unless `value` is a dictionary whose keys are all strings.
std::optional<PropertyDict> propertyDictFromCF(CFTypeRef value);

// The UTF-8 text of a string; nothing for any other value.
std::optional<std::string> stringFromCF(CFTypeRef value);

}  // namespace brimly
