// A folder with the files of a tiny stock, changed in single places, and runs of the two programs on it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct Outcome {
  int status = -1;
  std::string progress;
  std::string log;  // without the path of the folder
};

class VpaFolder {
 public:
  VpaFolder();  // the tiny stock: index file tiny.dat, ages 0 to 3, 2001 to 2005, two fleets
  explicit VpaFolder(const std::filesystem::path& copy_of);
  ~VpaFolder();
  VpaFolder(const VpaFolder&) = delete;
  VpaFolder& operator=(const VpaFolder&) = delete;

  std::string Text(const std::string& file) const;  // "" when there is none
  void Write(const std::string& file, const std::string& text) const;
  // Replaces `from`, which must stand in the file exactly once; from "" the whole file.
  void Change(const std::string& file, const std::string& from, const std::string& to) const;
  // The names of all files.
  std::vector<std::string> Files() const;

  Outcome Scan(const std::string& index = "tiny.dat") const;
  Outcome Convert(const std::string& index = "tiny.dat") const;

  const std::filesystem::path path;

 private:
  Outcome Cleaned(int status, const std::string& progress, std::string log) const;
};

// The value lines that follow the first line with `comment` in it, each trimmed at the end, parted by "/".
std::string ValuesUnder(const std::string& text, const std::string& comment);
