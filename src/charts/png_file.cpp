#include "charts/png_file.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace tarnvik {

namespace {

constexpr std::uint32_t kDotsPerMetre = 3780;  // 96 per inch: the size that the fonts are made for
constexpr char kFilterSub = 1;                 // a byte is the difference to the pixel on the left
constexpr char kFilterUp = 2;                  // a byte is the difference to the pixel above

// --- The compressed stream: one block of fixed codes, literals and matches with the pixel before

struct Code {
  std::uint32_t bits = 0;  // as they go into the stream, the lowest first
  int count = 0;
};

constexpr std::uint32_t Reversed(std::uint32_t bits, int count) {
  std::uint32_t reversed = 0;
  for (int i = 0; i < count; ++i) reversed |= ((bits >> i) & 1u) << (count - 1 - i);
  return reversed;
}

// The fixed code of a symbol: 0 to 255 a literal, 256 the end, from 257 on the length of a match.
constexpr Code CodeOf(std::uint32_t symbol) {
  if (symbol < 144) return {Reversed(0x30 + symbol, 8), 8};
  if (symbol < 256) return {Reversed(0x190 + symbol - 144, 9), 9};
  if (symbol < 280) return {Reversed(symbol - 256, 7), 7};
  return {Reversed(0xc0 + symbol - 280, 8), 8};
}

// A match of that many bytes, 3 to 258, with those a pixel (3 bytes) before.
constexpr Code MatchOf(std::uint32_t length) {
  std::uint32_t symbol = 257;
  std::uint32_t base = 3;
  int extra = 0;
  // Eight lengths have symbols of their own; then every four symbols stand for twice as many lengths each.
  while (length < 258 && length >= base + (1u << extra)) {
    base += 1u << extra;
    ++symbol;
    if (symbol >= 265 && (symbol - 265) % 4 == 0) ++extra;
  }
  if (length == 258) {
    symbol = 285;
    base = 258;
    extra = 0;
  }
  constexpr Code kDistance3{Reversed(2, 5), 5};
  Code code = CodeOf(symbol);
  code.bits |= (length - base) << code.count;
  code.count += extra;
  code.bits |= kDistance3.bits << code.count;
  code.count += kDistance3.count;
  return code;
}

constexpr std::uint32_t kPixelBytes = 3;
constexpr std::uint32_t kLongestRun = 258 / kPixelBytes;

constexpr auto kLiterals = [] {
  std::array<Code, 256> codes;
  for (std::uint32_t byte = 0; byte < codes.size(); ++byte) codes[byte] = CodeOf(byte);
  return codes;
}();

// By the number of pixels; that of none is not used.
constexpr auto kRuns = [] {
  std::array<Code, kLongestRun + 1> codes;
  for (std::uint32_t pixels = 1; pixels <= kLongestRun; ++pixels)
    codes[pixels] = MatchOf(pixels * kPixelBytes);
  return codes;
}();

class Deflated {
 public:
  Deflated() {
    bytes_.reserve(std::size_t{1} << 17);
    bytes_ = "\x78\x01";  // the usual window, the fastest level
    Put({0x3, 3});        // the last block, of fixed codes
  }

  void Literal(std::uint32_t byte) {
    Put(kLiterals[byte]);
    sum_ += byte;
    sum_of_sums_ += sum_;
  }

  void Pixel(QRgb pixel) {
    for (const int byte : {qRed(pixel), qGreen(pixel), qBlue(pixel)})
      Literal(static_cast<std::uint32_t>(byte));
  }

  // The pixel that was written last, that many times more.
  void Repeat(QRgb pixel, std::uint64_t times) {
    for (std::uint64_t left = times; left > 0;) {
      const std::uint64_t run = left < kLongestRun ? left : kLongestRun;
      Put(kRuns[run]);
      left -= run;
    }
    const auto red = static_cast<std::uint64_t>(qRed(pixel));
    const auto green = static_cast<std::uint64_t>(qGreen(pixel));
    const std::uint64_t pixel_sum = red + green + static_cast<std::uint64_t>(qBlue(pixel));
    sum_of_sums_ +=
        times * (3 * sum_ + 2 * red + green + pixel_sum) + 3 * pixel_sum * (times * (times - 1) / 2);
    sum_ += times * pixel_sum;
  }

  // Before the sums can overflow: after each row.
  void ReduceSums() {
    constexpr std::uint64_t kModulus = 65521;
    sum_ %= kModulus;
    sum_of_sums_ %= kModulus;
  }

  std::string Finish() {
    Put(CodeOf(256));
    Put({0, (8 - count_ % 8) % 8});
    PassOn(count_ / 8);
    ReduceSums();
    for (const std::uint64_t sum : {sum_of_sums_, sum_}) {
      bytes_ += static_cast<char>(sum >> 8);
      bytes_ += static_cast<char>(sum & 0xff);
    }
    return std::move(bytes_);
  }

