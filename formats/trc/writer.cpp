#include "formats/trc/writer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "formats/text/text_buffer.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEndsName("\t\n\0", 3);
constexpr int kTimeDecimals = 6;

std::vector<const TRCMarker*> EnabledMarkers(const TRCDocument& document) {
  std::vector<const TRCMarker*> markers;
  markers.reserve(document.MarkerCount());
  for (const TRCMarker& marker : document.markers()) {
    if (marker.IsEnabled()) markers.push_back(&marker);
  }
  return markers;
}

std::string WhyNotWritable(const std::vector<const TRCMarker*>& markers) {
  if (markers.empty()) return "there is no marker to write";
  std::unordered_set<std::string_view> names;
  for (const TRCMarker* marker : markers) {
    const std::string& name = marker->Name();
    if (name.find_first_of(kEndsName) != std::string::npos) {
      return "a marker's name holds a tab, a line end or a NUL";
    }
    if (name.starts_with("Unnamed")) {
      return "the marker " + name + " would not be read: its name begins with Unnamed";
    }
    if (!names.insert(name).second) return "two markers have the name " + name;
  }
  return {};
}

std::string Or(const std::string& text, const std::string& otherwise) {
  return text.empty() ? otherwise : text;
}

std::string OneCell(std::string name) {
  std::replace_if(
      name.begin(), name.end(),
      [](char character) { return static_cast<unsigned char>(character) < 0x20; }, ' ');
  return name.empty() ? "markers.trc" : name;
}

// One printing of one document. Each function hands over its lines, in the order of the file.
class TrcPrinter {
 public:
  TrcPrinter(const TRCDocument& document, const TextTaker& take, const TrcManner& manner)
      : document_(document),
        manner_(manner),
        markers_(EnabledMarkers(document)),
        data_rate_(Or(manner.data_rate, FormatInt(document.DataRate()))),
        frames_per_second_(ParseDouble(data_rate_)),
        text_(take) {
    for (const TRCMarker* marker : markers_) frames_ = std::max(frames_, marker->SampleCount());
  }

  std::string Print() {
    if (std::string why = WhyNotWritable(markers_); !why.empty()) return why;
    PrintHeader();
    PrintNames();
    PrintHeadings();
    EndLine();
    for (std::size_t frame = 0; frame < frames_ && why_.empty(); ++frame) PrintFrame(frame);
    text_.HandOver();
    return why_;
  }

 private:
  void PrintHeader() {
    const std::string frames = FormatInt(static_cast<std::int64_t>(frames_));
    const std::string camera_rate = Or(manner_.camera_rate, FormatInt(document_.CameraRate()));
    const auto unit = static_cast<std::uint32_t>(document_.Units());
    PutLine("PathFileType\t4\t(X/Y/Z)\t" + OneCell(manner_.name));
    PutLine(
        "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
        "OrigNumFrames");
    PutLine(data_rate_ + '\t' + camera_rate + '\t' + frames + '\t' +
            FormatInt(static_cast<std::int64_t>(markers_.size())) + '\t' +
            std::string(CalibrationUnitsName(unit)) + '\t' + Or(manner_.original_rate, data_rate_) +
            '\t' + FormatInt(document_.FirstFrame()) + '\t' + frames);
  }

  void PrintNames() {
    line_ = "Frame#\tTime\t";
    for (const TRCMarker* marker : markers_) line_ += marker->Name() + "\t\t\t";
    EndLine();
  }

  // Nobody reads them, so that they go where they would make the line too long.
  void PrintHeadings() {
    line_ = "\t\t";
    for (std::size_t marker = 1; marker <= markers_.size(); ++marker) {
      const std::string number = FormatInt(static_cast<std::int64_t>(marker));
      line_ += 'X' + number + "\tY" + number + "\tZ" + number + '\t';
    }
    if (IsTooLong()) line_ = "\t\t";
    EndLine();
  }

  void PrintFrame(std::size_t frame) {
    line_ += FormatInt(document_.FirstFrame() + static_cast<std::int64_t>(frame));
    line_ += '\t';
    const double later =
        frames_per_second_ > 0 ? static_cast<double>(frame) / frames_per_second_ : 0.0;
    line_ += FormatDouble(manner_.first_time + later, kTimeDecimals);
    for (const TRCMarker* marker : markers_) AddSample(*marker, frame);
    EndLine();
  }

  void AddSample(const TRCMarker& marker, std::size_t frame) {
    std::array<double, 3> position{};
    if (!marker.GetSample(frame, position[0], position[1], position[2])) {
      line_ += "\t\t\t";
      return;
    }
    for (const double coordinate : position) {
      std::array<char, NumberForm::kLongest> number;
      line_ += '\t';
      line_.append(number.data(), manner_.numbers.Write(coordinate, number.data()));
    }
  }

  void PutLine(const std::string& line) {
    line_ = line;
    EndLine();
  }

  [[nodiscard]] bool IsTooLong() const { return line_.size() + kLineEnd.size() > kLongestPiece; }

  void EndLine() {
    if (IsTooLong()) {
      why_ = "a line of it would have " + FormatInt(static_cast<std::int64_t>(line_.size())) +
             " bytes, and readers take " +
             FormatInt(static_cast<std::int64_t>(kLongestPiece - kLineEnd.size()));
    }
    text_.Put(line_);
    text_.Put(kLineEnd);
    line_.clear();
  }

  const TRCDocument& document_;
  const TrcManner& manner_;
  const std::vector<const TRCMarker*> markers_;
  const std::string data_rate_;
  const double frames_per_second_;
  TextBuffer text_;
  std::size_t frames_ = 0;
  std::string line_;
  std::string why_;
};

}  // namespace

std::string PrintTrc(const TRCDocument& document, const TextTaker& take, const TrcManner& manner) {
  return TrcPrinter(document, take, manner).Print();
}

}  // namespace orvane
