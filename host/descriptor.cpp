#include "host/descriptor.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <stdexcept>

#include "host_interface/descriptor_procs.h"

namespace tarnwick::testhost {
namespace {

constexpr host::OSType kMagic = host::FourCC("TWDS");

template <typename T>
void Append(std::vector<char>& bytes, T value) {
  char raw[sizeof value];
  std::memcpy(raw, &value, sizeof value);
  bytes.insert(bytes.end(), raw, raw + sizeof value);
}

class Reader {
 public:
  explicit Reader(const std::vector<char>& bytes) : bytes_(bytes) {}
  template <typename T>
  T Take() {
    T value{};
    Need(sizeof value);
    std::memcpy(&value, bytes_.data() + at_, sizeof value);
    at_ += sizeof value;
    return value;
  }
  std::string Text(std::size_t size) {
    Need(size);
    at_ += size;
    return {bytes_.data() + at_ - size, size};
  }

 private:
  void Need(std::size_t size) const {
    if (bytes_.size() - at_ < size) throw std::runtime_error("no descriptor");
  }
  const std::vector<char>& bytes_;
  std::size_t at_ = 0;
};

std::string NumberText(double value) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value);
  return {text, end.ptr};
}

}  // namespace

const DescriptorItem* Descriptor::Find(host::OSType key) const {
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const DescriptorItem& item) { return item.key == key; });
  return found == items.end() ? nullptr : &*found;
}

void Descriptor::Put(const DescriptorItem& item) {
  for (DescriptorItem& old : items) {
    if (old.key == item.key) {
      old = item;
      return;
    }
  }
  items.push_back(item);
}

void Descriptor::Remove(host::OSType key) {
  std::erase_if(items, [&](const DescriptorItem& item) { return item.key == key; });
}

std::vector<char> BytesOf(const Descriptor& descriptor) {
  std::vector<char> bytes;
  Append(bytes, kMagic);
  Append(bytes, static_cast<std::uint32_t>(descriptor.items.size()));
  for (const DescriptorItem& item : descriptor.items) {
    Append(bytes, item.key);
    Append(bytes, item.type);
    Append(bytes, item.integer);
    Append(bytes, item.real);
    Append(bytes, item.kind);
    Append(bytes, item.value);
    Append(bytes, static_cast<std::uint32_t>(item.text.size()));
    bytes.insert(bytes.end(), item.text.begin(), item.text.end());
  }
  return bytes;
}

Descriptor DescriptorFrom(const std::vector<char>& bytes) {
  Reader reader(bytes);
  if (reader.Take<host::OSType>() != kMagic) throw std::runtime_error("no descriptor");
  Descriptor descriptor;
  const auto count = reader.Take<std::uint32_t>();
  for (std::uint32_t i = 0; i < count; ++i) {
    DescriptorItem item;
    item.key = reader.Take<host::OSType>();
    item.type = reader.Take<host::OSType>();
    item.integer = reader.Take<std::int32_t>();
    item.real = reader.Take<double>();
    item.kind = reader.Take<host::OSType>();
    item.value = reader.Take<host::OSType>();
    item.text = reader.Text(reader.Take<std::uint32_t>());
    descriptor.items.push_back(item);
  }
  return descriptor;
}

std::string TextOf(const DescriptorItem& item) {
  switch (item.type) {
    case kTypeBoolean:
      return item.integer != 0 ? "true" : "false";
    case kTypeInteger:
      return std::to_string(item.integer);
    case kTypeFloat:
      return NumberText(item.real);
    case kTypeUnitFloat:
      return NumberText(item.real) + (item.kind == host::unitPercent ? "%" : CodeText(item.kind));
    case kTypeEnumerated:
      return CodeText(item.kind) + ' ' + CodeText(item.value);
    default:
      return item.text;
  }
}

DescriptorItem ItemFromText(const std::string& key, const std::string& type,
                            const std::string& value) {
  DescriptorItem item;
  item.key = CodeOf(key);
  if (type == "boolean") {
    item.type = kTypeBoolean;
    item.integer = value == "true" ? 1 : 0;
  } else if (type == "integer") {
    item.type = kTypeInteger;
    item.integer = static_cast<std::int32_t>(std::stoll(value));
  } else if (type == "float") {
    item.type = kTypeFloat;
    item.real = std::stod(value);
  } else if (type == "percent") {
    item.type = kTypeUnitFloat;
    item.kind = host::unitPercent;
    item.real = std::stod(value);
  } else if (type == "string") {
    item.type = kTypeText;
    item.text = value;
  } else if (type == "enumerated") {
    item.type = kTypeEnumerated;
    item.kind = CodeOf(value.substr(0, 4));
    item.value = CodeOf(value.substr(5));
  } else {
    throw std::runtime_error("there is no type " + type);
  }
  return item;
}

host::OSType CodeOf(const std::string& text) {
  if (text.size() != 4) throw std::runtime_error("a code has four characters: " + text);
  const char code[5] = {text[0], text[1], text[2], text[3], '\0'};
  return host::FourCC(code);
}

std::string CodeText(host::OSType code) {
  return {static_cast<char>(code >> 24), static_cast<char>(code >> 16 & 0xFF),
          static_cast<char>(code >> 8 & 0xFF), static_cast<char>(code & 0xFF)};
}

}  // namespace tarnwick::testhost
