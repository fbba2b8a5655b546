#include "cli/convert/conversion_batch.h"

#include <algorithm>
#include <cassert>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "cli/common/input.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/reading_memory.h"
#include "cli/common/scratch_copy.h"
#include "cli/convert/batch_log_reader.h"
#include "cli/convert/changed_input.h"
#include "cli/convert/conversion_plan.h"
#include "cli/convert/trc_worth.h"
#include "formats/text/files.h"
#include "inspect/summary/bvk_summary.h"
#include "platform/input_file.h"
#include "platform/interrupt.h"
#include "platform/output_file.h"
#include "platform/path_text.h"
#include "platform/scratch_folder.h"

namespace cli {
namespace {

using orvane::BvkSummary;
using orvane::CountBvkDropouts;
using orvane::MarkerNaming;
using orvane::SummarizeBvk;

namespace fs = std::filesystem;

constexpr char kCopiesFolder[] = "/copies";  // of inputs
constexpr char kMadeMapping[] = "/mapping.mnm";
constexpr char kNamesFolder[] = "/names";  // one folder for each output, named like it

// A file of the plug-in's, whatever line ends the system has; empty when it cannot be read.
std::string ReadText(const std::string& path) {
  std::ifstream file(platform::PathOf(path));
  return {std::istreambuf_iterator<char>(file), {}};
}

class BatchConversion {
 public:
  BatchConversion(const ConversionOrder& order, std::vector<Conversion> conversions)
      : order_(order), result_{std::move(conversions), ""} {}

  ConvertedBatch Run() {
    ConvertAll();
    return std::move(result_);
  }

 private:
  void ConvertAll() {
    platform::HoldInterrupts();  // what is unfinished has to be put away
    for (const Conversion& conversion : result_.conversions) ExpectReading(conversion.source);
    LoadMapping(order_.mapping, naming_);
    for (Conversion& conversion : result_.conversions) {
      if (!platform::Interrupted()) Judge(conversion);
    }
    while (!Waiting().empty() && !platform::Interrupted()) ConvertNext();
    for (Conversion* conversion : Waiting()) conversion->status = ConversionStatus::kInterrupted;
  }

  // What is delivered of a file depends on no other. One that the reader refuses before its rates
  // has a run of the plug-in begin.
  void Judge(Conversion& conversion) {
    const auto [rate, written] = JudgeInput(conversion, order_, naming_);
    if (written) written_.emplace(&conversion, *written);
    if (!order_.keep_broken || conversion.status != ConversionStatus::kPlanned) return;
    if (rate == RateSource::kOthersShort) RefuseForeignRate(conversion);
    if (rate == RateSource::kOthers) first_in_run_.insert(&conversion);
  }

  std::vector<Conversion*> Waiting() {
    std::vector<Conversion*> waiting;
    for (Conversion& conversion : result_.conversions) {
      if (conversion.status == ConversionStatus::kPlanned) waiting.push_back(&conversion);
    }
    return waiting;
  }

  static void Settle(Conversion& conversion, ConversionStatus status, const std::string& subject,
                     const std::string& text, const std::string& advice = "") {
    conversion.status = status;
    conversion.errors.push_back({subject, text, advice});
  }

  // Each run of the plug-in writes to a folder of its own.
  void ConvertNext() {
    const std::vector<Conversion*> waiting = Waiting();
    const platform::ScratchFolder scratch(PlaceFor(*waiting.front()));
    if (scratch.Error().empty()) {
      Convert(NextRun(waiting, scratch), scratch);
    } else {
      for (Conversion* conversion : waiting) {
        Settle(*conversion, ConversionStatus::kFailed, PlaceFor(*conversion), scratch.Error());
      }
    }
  }

  // The folder that the output is to lie in, and on whose disk it is made.
  std::string PlaceFor(const Conversion& conversion) const {
    return platform::OutputFile(conversion.output, order_.replace).Folder();
  }

