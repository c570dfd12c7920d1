// Text files. Bytes are text: what was read is written back unchanged.
#pragma once

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

namespace tarnvik {

// A file for input: read into memory once, handed out line by line. CR LF, CR and LF all end a line; a last
// line without an end is a line. An ending CR LF or LF does not begin another line.
class InputFile {
 public:
  // Raises 53 "File not found" when nothing is there, 75 "Path/File access error" for a folder or an
  // unreadable file, 7 "Out of memory" for one of more than kMaxInputBytes.
  void Open(const std::string& path);
  void Close();
  bool IsOpen() const { return open_; }
  bool AtEnd() const { return at_ >= text_.size(); }
  std::size_t Size() const { return text_.size(); }  // bytes of the whole file
  // The next line without its end; raises 62 "Input past end of file" and 52 when no file is open. The view
  // holds until the file is closed or opened anew.
  std::string_view ReadLine();

 private:
  std::string text_;
  std::size_t at_ = 0;
  // Where the next of each line end stands, the text's size when there is none. Each is looked for only once
  // it has been passed, so that a file is gone through once whatever ends its lines.
  std::size_t next_cr_ = 0;
  std::size_t next_lf_ = 0;
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
  // Appends to the text without ending the line. Raises what Close does, now and then, when the disk is full.
  void Print(std::string_view text) {
    if (text.size() > kBufferBytes - used_) return PrintLong(text);
    std::memcpy(buffer_ + used_, text.data(), text.size());
    used_ += text.size();
  }
  void EndLine() { Print("\r\n"); }
  void PrintLine(std::string_view text) {
    Print(text);
    EndLine();
  }
  // Raises 61 "Disk full" or 57 "Device I/O error" when not everything could be written.
  void Close();

 private:
  static constexpr std::size_t kBufferBytes = std::size_t{1} << 16;
  void PrintLong(std::string_view text);  // text that the rest of the buffer has no room for
  void WriteOut(std::string_view text);
  void Flush();
  std::FILE* file_ = nullptr;
  std::size_t used_ = 0;
  char buffer_[kBufferBytes];
};

}  // namespace tarnvik
