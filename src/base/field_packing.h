// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/byte_packing.h"

namespace kaldo {

// Structured values as bytes, field by field: what they are made of can be tested before anybody
// trusts it, which memory as it is cannot. Such a value lists its fields in
//
//   static auto Fields(auto& self) { return std::tie(self.first, self.second); }

template <typename Value>
concept HasFields = requires(Value& value) {
  Value::Fields(value);
};

namespace packing {

template <typename Value>
inline constexpr bool kIsOptional = false;
template <typename Value>
inline constexpr bool kIsOptional<std::optional<Value>> = true;

template <typename Value>
inline constexpr bool kIsArray = false;
template <typename Value, std::size_t n>
inline constexpr bool kIsArray<std::array<Value, n>> = true;

template <typename Value>
inline constexpr bool kIsVector = false;
template <typename Value>
inline constexpr bool kIsVector<std::vector<Value>> = true;

}  // namespace packing

/// Calls `visit` with each plain value, a number or a truth value, in order.
template <typename Value, typename Visit>
void VisitPlain(const Value& value, const Visit& visit) {
  if constexpr (HasFields<const Value>) {
    std::apply([&](const auto&... fields) { (VisitPlain(fields, visit), ...); },
               Value::Fields(value));
  } else if constexpr (packing::kIsOptional<Value>) {
    visit(value.has_value());
    if (value) {
      VisitPlain(*value, visit);
    }
  } else if constexpr (packing::kIsArray<Value> || packing::kIsVector<Value>) {
    if constexpr (packing::kIsVector<Value>) {
      visit(std::uint64_t{value.size()});
    }
    for (const auto& each : value) {
      VisitPlain(each, visit);
    }
  } else {
    visit(value);
  }
}

template <typename Value>
void PackFields(const Value& value, BytePacker& packer) {
  VisitPlain(value, [&](const auto& plain) { packer.Add(plain); });
}

/// Throws DamagedBytes as ByteUnpacker does, also for a truth value that is neither.
template <typename Value>
void UnpackFields(Value& value, ByteUnpacker& unpacker) {
  if constexpr (HasFields<Value>) {
    std::apply([&](auto&... fields) { (UnpackFields(fields, unpacker), ...); },
               Value::Fields(value));
  } else if constexpr (packing::kIsOptional<Value>) {
    value.reset();
    bool has_value = false;
    UnpackFields(has_value, unpacker);
    if (has_value) {
      UnpackFields(value.emplace(), unpacker);
    }
  } else if constexpr (packing::kIsVector<Value>) {
    value.clear();
    for (auto left = unpacker.Get<std::uint64_t>(); left > 0; --left) {
      UnpackFields(value.emplace_back(), unpacker);
    }
  } else if constexpr (packing::kIsArray<Value>) {
    for (auto& each : value) {
      UnpackFields(each, unpacker);
    }
  } else if constexpr (std::is_same_v<Value, bool>) {
    const auto byte = unpacker.Get<unsigned char>();
    if (byte > 1) {
      throw DamagedBytes();
    }
    value = byte == 1;
  } else {
    value = unpacker.Get<Value>();
  }
}

/// Of values that stand one behind the other up to the end.
template <typename Value>
std::vector<Value> UnpackUpToTheEnd(std::string_view bytes) {
  std::vector<Value> values;
  for (ByteUnpacker unpacker(bytes); !unpacker.Rest().empty();) {
    UnpackFields(values.emplace_back(), unpacker);
  }
  return values;
}

}  // namespace kaldo
