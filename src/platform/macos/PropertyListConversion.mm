#include "platform/macos/PropertyListConversion.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace brimly {
namespace {

// Registry trees are shallow; the cap only keeps a malformed one from exhausting the stack.
constexpr int kMaxDepth = 32;

std::optional<PropertyValue> convert(CFTypeRef value, int depth);

std::optional<PropertyValue> numberValue(CFNumberRef number) {
  if (CFNumberIsFloatType(number)) {
    double real = 0.0;
    if (!CFNumberGetValue(number, kCFNumberFloat64Type, &real)) return std::nullopt;
    return PropertyValue(real);
  }
  std::int64_t integer = 0;
  if (!CFNumberGetValue(number, kCFNumberSInt64Type, &integer)) return std::nullopt;
  return PropertyValue(integer);
}

std::optional<PropertyValue> listValue(CFArrayRef array, int depth) {
  PropertyList list;
  const CFIndex count = CFArrayGetCount(array);
  for (CFIndex i = 0; i < count; ++i) {
    if (auto element = convert(CFArrayGetValueAtIndex(array, i), depth + 1)) {
      list.push_back(std::move(*element));
    }
  }
  return PropertyValue(std::move(list));
}

std::optional<PropertyDict> dictValue(CFDictionaryRef dictionary, int depth) {
  const CFIndex count = CFDictionaryGetCount(dictionary);
  if (count < 0) return std::nullopt;
  std::vector<const void*> keys(static_cast<std::size_t>(count));
  std::vector<const void*> values(static_cast<std::size_t>(count));
  if (count > 0) CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
  PropertyDict dict;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    std::optional<std::string> key = stringFromCF(keys[i]);
    if (!key) return std::nullopt;
    if (auto value = convert(values[i], depth + 1)) dict.set(std::move(*key), std::move(*value));
  }
  return dict;
}

std::optional<PropertyValue> convert(CFTypeRef value, int depth) {
  if (value == nullptr || depth > kMaxDepth) return std::nullopt;
  const CFTypeID type = CFGetTypeID(value);
  if (type == CFStringGetTypeID()) {
    if (auto text = stringFromCF(value)) return PropertyValue(std::move(*text));
    return std::nullopt;
  }
  if (type == CFBooleanGetTypeID()) {
    return PropertyValue(CFBooleanGetValue(static_cast<CFBooleanRef>(value)) != 0);
  }
  if (type == CFNumberGetTypeID()) return numberValue(static_cast<CFNumberRef>(value));
  if (type == CFArrayGetTypeID()) return listValue(static_cast<CFArrayRef>(value), depth);
  if (type == CFDictionaryGetTypeID()) {
    if (auto dict = dictValue(static_cast<CFDictionaryRef>(value), depth)) {
      return PropertyValue(std::move(*dict));
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<PropertyValue> propertyValueFromCF(CFTypeRef value) {
  return convert(value, 0);
}

std::optional<PropertyDict> propertyDictFromCF(CFTypeRef value) {
  if (value == nullptr || CFGetTypeID(value) != CFDictionaryGetTypeID()) return std::nullopt;
  return dictValue(static_cast<CFDictionaryRef>(value), 0);
}

std::optional<std::string> stringFromCF(CFTypeRef value) {
  if (value == nullptr || CFGetTypeID(value) != CFStringGetTypeID()) return std::nullopt;
  const auto text = static_cast<CFStringRef>(value);
  if (const char* direct = CFStringGetCStringPtr(text, kCFStringEncodingUTF8)) return direct;
  const CFIndex maximum =
      CFStringGetMaximumSizeForEncoding(CFStringGetLength(text), kCFStringEncodingUTF8);
  if (maximum < 0) return std::nullopt;  // too long to encode
  std::string buffer(static_cast<std::size_t>(maximum) + 1, '\0');
  if (!CFStringGetCString(text, buffer.data(), maximum + 1, kCFStringEncodingUTF8)) {
    return std::nullopt;
  }
  buffer.resize(std::strlen(buffer.c_str()));
  return buffer;
}

}  // namespace brimly
