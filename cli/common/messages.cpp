#include "cli/common/messages.h"

#include <cstdlib>
#include <iostream>

#include "platform/terminal.h"

namespace cli {
namespace {

bool UseColor() {
  const char* no_color = std::getenv("NO_COLOR");
  return (no_color == nullptr || *no_color == '\0') && platform::ErrorIsTerminal();
}

std::string ProgramName(Severity severity) {
  if (!UseColor()) return "orvane: ";
  return severity == Severity::kError ? "\033[1;31morvane:\033[0m " : "\033[1;33morvane:\033[0m ";
}

}  // namespace

void Print(Severity severity, const Complaint& complaint) {
  std::string lines = ProgramName(severity);
  if (!complaint.subject.empty()) lines += Printable(complaint.subject) + ": ";
  lines += Printable(complaint.text) + "\n";
  if (!complaint.advice.empty()) lines += "  " + Printable(complaint.advice) + "\n";
  std::cerr << lines << std::flush;
}

std::string Printable(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string printable;
  for (const char character : text) {
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20 && code != 0x7f) {
      printable += character;
    } else {
      printable += {'\\', 'x', kDigits[code >> 4U], kDigits[code & 15U]};
    }
  }
  return printable;
}

void Warn(std::vector<Complaint> complaints, bool strict) {
  if (complaints.empty()) return;
  if (strict) {
    complaints.push_back({"--strict", "nothing was written because of this", ""});
    throw Failure{ExitStatus::kRefused, complaints};
  }
  for (const Complaint& complaint : complaints) Print(Severity::kWarning, complaint);
}

}  // namespace cli
