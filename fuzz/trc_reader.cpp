// Bytes as a marker file: whatever they are, what is read is a sound document.
#include <algorithm>
#include <string>
#include <string_view>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"
#include "fuzz/expect.h"
#include "fuzz/target.h"
#include "tests/support/blocks.h"

namespace {

class Watcher : public orvane::TRCReadObserver {
 public:
  // A count of markers is told once they are known, with its place in the line before.
  void OnOddity(orvane::TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override {
    const bool is_late = oddity == orvane::TRCOddity::kMarkerCountMismatch ||
                         oddity == orvane::TRCOddity::kMarkerCountRefused;
    fuzz::Expect(place.line >= line_ || is_late, "lines are told in order");
    fuzz::Expect(place.line >= 1, "lines are counted from 1");
    fuzz::Expect(text.empty() || text.data() != nullptr, "a text is there");
    line_ = std::max(line_, place.line);
  }

 private:
  std::size_t line_ = 0;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const bool include_unnamed : {false, true}) {
    orvane::TRCDocument document;
    const std::string message = document.ReadBytes(bytes, include_unnamed);
    fuzz::Expect(FindFault(document).empty(), "the document is sound");
    Watcher watcher;
    fuzz::Expect(document.ReadBytes(bytes, include_unnamed, &watcher) == message,
                 "watching changes nothing");
    fuzz::Expect(FindFault(document).empty(), "a document that is used again is sound");
    const unsigned markers = document.MarkerCount();
    test::Blocks blocks(bytes, 0, 1 + size % 97);
    fuzz::Expect(document.ReadFrom(blocks, include_unnamed) == message, "blocks change nothing");
    fuzz::Expect(document.MarkerCount() == markers, "blocks hold the same markers");
    document.ConvertUnits(3);
    fuzz::Expect(FindFault(document).empty(), "a document in inches is sound");
  }
  return 0;
}
