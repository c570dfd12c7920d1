#include "desktop/png_file.h"

#include <png.h>

#include <csetjmp>

#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

constexpr int kCompression = 3;
constexpr png_uint_32 kDotsPerMetre = 3780;  // 96 per inch: the size that the fonts are made for

void Append(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

// False when libpng gives up, which leaves by a long jump: nothing with a destructor lives in here.
bool Encode(png_structp png, png_infop info, const QImage& rgb, std::string& bytes) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_set_write_fn(png, &bytes, Append, nullptr);
  png_set_IHDR(png, info, static_cast<png_uint_32>(rgb.width()), static_cast<png_uint_32>(rgb.height()), 8,
               PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_pHYs(png, info, kDotsPerMetre, kDotsPerMetre, PNG_RESOLUTION_METER);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_set_compression_level(png, kCompression);
  png_write_info(png, info);
  for (int row = 0; row < rgb.height(); ++row) png_write_row(png, rgb.constScanLine(row));
  png_write_end(png, info);
  return true;
}

}  // namespace

std::string PngBytes(const QImage& picture) {
  const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
  std::string bytes;
  bytes.reserve(std::size_t{1} << 17);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  const bool done = info && !rgb.isNull() && Encode(png, info, rgb, bytes);
  png_destroy_write_struct(&png, &info);
  if (!done) throw RunTimeError(kErrOutOfMemory);
  return bytes;
}

}  // namespace tarnvik
