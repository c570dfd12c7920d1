#include "desktop/forms/arrangement.h"

#include <algorithm>
#include <stdexcept>

namespace tarnvik {

namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  // Rows up to the end of the text or to the closing bracket, which is left.
  Rows ReadRows() {
    Rows rows(1);
    for (SkipBlanks(); !AtEnd() && text_[at_] != ')'; SkipBlanks()) {
      if (text_[at_] == '/') {
        ++at_;
        rows.emplace_back();
      } else {
        rows.back().push_back(ReadCell());
      }
    }
    return rows;
  }
  bool AtEnd() const { return at_ >= text_.size(); }

 private:
  void SkipBlanks() {
    while (!AtEnd() && text_[at_] == ' ') ++at_;
  }
  std::string ReadUntil(std::string_view ends) {
    const std::size_t end = std::min(text_.find_first_of(ends, at_), text_.size());
    const std::string word(text_.substr(at_, end - at_));
    at_ = end;
    return word;
  }
  // A name may end in an index in brackets.
  std::string ReadName() {
    std::string name = ReadUntil(" /()=*");
    if (name.empty()) throw std::invalid_argument("no name in " + std::string(text_.substr(at_)));
    if (AtEnd() || text_[at_] != '(') return name;
    name += ReadUntil(")") + ')';
    Expect(')');
    return name;
  }
  void Expect(char mark) {
    if (AtEnd() || text_[at_] != mark) throw std::invalid_argument("unclosed " + std::string(text_));
    ++at_;
  }
  Cell ReadCell() {
    Cell cell;
    if (text_[at_] == '.' || text_[at_] == '>') {
      cell.kind = text_[at_++] == '.' ? Cell::Kind::Empty : Cell::Kind::Gap;
    } else if (text_[at_] == '\'') {
      ++at_;
      cell.kind = Cell::Kind::Text;
      cell.text = ReadUntil("'");
      Expect('\'');
    } else if (text_[at_] == '(') {
      ++at_;
      cell.kind = Cell::Kind::Rows;
      cell.rows = ReadRows();
      Expect(')');
    } else {
      cell.kind = Cell::Kind::Controls;
      cell.names.push_back(ReadName());
      while (!AtEnd() && text_[at_] == '=') {
        ++at_;
        cell.names.push_back(ReadName());
      }
    }
    if (!AtEnd() && text_[at_] == '*') {
      ++at_;
      cell.share = 0;
      while (!AtEnd() && text_[at_] >= '0' && text_[at_] <= '9')
        cell.share = 10 * cell.share + (text_[at_++] - '0');
    }
    return cell;
  }
  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

Rows ReadArrangement(std::string_view text) {
  Reader reader(text);
  Rows rows = reader.ReadRows();
  if (!reader.AtEnd()) throw std::invalid_argument("unopened bracket in " + std::string(text));
  return rows;
}

}  // namespace tarnvik
