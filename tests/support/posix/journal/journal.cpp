#include "tests/support/posix/journal/journal.h"

#include <filesystem>
#include <regex>
#include <sstream>

#include "tests/support/files.h"

namespace test {

Journal* Journal::current_ = nullptr;

void Journal::NoteDeletedKey(const std::string& controller, int tick) {
  if (deleted_ && deleted_->Take(controller, tick)) return;
  Complete();
  deleted_.emplace(controller, tick);
}

void Journal::Abbreviate(const std::string& text, const std::string& shorter) {
  abbreviations_.emplace_back(text, shorter);
}

void Journal::WatchFile(const std::string& path, const std::string& name) {
  files_.push_back({path, name, false, {}});
}

void Journal::WatchText(const std::string& path, const std::string& name) {
  files_.push_back({path, name, true, {}});
}

std::string Journal::WindowName(HWND window) const {
  if (window == nullptr) return "no window";
  const auto found = windows_.find(window);
  return found == windows_.end() ? "unknown window" : found->second;
}

std::vector<std::string> Journal::Take() {
  Complete();
  return std::exchange(lines_, {});
}

void Journal::Append(const std::string& line) {
  Complete();
  lines_.push_back(Abbreviated(line));
  if (act_) act_(line);
}

void Journal::Complete() {
  if (deleted_) {
    for (const std::string& line : deleted_->Lines()) lines_.push_back(line);
    deleted_.reset();
  }
  for (WatchedFile& file : files_) Look(file);
}

// Notes each line that has come to a text, with TIME in place of any moment.
void Journal::Look(WatchedFile& file) {
  if (!std::filesystem::is_regular_file(file.path)) return;
  const std::string now = ReadTextFile(file.path);
  if (now == file.seen) return;
  const bool goes_on = now.compare(0, file.seen.size(), file.seen) == 0;
  const std::string added = goes_on ? now.substr(file.seen.size()) : now;
  file.seen = now;
  if (!file.is_text) return lines_.push_back(file.name + " is written");

  static const std::regex kMoment("[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9:]{8} [0-9]{4}");
  std::istringstream shown(std::regex_replace(Abbreviated(added), kMoment, "TIME"));
  lines_.push_back(file.name + (goes_on ? " takes" : " begins anew with"));
  for (std::string line; std::getline(shown, line);) lines_.push_back("  | " + line);
}

std::string Journal::Abbreviated(std::string text) const {
  for (const auto& [longer, shorter] : abbreviations_) {
    for (std::size_t at = text.find(longer); at != std::string::npos;
         at = text.find(longer, at + shorter.size())) {
      text.replace(at, longer.size(), shorter);
    }
  }
  return text;
}

}  // namespace test