  // That folder where a symbolic link leads to it, perhaps on another disk; else empty.
  std::string LinkedPlaceFor(const Conversion& conversion) const {
    const std::string place = PlaceFor(conversion);
    return place == FolderOf(conversion.output) ? "" : place;
  }

  // As many of the first of `waiting` as the plug-in may convert in one run: it begins with those
  // that have to, one mapping names their markers, and their outputs lie on one disk and have files
  // of their own in `scratch`.
  std::vector<Conversion*> NextRun(std::vector<Conversion*> waiting,
                                   const platform::ScratchFolder& scratch) const {
    const auto last =
        std::find_if(waiting.begin(), waiting.end(), [&](const Conversion* conversion) {
          const bool has_to_begin = first_in_run_.count(conversion) != 0;
          return (has_to_begin && conversion != waiting.front()) ||
                 LinkedPlaceFor(*conversion) != LinkedPlaceFor(*waiting.front()) ||
                 conversion->match.taken != waiting.front()->match.taken ||
                 IsTaken(*conversion, scratch);
        });
    waiting.erase(last, waiting.end());
    return waiting;
  }

  // Whether another output has the name of this one's in `scratch`, of which its file system is
  // asked: it may take other names for the same.
  static bool IsTaken(const Conversion& conversion, const platform::ScratchFolder& scratch) {
    const fs::path names = platform::PathOf(scratch.Path() + kNamesFolder);
    std::error_code error;
    return !fs::create_directories(names / NameOfOutput(conversion), error) && !error;
  }

  // A file that vanishes before the plug-in's dialog has chosen it cannot be chosen.
  void Convert(std::vector<Conversion*> run, const platform::ScratchFolder& scratch) {
    CopyInputs(run, scratch);
    if (run.empty()) return;
    try {
      UsePanel(run, scratch);
    } catch (const host::ScriptError&) {
      const std::size_t waiting = Waiting().size();
      for (Conversion* conversion : run) RequireInput(*conversion);
      if (Waiting().size() == waiting) throw;
    }
  }

  // Makes the copies of inputs that are to be changed before. What cannot be is settled, and no
  // more in `run`.
  void CopyInputs(std::vector<Conversion*>& run, const platform::ScratchFolder& scratch) const {
    std::erase_if(run, [this, &scratch](Conversion* conversion) {
      if (!IsChanged(*conversion, order_)) return false;
      try {
        const std::string changed = ChangedBytes(*conversion, order_);
        const std::string copy = SourceOf(*conversion, scratch);
        std::error_code error;  // is met again by whoever writes into it
        fs::create_directory(platform::PathOf(copy).parent_path(), error);
        WriteCopy(copy, conversion->input, changed);
        return false;
      } catch (const Failure& failure) {
        SettleUnchanged(*conversion, failure);
        return true;
      }
    });
  }

  // What the plug-in reads: the input, or the copy of it.
  std::string SourceOf(const Conversion& conversion, const platform::ScratchFolder& scratch) const {
    if (!IsChanged(conversion, order_)) return conversion.source;
    const fs::path name = platform::PathOf(conversion.source).filename();
    return PathForPanel(platform::TextOf(platform::PathOf(scratch.Path() + kCopiesFolder) / name));
  }

  // `log` with the user's own file where a copy is named.
  std::string WithInput(std::string log, const Conversion& conversion,
                        const platform::ScratchFolder& scratch) const {
    const std::string copy = SourceOf(conversion, scratch);
    const std::string& name = conversion.LoggedName();
    if (copy == name) return log;
    for (std::size_t at = log.find(copy); at != std::string::npos;
         at = log.find(copy, at + name.size())) {
      log.replace(at, copy.size(), name);
    }
    return log;
  }

