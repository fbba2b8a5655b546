// Bytes as a motion file: whatever they are, what is read is a sound document.
#include <string>
#include <string_view>
#include <vector>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "fuzz/expect.h"
#include "fuzz/target.h"
#include "tests/support/blocks.h"

namespace {

// Every text that an observer is shown stands in the file, where it is told to stand.
class Watcher : public orvane::HtrReadObserver {
 public:
  explicit Watcher(std::string_view bytes) : bytes_(bytes) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      if (bytes[at] == '\n') line_starts_.push_back(at + 1);
    }
  }

  void OnOddity(orvane::HtrOddity /*oddity*/, const orvane::HtrCell& cell,
                std::string_view /*field*/) override {
    Look(cell);
  }
  void OnSection(orvane::HtrSection /*section*/, const orvane::HtrCell& name) override {
    Look(name);
  }
  void OnHeaderField(const orvane::HtrCell& keyword, const orvane::HtrCell& value) override {
    Look(keyword);
    Look(value);
  }
  void OnSegment(const orvane::HtrCell& name, const orvane::HtrCell& parent) override {
    Look(name);
    Look(parent);
  }
  void OnBasePosition(const orvane::HtrCell& name) override { Look(name); }
  void OnFrame(const orvane::HtrCell& number) override { Look(number); }
  void OnEnd(const orvane::HtrCell& end) override { Look(end); }

 private:
  void Look(const orvane::HtrCell& cell) const {
    fuzz::Expect(cell.line >= 1 && cell.column >= 1, "lines and columns count from 1");
    if (cell.text.empty()) return;
    fuzz::Expect(cell.line <= line_starts_.size(), "a line is one of the file");
    const std::size_t place = line_starts_[cell.line - 1] + cell.column - 1;
    fuzz::Expect(place <= bytes_.size(), "a column is one of the file");
    fuzz::Expect(bytes_.substr(place, cell.text.size()) == cell.text,
                 "a cell is a piece of the file");
  }

  std::string_view bytes_;
  std::vector<std::size_t> line_starts_ = {0};
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const bool read_motion : {false, true}) {
    orvane::HtrDocument document;
    const std::string message = ReadHtrBytes(document, bytes, read_motion);
    fuzz::Expect(FindFault(document).empty(), "the document is sound");
    Watcher watcher(bytes);
    fuzz::Expect(ReadHtrBytes(document, bytes, read_motion, &watcher) == message,
                 "watching changes nothing");
    fuzz::Expect(FindFault(document).empty(), "a document that is used again is sound");
    const std::size_t segments = document.segments().size();
    test::Blocks blocks(bytes, 0, 1 + size % 97);
    fuzz::Expect(ReadHtrFrom(document, blocks, read_motion) == message, "blocks change nothing");
    fuzz::Expect(document.segments().size() == segments, "blocks hold the same segments");
  }
  return 0;
}
