// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/unpacked_bytes.h"

#ifdef KALDO_HAS_ZLIB
#include <array>
#include <zlib.h>

#include <fmt/format.h>
#endif

namespace kaldo {

bool IsGzip(std::string_view bytes) { return bytes.starts_with("\x1f\x8b"); }

#ifdef KALDO_HAS_ZLIB

namespace {

/// A stream of zlib that is gone with its block.
class Unpacker {
 public:
  Unpacker() : is_sound_(inflateInit2(&stream_, MAX_WBITS + kGzipHeads) == Z_OK) {}
  Unpacker(const Unpacker&) = delete;
  Unpacker& operator=(const Unpacker&) = delete;
  Unpacker(Unpacker&&) = delete;
  Unpacker& operator=(Unpacker&&) = delete;
  ~Unpacker() { inflateEnd(&stream_); }

  bool IsSound() const { return is_sound_; }
  z_stream& Stream() { return stream_; }

 private:
  static constexpr int kGzipHeads = 16;

  z_stream stream_{};
  bool is_sound_;
};

}  // namespace

tl::expected<std::string, std::string> UnpackedGzip(std::string bytes, std::size_t most) {
  Unpacker unpacker;
  z_stream& stream = unpacker.Stream();
  stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
  stream.avail_in = static_cast<uInt>(bytes.size());
  std::string text;
  std::array<char, std::size_t{1} << 16U> block{};
  int state = unpacker.IsSound() ? Z_OK : Z_STREAM_ERROR;
  while (state == Z_OK || (state == Z_STREAM_END && stream.avail_in > 0)) {
    if (state == Z_STREAM_END) {
      inflateReset(&stream);  // the next block
    }
    stream.next_out = reinterpret_cast<Bytef*>(block.data());
    stream.avail_out = static_cast<uInt>(block.size());
    state = inflate(&stream, Z_NO_FLUSH);
    text.append(block.data(), block.size() - stream.avail_out);
    if (text.size() > most) {
      return tl::unexpected(fmt::format("it is packed and holds more than {} MB", most >> 20U));
    }
  }
  if (state != Z_STREAM_END) {
    return tl::unexpected(std::string("it is packed (gzip), and cut off or damaged"));
  }
  return text;
}

#else

tl::expected<std::string, std::string> UnpackedGzip(std::string /*bytes*/, std::size_t /*most*/) {
  return tl::unexpected(std::string(
      "it is packed (gzip), and this build unpacks nothing, since zlib was not there: unpack it "
      "first"));
}

#endif

}  // namespace kaldo