  void UsePanel(const std::vector<Conversion*>& run, const platform::ScratchFolder& scratch) {
    const std::string mapping = MappingFile(run.front()->match, scratch);
    if (mapping.empty()) {
      for (Conversion* conversion : run) {
        Settle(*conversion, ConversionStatus::kFailed, conversion->output,
               "The mapping for its markers could not be written", "Is the disk full?");
      }
      return;
    }
    PluginSession session(order_.module, SettingsSource::kFresh);
    ConverterPanel panel(session, {mapping, !order_.mapping.empty(), order_.offset});
    if (order_.single) {
      ConvertSingle(panel, *run.front(), scratch);
    } else {
      ConvertTogether(panel, run, scratch);
    }
  }

  // The panel needs a mapping file even when it is not to use one, and one of its own for markers
  // that are taken for others. Returns an empty text when that cannot be written.
  std::string MappingFile(const orvane::NameMatch& match,
                          const platform::ScratchFolder& scratch) const {
    const bool is_users = !order_.mapping.empty();
    if (is_users && match.taken.empty()) return PathForPanel(order_.mapping);
    const std::string path = scratch.Path() + kMadeMapping;
    std::ofstream file = orvane::CreateFileForBytes(path);
    if (is_users) file << naming_.MappingFor(match);
    file.close();
    return file.fail() && is_users ? "" : path;
  }

  void ConvertSingle(ConverterPanel& panel, Conversion& conversion,
                     const platform::ScratchFolder& scratch) {
    const std::string made = MadeFile(conversion, scratch);
    panel.ConvertOne(SourceOf(conversion, scratch), made);
    if (platform::Interrupted()) return;
    const std::vector<std::string> messages = panel.TakeMessages();
    Finish(conversion, made, messages.empty() ? "" : ReaderMessage(messages.front()));
  }

  // The plug-in gives a batch up at an output that it cannot create. The files behind that wait for
  // the next run.
  void ConvertTogether(ConverterPanel& panel, const std::vector<Conversion*>& run,
                       const platform::ScratchFolder& scratch) {
    std::vector<std::string> sources;
    sources.reserve(run.size());
    for (const Conversion* conversion : run) sources.push_back(SourceOf(*conversion, scratch));
    panel.ConvertBatch(sources, scratch.Path());
    const std::string log = ReadText(LogIn(scratch.Path()));
    const std::vector<LoggedFile> files = ReadBatchLog(log, sources);
    std::size_t told = 0;
    for (std::size_t at = 0; at < files.size(); ++at) {
      Finish(*run[at], MadeFile(*run[at], scratch), files[at].message);
      result_.log += WithInput(log.substr(told, files[at].end - told), *run[at], scratch) +
                     Correction(*run[at]);
      told = files[at].end;
    }
    result_.log += log.substr(told);
    const auto unlogged = run.begin() + static_cast<std::ptrdiff_t>(files.size());
    if (!platform::Interrupted()) {
      GiveUpOn({unlogged, run.end()}, scratch, panel.TakeMessages());
    }
  }

  // The line that the log lacks when the plug-in took a file for done that did not come about.
  static std::string Correction(const Conversion& conversion) {
    if (conversion.delivered || conversion.status == ConversionStatus::kBroken) return "";
    return "orvane: " + Printable(conversion.LoggedName()) +
           " was not converted: " + conversion.errors.back().text + "\n";
  }

  // Settles the first of `unlogged` that the plug-in has not made, and those before, which are
  // missing from the log alone.
  static void GiveUpOn(const std::vector<Conversion*>& unlogged,
                       const platform::ScratchFolder& scratch,
                       const std::vector<std::string>& messages) {
    for (Conversion* conversion : unlogged) {
      std::error_code error;  // such as that a path is too long
      if (!fs::exists(platform::PathOf(MadeFile(*conversion, scratch)), error)) {
        Settle(*conversion, ConversionStatus::kFailed, conversion->output,
               messages.empty() ? "The plug-in could not create the file" : messages.front());
        return;
      }
      Settle(*conversion, ConversionStatus::kFailed, conversion->output,
             "The plug-in could not write all of its log", "Is the disk full?");
    }
  }

