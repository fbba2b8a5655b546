#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "formats/htr/read_observer.h"
#include "formats/htr/reader.h"
#include "formats/trc/document.h"
#include "formats/trc/read_observer.h"

// Readers of files in memory that tell an observer no more than a reader must which holds but one
// line of a file at a time: texts lie in a copy of the current line, and are gone after the call.
namespace test {

// A copy of one line of `bytes`, which is overwritten in the end.
class LentLine {
 public:
  // The line that `text` lies in; of a text that lies elsewhere, the text itself.
  LentLine(std::string_view bytes, std::string_view text) {
    const char* const end = bytes.data() + bytes.size();
    const bool is_inside = text.data() >= bytes.data() && text.data() <= end;
    line_ = text;
    if (is_inside) line_ = LineAt(bytes, static_cast<std::size_t>(text.data() - bytes.data()));
    copy_ = line_;
  }
  LentLine(const LentLine&) = delete;
  LentLine& operator=(const LentLine&) = delete;
  ~LentLine() { std::fill(copy_.begin(), copy_.end(), '?'); }

  // `text`, which is a part of the line.
  std::string_view operator()(std::string_view text) const {
    if (text.data() == nullptr) return {};
    return std::string_view(copy_).substr(static_cast<std::size_t>(text.data() - line_.data()),
                                          text.size());
  }
  orvane::HtrCell operator()(const orvane::HtrCell& cell) const {
    return {(*this)(cell.text), cell.line, cell.column};
  }
  orvane::Line operator()(orvane::Line line) const {
    line.text = (*this)(line.text);
    return line;
  }

 private:
  // With its line feed.
  static std::string_view LineAt(std::string_view bytes, std::size_t place) {
    const std::size_t before = place == 0 ? std::string_view::npos : bytes.rfind('\n', place - 1);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    const std::size_t feed = bytes.find('\n', place);
    return bytes.substr(begin, feed == std::string_view::npos ? feed : feed + 1 - begin);
  }

  std::string_view line_;
  std::string copy_;
};

class TrcLender final : public orvane::TRCReadObserver {
 public:
  TrcLender(std::string_view bytes, orvane::TRCReadObserver& to) : bytes_(bytes), to_(to) {}

  void OnOddity(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override {
    const LentLine lent(bytes_, text);
    to_.OnOddity(oddity, place, lent(text));
  }
  void OnHeaderValue(orvane::TRCHeaderValue value, orvane::TRCPlace place,
                     std::string_view text) override {
    const LentLine lent(bytes_, text);
    to_.OnHeaderValue(value, place, lent(text));
  }
  void OnMarker(orvane::TRCPlace place, std::string_view name) override {
    const LentLine lent(bytes_, name);
    to_.OnMarker(place, lent(name));
  }
  void OnHeaderLine(std::size_t number, const orvane::Line& line) override {
    const LentLine lent(bytes_, line.text);
    to_.OnHeaderLine(number, lent(line));
  }
  void OnLineThrownAway(const orvane::Line& line) override {
    const LentLine lent(bytes_, line.text);
    to_.OnLineThrownAway(lent(line));
  }
  void OnFrame(orvane::TRCPlace place, const orvane::TRCRow& row) override {
    const LentLine lent(bytes_, row.line.text);
    const orvane::Line line = lent(row.line);
    to_.OnFrame(place, {line, lent(row.number), row.width});
  }
  void OnEnd(orvane::TRCPlace place) override { to_.OnEnd(place); }
  bool WatchesFrames() const override { return to_.WatchesFrames(); }

 private:
  std::string_view bytes_;
  orvane::TRCReadObserver& to_;
};

class HtrLender final : public orvane::HtrReadObserver {
 public:
  HtrLender(std::string_view bytes, orvane::HtrReadObserver& to) : bytes_(bytes), to_(to) {}

  void OnOddity(orvane::HtrOddity oddity, const orvane::HtrCell& cell,
                std::string_view field) override {
    const LentLine lent(bytes_, cell.text);
    const LentLine lent_field(bytes_, field);
    to_.OnOddity(oddity, lent(cell), lent_field(field));
  }
  void OnSection(orvane::HtrSection section, const orvane::HtrCell& name) override {
    const LentLine lent(bytes_, name.text);
    to_.OnSection(section, lent(name));
  }
  void OnHeaderField(const orvane::HtrCell& keyword, const orvane::HtrCell& value) override {
    const LentLine lent(bytes_, keyword.text);
    to_.OnHeaderField(lent(keyword), lent(value));
  }
  void OnSegment(const orvane::HtrCell& name, const orvane::HtrCell& parent) override {
    const LentLine lent(bytes_, name.text);
    to_.OnSegment(lent(name), lent(parent));
  }
  void OnBasePosition(const orvane::HtrCell& name) override {
    const LentLine lent(bytes_, name.text);
    to_.OnBasePosition(lent(name));
  }
  void OnFrame(const orvane::HtrCell& number) override {
    const LentLine lent(bytes_, number.text);
    to_.OnFrame(lent(number));
  }
  void OnEnd(const orvane::HtrCell& end) override { to_.OnEnd(end); }

 private:
  std::string_view bytes_;
  orvane::HtrReadObserver& to_;
};

// `bytes` as a file that is read so; they must outlive what is returned.
inline auto LendingTrc(std::string_view bytes) {
  return [bytes](orvane::TRCDocument& document, orvane::TRCReadObserver& observer) {
    TrcLender lender(bytes, observer);
    return document.ReadBytes(bytes, false, &lender);
  };
}
inline auto LendingHtr(std::string_view bytes) {
  return [bytes](orvane::HtrDocument& document, orvane::HtrReadObserver& observer) {
    HtrLender lender(bytes, observer);
    return orvane::ReadHtrBytes(document, bytes, true, &lender);
  };
}

}  // namespace test
