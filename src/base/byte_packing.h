// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace kaldo {

// Values as bytes, to pass them between the processes of one run, or from a run that was killed to
// the one that goes on with it: the same program on machines of one kind, so that the bytes in
// memory serve as they are. No result that a user sees is written in this way.

/// Bytes that are not those of the values wanted.
class DamagedBytes : public std::runtime_error {
 public:
  DamagedBytes() : std::runtime_error("A message between the processes of this run is damaged.") {}
};

/// Puts values one behind the other.
class BytePacker {
 public:
  template <typename Value>
  void Add(const Value& value) {
    static_assert(std::is_trivially_copyable_v<Value>);
    bytes_.append(reinterpret_cast<const char*>(&value), sizeof(Value));
  }

  void AddText(std::string_view text) {
    Add(std::uint64_t{text.size()});
    AddRest(text);
  }

  /// Bytes up to the end, without their number.
  void AddRest(std::string_view bytes) { bytes_.append(bytes); }

  /// The values and their number.
  template <typename Value>
  void AddAll(std::span<const Value> values) {
    static_assert(std::is_trivially_copyable_v<Value>);
    AddText({reinterpret_cast<const char*>(values.data()), values.size_bytes()});
  }

  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

/// Takes the values out again, in the same order. Throws DamagedBytes where the bytes end too
/// early: a message was cut, or comes from another version of the program.
class ByteUnpacker {
 public:
  explicit ByteUnpacker(std::string_view bytes) : rest_(bytes) {}

  template <typename Value>
  Value Get() {
    static_assert(std::is_trivially_copyable_v<Value>);
    Value value{};
    std::memcpy(&value, Next(sizeof(Value)).data(), sizeof(Value));
    return value;
  }

  std::string_view GetText() { return Next(Get<std::uint64_t>()); }

  template <typename Value>
  std::vector<Value> GetAll() {
    static_assert(std::is_trivially_copyable_v<Value>);
    const std::string_view bytes = GetText();
    if (bytes.size() % sizeof(Value) != 0) {
      throw DamagedBytes();
    }
    std::vector<Value> values(bytes.size() / sizeof(Value));
    if (!bytes.empty()) {
      std::memcpy(values.data(), bytes.data(), bytes.size());
    }
    return values;
  }

  /// Everything that has not been taken.
  std::string_view Rest() const { return rest_; }

 private:
  std::string_view Next(std::uint64_t bytes) {
    if (bytes > rest_.size()) {
      throw DamagedBytes();
    }
    const std::string_view next = rest_.substr(0, bytes);
    rest_.remove_prefix(bytes);
    return next;
  }

  std::string_view rest_;
};

}  // namespace kaldo
