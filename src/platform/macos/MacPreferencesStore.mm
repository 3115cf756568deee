#include "platform/macos/MacPreferencesStore.h"

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

#include "core/BuildInfo.h"
#include "platform/macos/MacReadingRules.h"
#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

// A new CFString (+1) with the UTF-8 text; null when the text is not valid UTF-8.
CFOwned<CFStringRef> makeString(std::string_view text) {
  return CFOwned<CFStringRef>(
      CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                              static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

// The value stored under `key` (+1), or null.
CFOwned<CFPropertyListRef> copyValue(const std::string& domain, std::string_view key) {
  const CFOwned<CFStringRef> cfKey = makeString(key);
  const CFOwned<CFStringRef> cfDomain = makeString(domain);
  if (!cfKey || !cfDomain) return CFOwned<CFPropertyListRef>();
  return CFOwned<CFPropertyListRef>(CFPreferencesCopyAppValue(cfKey.get(), cfDomain.get()));
}

// Stores `value` (borrowed) under `key` and writes the domain out at once; why not, when that
// failed.
std::optional<std::string> storeValue(const std::string& domain, std::string_view key,
                                      CFPropertyListRef value) {
  const CFOwned<CFStringRef> cfKey = makeString(key);
  const CFOwned<CFStringRef> cfDomain = makeString(domain);
  if (!cfKey || !cfDomain || value == nullptr) {
    return "the value of " + std::string(key) + " is not UTF-8 text";
  }
  CFPreferencesSetAppValue(cfKey.get(), value, cfDomain.get());
  if (!CFPreferencesAppSynchronize(cfDomain.get())) {
    return "the preferences system could not save the domain " + domain;
  }
  return std::nullopt;
}

}  // namespace

MacPreferencesStore::MacPreferencesStore() : MacPreferencesStore(BuildInfo::bundleIdentifier) {}

MacPreferencesStore::MacPreferencesStore(std::string applicationDomain)
    : domain_(std::move(applicationDomain)) {}

std::optional<bool> MacPreferencesStore::readBool(std::string_view key) const {
  const CFOwned<CFPropertyListRef> value = copyValue(domain_, key);
  const std::optional<PropertyValue> plain = propertyValueFromCF(value.get());
  if (!plain) return std::nullopt;
  return preferenceBool(*plain);
}

std::optional<std::vector<std::string>> MacPreferencesStore::readStringList(
    std::string_view key) const {
  const CFOwned<CFPropertyListRef> value = copyValue(domain_, key);
  if (!value || CFGetTypeID(value.get()) != CFArrayGetTypeID()) return std::nullopt;
  const auto array = static_cast<CFArrayRef>(value.get());
  const CFIndex count = CFArrayGetCount(array);
  std::vector<std::string> strings;
  strings.reserve(static_cast<std::size_t>(count));
  for (CFIndex i = 0; i < count; ++i) {
    // One element of another type makes the whole value of the wrong type.
    std::optional<std::string> text = stringFromCF(CFArrayGetValueAtIndex(array, i));
    if (!text) return std::nullopt;
    strings.push_back(std::move(*text));
  }
  return strings;
}

std::optional<std::string> MacPreferencesStore::readString(std::string_view key) const {
  const CFOwned<CFPropertyListRef> value = copyValue(domain_, key);
  if (!value) return std::nullopt;
  return stringFromCF(value.get());
}

std::optional<std::string> MacPreferencesStore::writeBool(std::string_view key, bool value) {
  return storeValue(domain_, key, value ? kCFBooleanTrue : kCFBooleanFalse);
}

std::optional<std::string> MacPreferencesStore::writeStringList(
    std::string_view key, const std::vector<std::string>& value) {
  std::vector<CFOwned<CFStringRef>> owned;
  std::vector<const void*> elements;
  owned.reserve(value.size());
  elements.reserve(value.size());
  for (const std::string& text : value) {
    owned.push_back(makeString(text));
    // Not UTF-8: nothing is written rather than a shortened list.
    if (!owned.back()) return "an element of " + std::string(key) + " is not UTF-8 text";
    elements.push_back(owned.back().get());
  }
  const CFOwned<CFArrayRef> array(CFArrayCreate(kCFAllocatorDefault, elements.data(),
                                                static_cast<CFIndex>(elements.size()),
                                                &kCFTypeArrayCallBacks));
  return storeValue(domain_, key, array.get());
}

std::optional<std::string> MacPreferencesStore::writeString(std::string_view key,
                                                            std::string_view value) {
  const CFOwned<CFStringRef> text = makeString(value);
  if (!text) return "the value of " + std::string(key) + " is not UTF-8 text";
  return storeValue(domain_, key, text.get());
}

}  // namespace brimly
