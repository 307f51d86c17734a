#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "host_interface/host_types.h"

namespace tarnwick::testhost {

// Kinds of values, by their published codes.
inline constexpr host::OSType kTypeBoolean = host::FourCC("bool");
inline constexpr host::OSType kTypeInteger = host::FourCC("long");
inline constexpr host::OSType kTypeFloat = host::FourCC("doub");
inline constexpr host::OSType kTypeUnitFloat = host::FourCC("UntF");
inline constexpr host::OSType kTypeText = host::FourCC("TEXT");
inline constexpr host::OSType kTypeEnumerated = host::FourCC("enum");

struct DescriptorItem {
  host::OSType key = 0;
  host::OSType type = 0;
  std::int32_t integer = 0;  // of a boolean too
  double real = 0;
  host::OSType kind = 0;   // unit of a unit float, type of an enumeration
  host::OSType value = 0;  // of an enumeration
  std::string text{};
};

// Values by key, in the order in which they were put.
struct Descriptor {
  std::vector<DescriptorItem> items;

  [[nodiscard]] const DescriptorItem* Find(host::OSType key) const;
  // In the place of one with the same key, or at the end.
  void Put(const DescriptorItem& item);
  void Remove(host::OSType key);
};

// As the bytes of a handle or a file.
[[nodiscard]] std::vector<char> BytesOf(const Descriptor& descriptor);
// Throws std::runtime_error for bytes that are none.
[[nodiscard]] Descriptor DescriptorFrom(const std::vector<char>& bytes);

// "true", "80", "0.5", "12.5%", "Rusted.twk", "mooD moD1": how scenarios write a
// value.
[[nodiscard]] std::string TextOf(const DescriptorItem& item);
// The other way round; `type` is boolean, integer, float, percent, string or
// enumerated.
[[nodiscard]] DescriptorItem ItemFromText(const std::string& key, const std::string& type,
                                          const std::string& value);

[[nodiscard]] host::OSType CodeOf(const std::string& fourCharacters);
[[nodiscard]] std::string CodeText(host::OSType code);

}  // namespace tarnwick::testhost
