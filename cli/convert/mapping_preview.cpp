#include "cli/convert/mapping_preview.h"

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/report.h"
#include "cli/common/taken_names.h"
#include "cli/convert/changed_input.h"
#include "cli/convert/trc_worth.h"
#include "formats/trc/document.h"
#include "inspect/check/marker_naming.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

using orvane::MarkerNaming;
using orvane::OutlineTrcFile;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

// Neither an output that exists nor one without markers keeps anything from being shown.
bool IsReadable(const Conversion& conversion) {
  return conversion.status == ConversionStatus::kPlanned ||
         conversion.status == ConversionStatus::kExists ||
         conversion.status == ConversionStatus::kEmpty;
}

class Previewer {
 public:
  explicit Previewer(const ConversionOrder& order) : order_(order) {
    LoadMapping(order.mapping, naming_);
  }

  ConversionPreview Preview(Conversion& conversion) const {
    ConversionPreview preview{&conversion, {}, {}};
    if (conversion.status == ConversionStatus::kPlanned) Judge(conversion);
    if (!IsReadable(conversion)) return preview;
    const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(conversion.source);
    orvane::TRCDocument document;
    const std::string message = document.ReadBytes(outline ? outline->Header() : "", false);
    if (!message.empty()) {
      conversion.status = ConversionStatus::kBroken;
      conversion.errors.push_back({conversion.input, message, ""});
      return preview;
    }
    MatchNames(conversion, document, naming_, order_.names);
    RequireChangeable(conversion);
    if (order_.cut && document.MarkerCount() > 0) {
      preview.frames = Overlap(*order_.cut, FramesHeld(*outline));
    }
    for (const orvane::TRCMarker& marker : document.markers()) {
      const std::string& name = conversion.match.NameInMapping(marker.Name());
      preview.markers.push_back({marker.Name(), naming_.NameFor(name)});
    }
    return preview;
  }

 private:
  void Judge(Conversion& conversion) const {
    (void)JudgeInput(conversion, order_, naming_);  // each file would get its own rate
    const bool is_unwanted = conversion.is_empty && !order_.allow_empty;
    if (is_unwanted && conversion.status == ConversionStatus::kPlanned) {
      conversion.status = ConversionStatus::kEmpty;
    }
  }

  // What is to be changed before it is converted could be refused then.
  void RequireChangeable(Conversion& conversion) const {
    if (conversion.status != ConversionStatus::kPlanned || !IsChanged(conversion, order_)) return;
    try {
      (void)ChangedBytes(conversion, order_);
    } catch (const Failure& failure) {
      SettleUnchanged(conversion, failure);
    }
  }

  const ConversionOrder& order_;
  MarkerNaming naming_;
};

void PrintMarker(const MarkerFate& marker, std::ostream& out) {
  if (!marker.written_as) {
    out << "  drop    " << Printable(marker.name) << '\n';
  } else if (*marker.written_as == marker.name) {
    out << "  keep    " << Printable(marker.name) << '\n';
  } else {
    out << "  rename  " << Printable(marker.name) << " to " << Printable(*marker.written_as)
        << '\n';
  }
}

void WriteMarker(JsonWriter& json, const MarkerFate& marker) {
  json.BeginObject();
  WriteText(json, "name", marker.name);
  json.Key("written_as");
  if (marker.written_as) {
    json.String(*marker.written_as);
  } else {
    json.Null();
  }
  json.EndObject();
}

void WritePreview(JsonWriter& json, const ConversionPreview& preview) {
  json.BeginObject();
  WriteText(json, "file", preview.conversion->input);
  WriteText(json, "output", preview.conversion->output);
  WriteText(json, "status", NameOf(preview.conversion->status));
  json.Key("markers");
  json.BeginArray(Layout::kLines);
  for (const MarkerFate& marker : preview.markers) WriteMarker(json, marker);
  json.EndArray();
  json.Key("names_taken");
  WriteTaken(json, preview.conversion->match);
  json.Key("findings");
  WriteFindings(json, preview.conversion->report);
  json.EndObject();
}

}  // namespace

std::vector<ConversionPreview> PreviewConversions(std::vector<Conversion>& conversions,
                                                  const ConversionOrder& order) {
  const Previewer previewer(order);
  std::vector<ConversionPreview> previews;
  previews.reserve(conversions.size());
  for (Conversion& conversion : conversions) {
    StopIfInterrupted();
    previews.push_back(previewer.Preview(conversion));
  }
  return previews;
}

void PrintPreviewPage(const std::vector<ConversionPreview>& previews, std::ostream& out) {
  for (const ConversionPreview& preview : previews) {
    out << Printable(preview.conversion->input) << " -> " << Printable(preview.conversion->output)
        << " (" << NameOf(preview.conversion->status) << ")\n";
    if (preview.frames) out << "  take    " << FramesText(*preview.frames) << '\n';
    for (const MarkerFate& marker : preview.markers) PrintMarker(marker, out);
  }
}

void PrintPreviewJson(const std::vector<ConversionPreview>& previews,
                      const std::optional<orvane::FileReport>& mapping, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("files");
  json.BeginArray(Layout::kLines);
  for (const ConversionPreview& preview : previews) WritePreview(json, preview);
  json.EndArray();
  json.Key("mapping");
  WriteReport(json, mapping);
  json.EndObject();
}

}  // namespace cli
