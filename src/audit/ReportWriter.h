#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace brimly {

// Writes the report's lines: one line per call, each ended by a newline. Inside a section every
// line starts with a vertical bar and two blanks; "┌─" opens a section and "└─" closes it.
class ReportWriter {
 public:
  explicit ReportWriter(std::ostream& out) : out_(out) {}

  // A line exactly as given.
  void line(std::string_view text);
  // An empty line, then `text`.
  void lineAfterBlank(std::string_view text);
  // "│  " followed by `text`.
  void row(std::string_view text);
  // "\n┌─ " followed by `title`: a section that opens after an empty line.
  void open(std::string_view title);
  // "┌─ " followed by `title`, with no empty line before it.
  void openTight(std::string_view title);
  // "└─".
  void close();

  std::ostream& stream() { return out_; }

 private:
  std::ostream& out_;
};

}  // namespace brimly
