#include "formats/htr/writer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <fstream>
#include <unordered_map>
#include <vector>

#include "formats/htr/degrees.h"
#include "formats/htr/messages.h"
#include "formats/text/files.h"
#include "formats/text/numbers.h"
#include "formats/text/text_buffer.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr double kLibraryVersion = 1.1;
constexpr int kHeaderDecimals = 2;

// The name of the first segment that shares it with another one, before or behind it; null when
// each has its own.
const std::string* FindDuplicate(const std::vector<std::string>& names) {
  std::unordered_map<std::string_view, int> uses;
  for (const std::string& name : names) ++uses[name];
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&uses](const std::string& name) { return uses[name] > 1; });
  return found == names.end() ? nullptr : &*found;
}

std::string WhyNotWritable(const HtrDocument& document) {
  const std::vector<std::string> names = document.GetSegmentNames();
  if (names.empty()) return kNoSegmentsToWrite;
  const std::string* duplicate = FindDuplicate(names);
  return duplicate == nullptr ? std::string() : kDuplicateNamesToWrite + *duplicate;
}

// One printing of one document. Each function appends its lines, in the order of the file.
class HtrPrinter {
 public:
  HtrPrinter(const HtrDocument& document, const TextTaker& take, const HtrManner& manner)
      : document_(document),
        manner_(manner),
        text_(take),
        is_in_degrees_(document.GetRotationUnits() == kDegrees) {}

  void Print();

 private:
  void PrintHeader();
  void PrintHierarchy();
  void PrintBasePositions();
  void PrintMotion(const HtrSegment& segment);
  void PrintFrame(const HtrSegment& segment, std::uint32_t index);
  void PrintOnlyFrame();
  double ScaleOf(const HtrSegment& segment, std::uint32_t index) const;

  // Lines end with CR LF on every system.
  void EndLine() { text_.Put("\r\n"); }
  void PutLine(std::string_view line);
  void PutField(std::string_view keyword, std::string_view value);
  [[nodiscard]] std::string ScaleFactor() const;
  [[nodiscard]] double AngleInFile(double radians) const;
  // The seven columns of a base position or a frame, and the end of the line.
  void PutRow(const Vector3& translation, const EulerRotation& rotation, double length);

  const HtrDocument& document_;
  const HtrManner& manner_;
  TextBuffer text_;
  const bool is_in_degrees_;
};

void HtrPrinter::Print() {
  PrintHeader();
  PrintHierarchy();
  PrintBasePositions();
  for (const HtrSegment& segment : document_.segments()) PrintMotion(segment);
  PutLine("[EndOfFile]");
  text_.HandOver();
}

void HtrPrinter::PrintHeader() {
  PutLine("# Orvane HTR (source:OrvaneFileLib v" + FormatDouble(kLibraryVersion, kHeaderDecimals) +
          ")");
  PutLine("[Header]");
  PutLine("# KeyWord<space>Value<CR>");
  PutField("FileType", "htr");
  PutField("DataType", "HTRS");
  PutField("FileVersion", "1");
  PutField("NumSegments", FormatInt(document_.GetNumSegments()));
  PutField("NumFrames", FormatInt(std::max(document_.GetNumFrames(), std::uint32_t{1})));
  PutField("DataFrameRate", manner_.frame_rate.empty() ? FormatInt(document_.GetDataFrameRate())
                                                       : manner_.frame_rate);
  PutField("EulerRotationOrder", "ZYX");
  PutField("CalibrationUnits", CalibrationUnitsName(document_.GetCalibrationUnits()));
  PutField("RotationUnits", RotationUnitsName(document_.GetRotationUnits()));
  // Intended: an exporter's axis of gravity is Y whatever the document says, the bones' axis is
  // what the document says, although no reader of ours takes another than Y.
  PutField("GlobalAxisofGravity", AxisName(manner_.gravity_axis));
  PutField("BoneLengthAxis", AxisName(document_.GetBoneLengthAxis()));
  PutField("ScaleFactor", ScaleFactor());
}

