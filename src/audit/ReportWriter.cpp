#include "audit/ReportWriter.h"

namespace brimly {

void ReportWriter::line(std::string_view text) {
  out_ << text << '\n';
  out_.flush();
}

void ReportWriter::lineAfterBlank(std::string_view text) {
  out_ << '\n';
  line(text);
}

void ReportWriter::row(std::string_view text) {
  line(std::string("│  ").append(text));
}

void ReportWriter::open(std::string_view title) {
  lineAfterBlank(std::string("┌─ ").append(title));
}

void ReportWriter::openTight(std::string_view title) {
  line(std::string("┌─ ").append(title));
}

void ReportWriter::close() {
  line("└─");
}

}  // namespace brimly