  static fs::path NameOfOutput(const Conversion& conversion) {
    return platform::PathOf(conversion.output).filename();
  }

  // Where the plug-in writes the output.
  static std::string MadeFile(const Conversion& conversion,
                              const platform::ScratchFolder& scratch) {
    return platform::TextOf(platform::PathOf(scratch.Path()) / NameOfOutput(conversion));
  }

  // Settles a file that the plug-in has handled, and delivers what it has `made` of it; `message`
  // is the reader's.
  void Finish(Conversion& conversion, const std::string& made, const std::string& message) {
    if (!message.empty()) {
      Settle(conversion, ConversionStatus::kBroken, conversion.input, message);
      if (!order_.keep_broken || !platform::WhyUnreadable(conversion.source).empty()) return;
    }
    std::optional<WrittenCounts> counts;
    try {
      counts = ReadBack(conversion.output, [&] { return CountMade(conversion, made); });
    } catch (const Failure& failure) {
      conversion.status = ConversionStatus::kFailed;
      conversion.errors = failure.complaints;
      return;
    }
    if (!counts) {
      Settle(conversion, ConversionStatus::kFailed, conversion.output,
             "The plug-in could not write all of the file", "Is the disk full?");
      return;
    }
    Deliver(conversion, made);
    if (conversion.delivered) Describe(conversion, *counts);
  }

  // What is in the file that was made; nothing when it is not whole. Its dropouts are known where
  // all of the input was looked at.
  std::optional<WrittenCounts> CountMade(const Conversion& conversion,
                                         const std::string& made) const {
    const std::optional<BvkSummary> summary = SummarizeBvk(made);
    if (!summary) return std::nullopt;
    const auto known = written_.find(&conversion);
    if (known != written_.end() && known->second.frames == summary->frames &&
        known->second.markers == summary->markers) {
      return known->second;
    }
    return WrittenCounts{summary->frames, summary->markers, CountBvkDropouts(made)};
  }

  void Deliver(Conversion& conversion, const std::string& made) {
    platform::OutputFile file(conversion.output, order_.replace);
    std::string error = file.TakeOver(made);
    if (error.empty()) error = file.Deliver();
    if (error.empty()) {
      conversion.delivered = true;
      if (conversion.status == ConversionStatus::kPlanned) {
        const bool is_wanted = !conversion.is_empty || order_.allow_empty;
        conversion.status = is_wanted ? ConversionStatus::kConverted : ConversionStatus::kEmpty;
      }
      return;
    }
    conversion.status = file.IsTaken() ? ConversionStatus::kExists : ConversionStatus::kFailed;
    conversion.errors.push_back(ComplainAboutOutput(conversion.output, file, error));
  }

  // The markers of the input have been counted before.
  static void Describe(Conversion& conversion, const WrittenCounts& counts) {
    conversion.frames = counts.frames;
    conversion.markers_kept = counts.markers;
    conversion.markers_dropped =
        std::max<std::int64_t>(conversion.markers_dropped - counts.markers, 0);
    conversion.dropouts = counts.dropouts;
  }

  const ConversionOrder& order_;
  MarkerNaming naming_;
  ConvertedBatch result_;
  std::set<const Conversion*> first_in_run_;
  std::map<const Conversion*, WrittenCounts> written_;  // as far as it is known before
};

}  // namespace

ConvertedBatch ConvertBatch(const ConversionOrder& order, std::vector<Conversion> conversions) {
  assert(!conversions.empty());
  assert(std::all_of(conversions.begin(), conversions.end(), [](const Conversion& each) {
    return each.status == ConversionStatus::kPlanned;
  }));
  return BatchConversion(order, std::move(conversions)).Run();
}

}  // namespace cli
