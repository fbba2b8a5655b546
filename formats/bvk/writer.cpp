#include "formats/bvk/writer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "formats/text/text_buffer.h"
namespace orvane {
namespace {

// Numbers of frames are 32 bits wide and begin again from the lowest behind the highest.
std::int32_t WrappingSum(std::int32_t left, std::int32_t right) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) +
                                   static_cast<std::uint32_t>(right));
}

// From the document's axes to the file's.
// Intended: the multiplication turns 0 into negative zero, which is written as -0.000000.
TRCPosition Turned(const TRCPosition& position) {
  return {position.x, position.z * -1.0, position.y};
}

TRCPosition Moved(const TRCPosition& position, const BvkOffset& offset) {
  return {position.x + double{offset.x}, position.y + double{offset.y},
          position.z + double{offset.z}};
}

TRCPosition InFileSpace(const TRCPosition& position, const std::optional<BvkOffset>& offset) {
  if (!offset) return Turned(position);
  return offset->in_trc_space ? Turned(Moved(position, *offset)) : Moved(Turned(position), *offset);
}

// One printing of one document. Each function appends its lines, in the order of the file.
class BvkPrinter {
 public:
  BvkPrinter(const TRCDocument& document, const BvkDetails& details, const TextTaker& take)
      : document_(document), details_(details), text_(take) {
    for (const TRCMarker& marker : document.markers()) {
      if (marker.IsEnabled()) markers_.push_back(&marker);
    }
  }

  void Print();

 private:
  void PrintComments();
  void PrintHeader();
  void PrintNames();
  void PrintFrames();
  void PrintFrame(std::int64_t index);

  void PutLine(std::string_view keyword, std::string_view value);
  void PutLine(std::string_view keyword, std::int64_t value);

  const TRCDocument& document_;
  const BvkDetails& details_;
  TextBuffer text_;
  std::vector<const TRCMarker*> markers_;  // the enabled ones
};

void BvkPrinter::Print() {
  PrintComments();
  PrintHeader();
  PrintNames();
  PrintFrames();
  text_.HandOver();
}

void BvkPrinter::PrintComments() {
  text_.Put("$Comments\tBVK file generated from TRC file by\n");
  text_.Put("$Comments\tOrvane OrvaneFileIO plugin\n\n");
}

void BvkPrinter::PrintHeader() {
  PutLine("$Filename   ", details_.name);
  // The date brings a line break of its own, so an empty line follows.
  PutLine("$DateTime   ", details_.date_time);
  PutLine("$FirstFrame ", document_.FirstFrame());
  PutLine("$LastFrame ",
          WrappingSum(WrappingSum(document_.FirstFrame(), -1), document_.NumFrames()));
  PutLine("$NumFrames ", document_.NumFrames());
  PutLine("$NumMarkers ", static_cast<std::int64_t>(markers_.size()));
  PutLine("$CaptureRate ", document_.CameraRate());
  PutLine("$Rate ", document_.DataRate());
  text_.Put('\n');
}

// Intended: it is a document without any marker that has no line of names and no "$Points"; one
// whose markers are all disabled has an empty line.
void BvkPrinter::PrintNames() {
  text_.Put("$Order\n");
  if (document_.markers().empty()) return;
  for (const TRCMarker* marker : markers_) {
    text_.Put(marker->Name());
    text_.Put(' ');
  }
  text_.Put("\n\n$Points\n");
}

// Intended: the frames are those that the document announces, however many samples there are.
void BvkPrinter::PrintFrames() {
  for (std::int64_t index = 0; index < document_.NumFrames(); ++index) PrintFrame(index);
}

void BvkPrinter::PrintFrame(std::int64_t index) {
  text_.PutInteger(WrappingSum(document_.FirstFrame(), static_cast<std::int32_t>(index)));
  for (const TRCMarker* marker : markers_) {
    TRCPosition position;
    if (marker->GetSample(static_cast<std::size_t>(index), position.x, position.y, position.z)) {
      const TRCPosition turned = InFileSpace(position, details_.offset);
      text_.PutColumns(std::array{turned.x, turned.y, turned.z});
    } else {
      text_.Put("\tDROPOUT");
    }
  }
  text_.Put("\t\n\n");
}

void BvkPrinter::PutLine(std::string_view keyword, std::string_view value) {
  text_.Put(keyword);
  text_.Put(value);
  text_.Put('\n');
}

void BvkPrinter::PutLine(std::string_view keyword, std::int64_t value) {
  text_.Put(keyword);
  text_.PutInteger(value);
  text_.Put('\n');
}

}  // namespace

void PrintBvk(const TRCDocument& document, const BvkDetails& details, const TextTaker& take) {
  BvkPrinter(document, details, take).Print();
}

}  // namespace orvane
