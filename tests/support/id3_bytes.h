// Bytes of MP3 files for tests, put together by hand and not by the code under test.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorlane::id3 {

inline std::string Nuls(std::size_t count) {
  return std::string(count, '\0');
}

inline std::string Byte(unsigned value) {
  return std::string(1, static_cast<char>(value));
}

inline std::string Padded(std::string_view bytes, std::size_t length) {
  return std::string(bytes) + Nuls(length - bytes.size());
}

// Ten bytes; version 2.4 with a flag, so that a header that was reset shows.
inline std::string Header(unsigned size) {
  return "ID3\x04" + Nuls(1) + "\x80" + Byte(size >> 21 & 0x7F) + Byte(size >> 14 & 0x7F) +
         Byte(size >> 7 & 0x7F) + Byte(size & 0x7F);
}

// The header that this program writes.
inline std::string NewHeader() {
  return "ID3\x03" + Nuls(4) + "\x02\x01";
}

// A frame whose size byte, flags and encoding are given.
inline std::string RawFrame(std::string_view id, unsigned size, std::string_view text,
                            std::string_view flagsAndEncoding = std::string_view("\0\0\0", 3)) {
  return std::string(id) + Nuls(3) + Byte(size) + std::string(flagsAndEncoding) + std::string(text);
}

inline std::string Frame(std::string_view id, std::string_view text) {
  return RawFrame(id, static_cast<unsigned>(text.size()) + 1, text);
}

inline std::string Comment(std::string_view text) {
  return Frame("COMM", std::string("eng\0", 4) + std::string(text));
}

// A tag of that size, header included, with NULs behind the frames.
inline std::string Tag(unsigned size, std::string_view frames) {
  return Padded(Header(size) + std::string(frames), size);
}

// 128 bytes.
inline std::string V1(std::string_view title, std::string_view artist, std::string_view album,
                      std::string_view year, std::string_view comment, unsigned track,
                      unsigned genre) {
  return "TAG" + Padded(title, 30) + Padded(artist, 30) + Padded(album, 30) + Padded(year, 4) +
         Padded(comment, 29) + Byte(track) + Byte(genre);
}

// Bytes that stand for audio: each stretch differs from the next, no NUL, no FF, no letters.
inline std::string Audio(std::size_t length) {
  std::string bytes;
  std::uint32_t state = 12345;
  while (bytes.size() < length) {
    state = state * 1664525U + 1013904223U;
    bytes += static_cast<char>(0x80 + (state >> 24) % 0x60);
  }
  return bytes;
}

}  // namespace vorlane::id3
