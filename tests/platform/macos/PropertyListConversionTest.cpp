#include "platform/macos/PropertyListConversion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/macos/OwnedHandles.h"

// Core Foundation objects built by hand, as the registry and the power-source snapshot hand them
// out, converted to plain values. Runs on macOS only.

namespace brimly {
namespace {

CFOwned<CFStringRef> cfString(std::string_view text) {
  return CFOwned<CFStringRef>(
      CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                              static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

CFOwned<CFNumberRef> cfInteger(std::int64_t value) {
  return CFOwned<CFNumberRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &value));
}

CFOwned<CFNumberRef> cfInteger32(std::int32_t value) {
  return CFOwned<CFNumberRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value));
}

CFOwned<CFNumberRef> cfReal(double value) {
  return CFOwned<CFNumberRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberFloat64Type, &value));
}

CFOwned<CFDataRef> cfData() {
  const UInt8 bytes[] = {1, 2, 3};
  return CFOwned<CFDataRef>(CFDataCreate(kCFAllocatorDefault, bytes, 3));
}

CFOwned<CFArrayRef> cfArray(std::initializer_list<CFTypeRef> elements) {
  std::vector<const void*> values(elements.begin(), elements.end());
  return CFOwned<CFArrayRef>(CFArrayCreate(kCFAllocatorDefault, values.data(),
                                           static_cast<CFIndex>(values.size()),
                                           &kCFTypeArrayCallBacks));
}

CFOwned<CFDictionaryRef> cfDict(std::initializer_list<std::pair<CFTypeRef, CFTypeRef>> entries) {
  std::vector<const void*> keys;
  std::vector<const void*> values;
  for (const auto& [key, value] : entries) {
    keys.push_back(key);
    values.push_back(value);
  }
  return CFOwned<CFDictionaryRef>(CFDictionaryCreate(
      kCFAllocatorDefault, keys.data(), values.data(), static_cast<CFIndex>(keys.size()),
      &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
}

TEST(PropertyListConversion, NullGivesNothing) {
  EXPECT_EQ(propertyValueFromCF(nullptr), std::nullopt);
  EXPECT_EQ(propertyDictFromCF(nullptr), std::nullopt);
  EXPECT_EQ(stringFromCF(nullptr), std::nullopt);
}

TEST(PropertyListConversion, StringsBecomeUtf8Text) {
  for (const std::string_view text :
       {"", "PMU tdie1", "uJ", "\u00b5J", "Temp\u00e9rature \u2103"}) {
    const auto string = cfString(text);
    EXPECT_EQ(stringFromCF(string.get()), std::string(text));
    EXPECT_EQ(propertyValueFromCF(string.get()), PropertyValue(std::string(text)));
  }
}

TEST(PropertyListConversion, BooleansStayBooleans) {
  EXPECT_EQ(propertyValueFromCF(kCFBooleanTrue), PropertyValue(true));
  EXPECT_EQ(propertyValueFromCF(kCFBooleanFalse), PropertyValue(false));
}

TEST(PropertyListConversion, IntegersAndFloatsStayApart) {
  EXPECT_EQ(propertyValueFromCF(cfInteger(12'500).get()), PropertyValue(std::int64_t{12'500}));
  EXPECT_EQ(propertyValueFromCF(cfInteger(std::numeric_limits<std::int64_t>::max()).get()),
            PropertyValue(std::numeric_limits<std::int64_t>::max()));
  // A discharging battery's current: a signed 32-bit number in the registry.
  EXPECT_EQ(propertyValueFromCF(cfInteger32(-1'375).get()), PropertyValue(std::int64_t{-1'375}));
  EXPECT_EQ(propertyValueFromCF(cfReal(0.25).get()), PropertyValue(0.25));
}

TEST(PropertyListConversion, ValuesWithoutAPlainCounterpartGiveNothing) {
  EXPECT_EQ(propertyValueFromCF(cfData().get()), std::nullopt);
  EXPECT_EQ(stringFromCF(cfInteger(1).get()), std::nullopt);
  EXPECT_EQ(propertyDictFromCF(cfArray({kCFBooleanTrue}).get()), std::nullopt);
}

TEST(PropertyListConversion, ArraysKeepTheirOrderAndDropWhatDoesNotConvert) {
  const auto one = cfInteger(1);
  const auto data = cfData();
  const auto name = cfString("x");
  EXPECT_EQ(propertyValueFromCF(cfArray({one.get(), data.get(), name.get()}).get()),
            PropertyValue(PropertyList{PropertyValue(std::int64_t{1}), PropertyValue("x")}));
}

TEST(PropertyListConversion, NestedDictionariesConvertWithTheirKeys) {
  const auto busyKey = cfString("Device Utilization %");
  const auto busy = cfInteger(23);
  const auto statistics = cfDict({{busyKey.get(), busy.get()}});
  const auto statisticsKey = cfString("PerformanceStatistics");
  const auto classKey = cfString("IOClass");
  const auto className = cfString("AGXAcceleratorG13X");
  const auto service =
      cfDict({{statisticsKey.get(), statistics.get()}, {classKey.get(), className.get()}});
  const std::optional<PropertyDict> converted = propertyDictFromCF(service.get());
  ASSERT_TRUE(converted.has_value());
  EXPECT_EQ(converted->entries().size(), 2u);
  ASSERT_NE(converted->string("IOClass"), nullptr);
  EXPECT_EQ(*converted->string("IOClass"), "AGXAcceleratorG13X");
  const PropertyDict* figures = converted->dict("PerformanceStatistics");
  ASSERT_NE(figures, nullptr);
  EXPECT_EQ(figures->integer("Device Utilization %"), 23);
}

TEST(PropertyListConversion, DataIsLeftOutOfItsDictionary) {
  const auto blobKey = cfString("BatteryData");
  const auto blob = cfData();
  const auto voltageKey = cfString("Voltage");
  const auto voltage = cfInteger(12'500);
  const auto battery = cfDict({{blobKey.get(), blob.get()}, {voltageKey.get(), voltage.get()}});
  EXPECT_EQ(propertyDictFromCF(battery.get()), (PropertyDict{{"Voltage", std::int64_t{12'500}}}));
}

TEST(PropertyListConversion, ADictionaryWithAKeyThatIsNotAStringIsNothing) {
  const auto key = cfInteger(1);
  const auto value = cfString("x");
  const auto dictionary = cfDict({{key.get(), value.get()}});
  EXPECT_EQ(propertyDictFromCF(dictionary.get()), std::nullopt);
  EXPECT_EQ(propertyValueFromCF(dictionary.get()), std::nullopt);
}

TEST(PropertyListConversion, ATreeTooDeepLosesItsDeepestPartNotTheStack) {
  std::vector<CFOwned<CFArrayRef>> levels;
  levels.push_back(cfArray({}));
  for (int i = 0; i < 40; ++i)
    levels.push_back(cfArray({levels.back().get()}));
  const std::optional<PropertyValue> converted = propertyValueFromCF(levels.back().get());
  ASSERT_TRUE(converted.has_value());
  int depth = 0;
  for (const PropertyValue* value = &*converted;;) {
    const auto* list = value->get<PropertyList>();
    ASSERT_NE(list, nullptr);
    ++depth;
    if (list->empty()) break;
    value = &list->front();
  }
  EXPECT_EQ(depth, 33);  // levels 0 to 32; the one below is left out of its container
}

}  // namespace
}  // namespace brimly
