// Text files. Bytes are text: what was read is written back unchanged.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace tarnvik {

// A file for input: read into memory once, handed out line by line. CR LF, CR and LF all end a line; a last line
// without an end is a line. An ending CR LF or LF does not begin another line.
class InputFile {
 public:
  // Raises 53 "File not found" when nothing is there, 75 "Path/File access error" for a folder or an unreadable
  // file, 7 "Out of memory" for one of more than kMaxInputBytes.
  void Open(const std::string& path);
  void Close();
  bool IsOpen() const { return open_; }
  bool AtEnd() const { return at_ >= text_.size(); }
  // The next line without its end; raises 62 "Input past end of file" and 52 when no file is open. The view holds
  // until the file is closed or opened anew.
  std::string_view ReadLine();

 private:
  std::string text_;
  std::size_t at_ = 0;
  bool open_ = false;
};

inline constexpr std::size_t kMaxInputBytes = std::size_t{512} << 20;

// A file for output, replaced when it is opened. Lines end in CR LF.
class OutputFile {
 public:
  OutputFile() = default;
  // What was printed before an error is kept on disk, as far as it goes.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // Raises 75 "Path/File access error", 76 "Path not found" or 70 "Permission denied".
  void Open(const std::string& path);
  // Appends to the text without ending the line.
  void Print(std::string_view text) { buffer_ += text; }
  void EndLine();
  void PrintLine(std::string_view text) {
    Print(text);
    EndLine();
  }
  // Raises 61 "Disk full" or 57 "Device I/O error" when not everything could be written.
  void Close();

 private:
  void Flush();
  std::FILE* file_ = nullptr;
  std::string buffer_;
};

}  // namespace tarnvik
