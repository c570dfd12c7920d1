#include "desktop/png_file.h"

#include <png.h>

#include <csetjmp>
#include <vector>

#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

constexpr int kCompression = 3;
constexpr png_uint_32 kDotsPerMetre = 3780;  // 96 per inch: the size that the fonts are made for

void Append(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

// The row as bytes of red, green and blue.
void TakeRow(const QImage& picture, int number, std::vector<png_byte>& row) {
  const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(number));
  for (std::size_t i = 0; i < row.size(); ++pixels) {
    row[i++] = static_cast<png_byte>(qRed(*pixels));
    row[i++] = static_cast<png_byte>(qGreen(*pixels));
    row[i++] = static_cast<png_byte>(qBlue(*pixels));
  }
}

// False when libpng gives up, which leaves by a long jump: nothing with a destructor lives in here.
bool Encode(png_structp png, png_infop info, const QImage& picture, std::vector<png_byte>& row,
            std::string& bytes) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_set_write_fn(png, &bytes, Append, nullptr);
  png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width()),
               static_cast<png_uint_32>(picture.height()), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_pHYs(png, info, kDotsPerMetre, kDotsPerMetre, PNG_RESOLUTION_METER);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_set_compression_level(png, kCompression);
  png_write_info(png, info);
  for (int number = 0; number < picture.height(); ++number) {
    TakeRow(picture, number, row);
    png_write_row(png, row.data());
  }
  png_write_end(png, info);
  return true;
}

}  // namespace

std::string PngBytes(const QImage& picture) {
  const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);  // itself where it is of that format
  std::vector<png_byte> row(static_cast<std::size_t>(pixels.width()) * 3);
  std::string bytes;
  bytes.reserve(std::size_t{1} << 17);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  const bool done = info && !pixels.isNull() && Encode(png, info, pixels, row, bytes);
  png_destroy_write_struct(&png, &info);
  if (!done) throw RunTimeError(kErrOutOfMemory);
  return bytes;
}

}  // namespace tarnvik
