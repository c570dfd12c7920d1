#include "platform/encoding.h"

namespace tarnvik {

namespace {

// Windows-1252 from 0x80 to 0x9f; from 0xa0 on the bytes are the code points.
constexpr char16_t kWindows1252[32] = {0x20ac, 0x81,   0x201a, 0x192,  0x201e, 0x2026, 0x2020, 0x2021,
                                       0x2c6,  0x2030, 0x160,  0x2039, 0x152,  0x8d,   0x17d,  0x8f,
                                       0x90,   0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                       0x2dc,  0x2122, 0x161,  0x203a, 0x153,  0x9d,   0x17e,  0x178};

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

// The length of the valid UTF-8 sequence of two bytes or more that begins there, 0 when there is none.
// Overlong forms, surrogates and what lies beyond the last code point are not valid.
std::size_t SequenceLength(std::string_view bytes, std::size_t at) {
  const unsigned char lead = ByteAt(bytes, at);
  const std::size_t length = lead >= 0xc2 && lead <= 0xdf   ? 2
                             : lead >= 0xe0 && lead <= 0xef ? 3
                             : lead >= 0xf0 && lead <= 0xf4 ? 4
                                                            : 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(bytes, at + i) & 0xc0) != 0x80) return 0;
  }
  const unsigned char second = ByteAt(bytes, at + 1);
  const bool invalid = (lead == 0xe0 && second < 0xa0) || (lead == 0xed && second > 0x9f) ||
                       (lead == 0xf0 && second < 0x90) || (lead == 0xf4 && second > 0x8f);
  return invalid ? 0 : length;
}

void AppendWindows1252(std::string& text, unsigned char byte) {
  const char16_t code = byte < 0xa0 ? kWindows1252[byte - 0x80] : byte;
  if (code < 0x800) {
    text += static_cast<char>(0xc0 | (code >> 6));
  } else {
    text += static_cast<char>(0xe0 | (code >> 12));
    text += static_cast<char>(0x80 | ((code >> 6) & 0x3f));
  }
  text += static_cast<char>(0x80 | (code & 0x3f));
}

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const unsigned char byte = ByteAt(bytes, at);
    const std::size_t length = byte < 0x80 ? 1 : SequenceLength(bytes, at);
    if (length > 0) {
      text += bytes.substr(at, length);
    } else {
      AppendWindows1252(text, byte);
    }
    at += length > 0 ? length : 1;
  }
  return text;
}

}  // namespace tarnvik