std::string HtrPrinter::ScaleFactor() const {
  const double factor = document_.GetScaleFactor();
  return manner_.numbers ? manner_.numbers->Text(factor) : FormatDouble(factor, kHeaderDecimals);
}

void HtrPrinter::PrintHierarchy() {
  PutLine("[SegmentNames&Hierarchy]");
  PutLine("# ObjectName<tab>ParentObjectName<CR>");
  for (const HtrSegment& segment : document_.segments()) {
    const HtrSegment* parent = segment.GetParent();
    text_.Put(segment.GetName());
    text_.Put('\t');
    PutLine(parent == nullptr ? "GLOBAL" : parent->GetName());
  }
}

void HtrPrinter::PrintBasePositions() {
  PutLine("[BasePosition]");
  PutLine("# ObjectName<tab>Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneLength<CR>");
  for (const HtrSegment& segment : document_.segments()) {
    text_.Put(segment.GetName());
    PutRow(segment.GetBaseTranslation(), segment.GetBaseRotation(), segment.GetBoneLength());
  }
}

void HtrPrinter::PrintMotion(const HtrSegment& segment) {
  PutLine("[" + segment.GetName() + "]");
  PutLine("# Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>");
  const std::uint32_t count = document_.GetNumFrames();
  if (count == 0) PrintOnlyFrame();
  for (std::uint32_t index = 0; index < count; ++index) PrintFrame(segment, index);
}

// Intended: the frame's values as they are stored, which are offsets from the base position.
void HtrPrinter::PrintFrame(const HtrSegment& segment, std::uint32_t index) {
  text_.PutInteger(std::int64_t{document_.GetStartFrame()} + index);
  const Vector3 translation = segment.GetFrameTranslation(index);
  const EulerRotation rotation = segment.GetFrameRotation(index);
  PutRow(translation, rotation, ScaleOf(segment, index));
}

// Intended: a document without frames becomes a file of one frame, numbered 1 and at rest.
void HtrPrinter::PrintOnlyFrame() {
  text_.PutInteger(1);
  PutRow(Vector3(), EulerRotation(), 1.0);
}

double HtrPrinter::ScaleOf(const HtrSegment& segment, std::uint32_t index) const {
  if (!document_.GetWriteBoneScale()) return 1.0;
  const double scale = segment.GetFrameScale(index);
  return document_.GetNormalizeBoneScale() ? scale / segment.GetScaleReferenceLength() : scale;
}

void HtrPrinter::PutLine(std::string_view line) {
  text_.Put(line);
  EndLine();
}

void HtrPrinter::PutField(std::string_view keyword, std::string_view value) {
  text_.Put(keyword);
  text_.Put(' ');
  PutLine(value);
}

double HtrPrinter::AngleInFile(double radians) const {
  if (!is_in_degrees_) return radians;
  const bool is_exact = manner_.numbers && manner_.numbers->IsShortest();
  return is_exact ? DegreesReadAs(radians) : radians * kDegreesPerRadian;
}

void HtrPrinter::PutRow(const Vector3& translation, const EulerRotation& rotation, double length) {
  const std::array row{
      translation.x(),          translation.y(),          translation.z(), AngleInFile(rotation[0]),
      AngleInFile(rotation[1]), AngleInFile(rotation[2]), length};
  if (manner_.numbers) {
    text_.PutColumns(row, *manner_.numbers);
  } else {
    text_.PutColumns(row);
  }
  EndLine();
}

}  // namespace

std::string WriteHtrFile(const HtrDocument& document, const std::string& file_name) try {
  std::string message = WhyNotWritable(document);
  if (!message.empty()) return message;
  std::ofstream file = CreateFileForBytes(WithExtension(file_name, ".htr"));
  if (!file.is_open()) return kNotOpened;
  PrintHtr(document, [&file](std::string_view bytes) {
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  });
  return {};
} catch (const std::exception&) {
  return kNotOpened;  // no memory
}

void PrintHtr(const HtrDocument& document, const TextTaker& take, const HtrManner& manner) {
  HtrPrinter(document, take, manner).Print();
}

}  // namespace orvane