 private:
  void Put(const Code& code) {
    pending_ |= std::uint64_t{code.bits} << count_;
    count_ += code.count;
    if (count_ >= 32) PassOn(4);
  }

  void PassOn(int whole_bytes) {
    char bytes[8];
    for (int i = 0; i < whole_bytes; ++i) bytes[i] = static_cast<char>((pending_ >> (8 * i)) & 0xff);
    bytes_.append(bytes, static_cast<std::size_t>(whole_bytes));
    pending_ >>= 8 * whole_bytes;
    count_ -= 8 * whole_bytes;
  }

  std::string bytes_;
  std::uint64_t pending_ = 0;  // bits that wait for more, fewer than 32 of them
  int count_ = 0;
  std::uint64_t sum_ = 1;  // the checksum of the stream: of its bytes, and of these sums
  std::uint64_t sum_of_sums_ = 0;
};

// --- Rows

// Each colour's difference, without borrowing from the next.
QRgb Difference(QRgb pixel, QRgb other) {
  constexpr QRgb kHigh = 0x80808080;
  return ((pixel | kHigh) - (other & ~kHigh)) ^ ((pixel ^ ~other) & kHigh);
}

// How many pixels are certainly the same, in steps of many.
std::size_t SamePixels(const QRgb* pixels, const QRgb* others, std::size_t count) {
  constexpr std::size_t kStep = 32;
  std::size_t same = 0;
  while (same + kStep <= count && std::memcmp(pixels + same, others + same, kStep * sizeof(QRgb)) == 0) {
    same += kStep;
  }
  return same;
}

void AddRow(Deflated& stream, const QRgb* pixels, const QRgb* others, std::size_t width) {
  std::uint64_t repeated = 0;
  QRgb last = Difference(pixels[0], others[0]);
  stream.Pixel(last);
  for (std::size_t x = 1; x < width; ++x) {
    if (last == 0) {
      const std::size_t same = SamePixels(pixels + x, others + x, width - x);
      repeated += same;
      x += same;
      if (x == width) break;
    }
    const QRgb difference = Difference(pixels[x], others[x]);
    if (difference == last) {
      ++repeated;
      continue;
    }
    if (repeated > 0) stream.Repeat(last, repeated);
    repeated = 0;
    last = difference;
    stream.Pixel(last);
  }
  if (repeated > 0) stream.Repeat(last, repeated);
  stream.ReduceSums();
}

std::string Rows(const QImage& picture) {
  const auto width = static_cast<std::size_t>(picture.width());
  const auto row = [&](int number) { return reinterpret_cast<const QRgb*>(picture.constScanLine(number)); };
  // The first row has none above it.
  std::vector<QRgb> left(width, 0);
  for (std::size_t x = 1; x < width; ++x) left[x] = row(0)[x - 1];
  Deflated stream;
  for (int number = 0; number < picture.height(); ++number) {
    stream.Literal(number == 0 ? kFilterSub : kFilterUp);
    AddRow(stream, row(number), number == 0 ? left.data() : row(number - 1), width);
  }
  return stream.Finish();
}

// --- The file

std::string Number(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>((value >> shift) & 0xff);
  return bytes;
}

std::uint32_t Checksum(std::string_view bytes) {
  static constexpr auto kTable = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
      std::uint32_t sum = byte;
      for (int bit = 0; bit < 8; ++bit) sum = (sum & 1u) != 0 ? 0xedb88320u ^ (sum >> 1) : sum >> 1;
      table[byte] = sum;
    }
    return table;
  }();
  std::uint32_t sum = 0xffffffff;
  for (const char byte : bytes) sum = kTable[(sum ^ static_cast<unsigned char>(byte)) & 0xff] ^ (sum >> 8);
  return ~sum;
}

std::string Chunk(const std::string& name, const std::string& data) {
  const std::string body = name + data;
  return Number(static_cast<std::uint32_t>(data.size())) + body + Number(Checksum(body));
}

}  // namespace

std::string PngBytes(const QImage& picture) {
  const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);  // itself where it is of that format
  constexpr char kEightBitsOfRgb[] = "\x08\x02\x00\x00\x00";
  const auto side = [](int length) { return Number(static_cast<std::uint32_t>(length)); };
  return "\x89PNG\r\n\x1a\n" +
         Chunk("IHDR", side(pixels.width()) + side(pixels.height()) + std::string(kEightBitsOfRgb, 5)) +
         Chunk("pHYs", Number(kDotsPerMetre) + Number(kDotsPerMetre) + "\x01") + Chunk("IDAT", Rows(pixels)) +
         Chunk("IEND", "");
}

}  // namespace tarnvik
