#include "cli/conversion_batch.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

#include "cli/batch_log_reader.h"
#include "cli/bvk_summary.h"
#include "cli/conversion_plan.h"
#include "cli/trc_worth.h"
#include "platform/interrupt.h"
#include "platform/output_file.h"
#include "platform/path_text.h"
#include "platform/scratch_folder.h"
#include "plugin/text/files.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

constexpr char kLogName[] = "/ConvertBVKLog.txt";
constexpr char kEmptyMapping[] = "/nothing.mnm";

// A file of the plug-in's, whatever line ends the system has; empty when it cannot be read.
std::string ReadText(const std::string& path) {
  std::ifstream file(platform::PathOf(path));
  return {std::istreambuf_iterator<char>(file), {}};
}

class BatchConversion {
 public:
  BatchConversion(const ConversionOrder& order, std::vector<Conversion> conversions)
      : order_(order),
        result_{std::move(conversions), ""},
        scratch_(FolderOf(result_.conversions.front().output)) {}

  ConvertedBatch Run() {
    if (!scratch_.Error().empty()) {
      FailAll(scratch_.Error());
      return std::move(result_);
    }
    platform::HoldInterrupts();  // the folder has to be put away
    const MarkerNaming naming(order_.mapping);
    for (Conversion& conversion : result_.conversions) JudgeInput(conversion, naming);
    while (!Waiting().empty() && !platform::Interrupted()) Convert(Waiting());
    for (Conversion* conversion : Waiting()) conversion->status = ConversionStatus::kInterrupted;
    return std::move(result_);
  }

 private:
  std::vector<Conversion*> Waiting() {
    std::vector<Conversion*> waiting;
    for (Conversion& conversion : result_.conversions) {
      if (conversion.status == ConversionStatus::kPlanned) waiting.push_back(&conversion);
    }
    return waiting;
  }

  void FailAll(const std::string& reason) {
    for (Conversion& conversion : result_.conversions) {
      Settle(conversion, ConversionStatus::kFailed, FolderOf(conversion.output), reason);
    }
  }

  static void Settle(Conversion& conversion, ConversionStatus status, const std::string& subject,
                     const std::string& text, const std::string& advice = "") {
    conversion.status = status;
    conversion.errors.push_back({subject, text, advice});
  }

  // A file that vanishes before the plug-in's dialog has chosen it cannot be chosen.
  void Convert(const std::vector<Conversion*>& waiting) {
    try {
      UsePanel(waiting);
    } catch (const host::ScriptError&) {
      for (Conversion* conversion : waiting) RequireInput(*conversion);
      if (Waiting().size() == waiting.size()) throw;
    }
  }

  void UsePanel(const std::vector<Conversion*>& waiting) {
    PluginSession session(order_.module, Settings::kFresh);
    ConverterPanel panel(session, {MappingFile(), !order_.mapping.empty(), order_.offset});
    if (order_.single) {
      ConvertSingle(panel, *waiting.front());
    } else {
      ConvertTogether(panel, waiting);
    }
  }

  // The panel needs a mapping file even when it is not to use one.
  std::string MappingFile() const {
    if (!order_.mapping.empty()) return PathForPanel(order_.mapping);
    const std::string path = scratch_.Path() + kEmptyMapping;
    orvane::CreateFileForBytes(path);
    return path;
  }

  void ConvertSingle(ConverterPanel& panel, Conversion& conversion) {
    panel.ConvertOne(conversion.source, MadeFile(conversion));
    if (platform::Interrupted()) return;
    const std::vector<std::string> messages = panel.TakeMessages();
    if (messages.empty()) {
      Finish(conversion, "");
    } else {
      Finish(conversion, ReaderMessage(messages.front()));
    }
  }

  // The plug-in gives a batch up at an output that it cannot create. The files behind that are its
  // next batch.
  void ConvertTogether(ConverterPanel& panel, std::vector<Conversion*> waiting) {
    while (!waiting.empty() && !platform::Interrupted()) {
      std::vector<std::string> sources;
      sources.reserve(waiting.size());
      for (const Conversion* conversion : waiting) sources.push_back(conversion->source);
      panel.ConvertBatch(sources, scratch_.Path());
      const std::string log = ReadText(scratch_.Path() + kLogName);
      result_.log += log;
      const std::vector<LoggedFile> files = ReadBatchLog(log, sources);
      for (std::size_t at = 0; at < files.size(); ++at) Finish(*waiting[at], files[at].message);
      waiting.erase(waiting.begin(), waiting.begin() + static_cast<std::ptrdiff_t>(files.size()));
      if (waiting.empty() || platform::Interrupted()) return;
      GiveUpOn(*waiting.front(), panel.TakeMessages());
      waiting.erase(waiting.begin());
    }
  }

  static void GiveUpOn(Conversion& conversion, const std::vector<std::string>& messages) {
    Settle(conversion, ConversionStatus::kFailed, conversion.output,
           messages.empty() ? "The plug-in could not create the file" : messages.front());
  }

  // Where the plug-in writes the output.
  std::string MadeFile(const Conversion& conversion) const {
    return platform::TextOf(platform::PathOf(scratch_.Path()) /
                            platform::PathOf(conversion.output).filename());
  }

  // Settles and delivers a file that the plug-in has handled; `message` is the reader's.
  void Finish(Conversion& conversion, const std::string& message) {
    if (!message.empty()) {
      Settle(conversion, ConversionStatus::kBroken, conversion.input, message);
      conversion.warnings.clear();
      if (!order_.keep_broken) return;
    }
    const std::string made = MadeFile(conversion);
    const std::optional<BvkSummary> summary = SummarizeBvk(made);
    if (!summary) {
      Settle(conversion, ConversionStatus::kFailed, conversion.output,
             "The plug-in could not write all of the file", "Is the disk full?");
      return;
    }
    Deliver(conversion, made);
    if (conversion.delivered) Describe(conversion, *summary);
  }

  void Deliver(Conversion& conversion, const std::string& made) {
    platform::OutputFile file(conversion.output, order_.replace);
    std::string error = file.TakeOver(made);
    if (error.empty()) error = file.Deliver();
    if (error.empty()) {
      conversion.delivered = true;
      if (conversion.status == ConversionStatus::kPlanned) {
        conversion.status = ConversionStatus::kConverted;
      }
      return;
    }
    const bool is_taken = file.IsTaken();
    Settle(conversion, is_taken ? ConversionStatus::kExists : ConversionStatus::kFailed,
           conversion.output, error, is_taken ? "It is kept; --force replaces it." : "");
  }

  // The markers of the input have been counted before.
  static void Describe(Conversion& conversion, const BvkSummary& summary) {
    conversion.frames = summary.frames;
    conversion.markers_kept = summary.markers;
    conversion.markers_dropped =
        std::max<std::int64_t>(conversion.markers_dropped - summary.markers, 0);
    conversion.dropouts = summary.dropouts;
  }

  const ConversionOrder& order_;
  ConvertedBatch result_;
  platform::ScratchFolder scratch_;
};

}  // namespace

ConvertedBatch ConvertBatch(const ConversionOrder& order, std::vector<Conversion> conversions) {
  return BatchConversion(order, std::move(conversions)).Run();
}

}  // namespace cli
