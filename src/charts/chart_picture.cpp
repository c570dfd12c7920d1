#include "charts/chart_picture.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <filesystem>

#include "charts/application.h"
#include "charts/chart_painting.h"
#include "charts/png_file.h"
#include "charts/text.h"
#include "core/text.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace fs = std::filesystem;

namespace tarnvik {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 600;
constexpr int kDotsPerInch = 96;

std::string PngPicture(const Chart& chart) {
  // One sheet for all pictures: a collection draws hundreds.
  static QImage image(kWidth, kHeight, QImage::Format_RGB32);
  PaintChart(chart, image, kWidth, kHeight, Painting::Pixels);
  return PngBytes(image);
}

std::string SvgPicture(const Chart& chart) {
  QBuffer buffer;
  QSvgGenerator picture;
  picture.setOutputDevice(&buffer);
  picture.setResolution(kDotsPerInch);
  picture.setSize({kWidth, kHeight});
  picture.setViewBox(QRect(0, 0, kWidth, kHeight));
  picture.setTitle(ShownText(chart.Titles[0]));
  PaintChart(chart, picture, kWidth, kHeight, Painting::Vectors);
  return buffer.data().toStdString();
}

std::string PdfPicture(const Chart& chart) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter picture(&buffer);
    const QSizeF points(kWidth * 72.0 / kDotsPerInch, kHeight * 72.0 / kDotsPerInch);
    picture.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    picture.setPageMargins({});
    picture.setResolution(kDotsPerInch);
    picture.setTitle(ShownText(chart.Titles[0]));
    PaintChart(chart, picture, kWidth, kHeight, Painting::Vectors);
  }
  return buffer.data().toStdString();
}

std::string PictureFor(const Chart& chart, const std::string& path) {
  const std::string ending = LCase(path.substr(path.size() - std::min<std::size_t>(path.size(), 4)));
  if (ending == ".svg") return SvgPicture(chart);
  return ending == ".pdf" ? PdfPicture(chart) : PngPicture(chart);
}

void WriteFile(const std::string& path, const std::string& bytes) {
  OutputFile file;
  file.Open(path);
  file.Print(bytes);
  file.Close();
}

// A file that cannot be written to is not to be replaced either, though its folder would allow it.
void RequireWritable(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (!file) throw RunTimeError(kErrPermission);
  std::fclose(file);
}

// Writes beside the file and puts the result in its place.
void ReplaceFile(const std::string& path, const std::string& bytes) {
  std::error_code error;
  fs::path target = path;
  fs::file_status there = fs::symlink_status(target, error);
  if (fs::is_symlink(there)) {
    target = fs::weakly_canonical(path, error);
    there = fs::status(target, error);
  }
  // A device, and what cannot be a file, is told by the attempt.
  const bool exists = fs::exists(there);
  if (exists && !fs::is_regular_file(there)) return WriteFile(path, bytes);
  if (exists) RequireWritable(target.string());
  const std::string beside = target.string() + ".new";
  try {
    WriteFile(beside, bytes);
    fs::rename(beside, target, error);
    if (error) throw RunTimeError(kErrPathAccess);
  } catch (...) {
    fs::remove(beside, error);
    throw;
  }
}

}  // namespace

void WriteChartPicture(const Chart& chart, const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) throw RunTimeError(kErrPathAccess);
  EnsureApplication();
  ReplaceFile(path, PictureFor(chart, path));
}

}  // namespace tarnvik
