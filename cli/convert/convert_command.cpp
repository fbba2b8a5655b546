#include "cli/convert/convert_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <limits>
#include <map>
#include <memory>
#include <string_view>

#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/messages.h"
#include "cli/common/outputs.h"
#include "cli/common/progress_line.h"
#include "cli/common/report.h"
#include "cli/common/taken_names.h"
#include "cli/convert/conversion_batch.h"
#include "cli/convert/conversion_plan.h"
#include "cli/convert/conversion_report.h"
#include "cli/convert/convert_flags.h"
#include "cli/convert/mapping_preview.h"
#include "cli/convert/packed_conversions.h"
#include "formats/text/numbers.h"
#include "inspect/check/mnm_check.h"
#include "platform/input_file.h"
#include "platform/interrupt.h"
#include "platform/output_file.h"
#include "platform/path_text.h"
#include "platform/scratch_folder.h"
#include "platform/side_by_side.h"
#include "platform/terminal.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::FileReport;

// Those of files, and of mappings, that leave no marker.
constexpr const char* kCodesOfEmpty[] = {"mnm-entries-missing", "mnm-fits-nothing",
                                         "trc-markers-missing"};

// Whether the panel takes `text` for a number; it passes over what is none without a word.
bool IsOffset(const std::string& text) {
  const char* const last = text.data() + text.size();
  const orvane::LeadingDouble number = orvane::ReadDouble(text.data(), last);
  return !text.empty() && number.end == last &&
         std::abs(number.value) <= double{std::numeric_limits<float>::max()};
}

// The texts between the commas of `text`, if they are three numbers.
std::optional<OffsetWish> ReadOffset(const std::string& text) {
  std::vector<std::string> numbers(1);
  for (const char character : text) {
    if (character == ',') {
      numbers.emplace_back();
    } else {
      numbers.back() += character;
    }
  }
  if (numbers.size() != 3 || !std::all_of(numbers.begin(), numbers.end(), IsOffset)) {
    return std::nullopt;
  }
  return OffsetWish{numbers[0], numbers[1], numbers[2], true};
}

Failure WrongUsage(const std::string& flag, const std::string& text) {
  return {ExitStatus::kWrongUsage, {{flag, text, ""}}};
}

// The report on an input, without what an error of its conversion says.
FileReport WithoutErrorsOf(const Conversion& conversion) {
  FileReport report = conversion.report;
  for (const std::string& code : conversion.told) report = report.Without(code);
  return report;
}

// Whether nothing new has taken the place of the output that was there.
bool HasOlderOutput(const Conversion& conversion) {
  std::error_code error;  // such as that a path is too long
  return !conversion.delivered && conversion.status != ConversionStatus::kFailed &&
         std::filesystem::is_regular_file(platform::PathOf(conversion.output), error);
}

class Converting {
 public:
  explicit Converting(const ConvertArguments& arguments)
      : arguments_(arguments),
        files_(arguments.inputs, arguments.stream_name),
        wishes_(arguments.output),
        order_(arguments.order) {}

  ExitStatus Run() {
    platform::CatchInterrupts();
    Prepare();
    conversions_ = PlanConversions(arguments_.inputs, wishes_, files_);
    for (Conversion& conversion : conversions_) conversion.z_up = arguments_.z_up;
    RequireReportApart();
    CheckMapping();
    if (arguments_.dry_run) return ShowPreview();
    RequireFolder(arguments_.output.folder);
    CarryOut(MakeBatches(conversions_, arguments_.jobs));
    DeliverLogs();
    Complain();
    if (arguments_.json) {
      PrintConversionJson(conversions_, delivered_logs_, mapping_report_, std::cout);
    } else if (!arguments_.quiet) {
      PrintConversionPage(conversions_, mapping_report_, std::cout);
    }
    WriteReports();
    return Status();
  }

 private:
  void Prepare() {
    RequireNoStandardInput(order_.mapping, "A mapping");
    if (!arguments_.output.file.empty() && arguments_.inputs.size() > 1) {
      throw WrongUsage("--output", "is for one file; --output-dir takes any number");
    }
    if (!arguments_.offset.empty()) {
      order_.offset = ReadOffset(arguments_.offset);
      if (!order_.offset) throw WrongUsage("--offset", "takes three numbers, such as 0,0,12.5");
      order_.offset->in_trc_space = arguments_.offset_in_trc_space;
    }
    AllowEmpty();
    order_.replace = arguments_.output.replace;
    order_.report.only_warnings = arguments_.quiet;
    order_.report.dry_run = arguments_.dry_run;
    // The plug-in makes nothing of a broken file that is alone.
    order_.single = arguments_.inputs.size() == 1 && !order_.keep_broken;
    wishes_.mapping = order_.mapping;
    wishes_.logged = !order_.single;
  }

  // A strict user's files may be without markers then, too.
  void AllowEmpty() {
    std::vector<std::string>& allowed = order_.report.allowed;
    order_.allow_empty = std::erase(allowed, kAllowEmpty) > 0;
    if (!allowed.empty() && !order_.report.strict) {
      throw WrongUsage("--allow", "lets codes pass that --strict would refuse; it is missing");
    }
    if (!order_.allow_empty) return;
    allowed.insert(allowed.end(), std::begin(kCodesOfEmpty), std::end(kCodesOfEmpty));
  }

  void RequireReportApart() const {
    std::vector<std::string> inputs;
    std::vector<std::string> outputs;
    if (!order_.mapping.empty()) inputs.push_back(order_.mapping);
    for (const Conversion& conversion : conversions_) {
      inputs.push_back(conversion.source);
      outputs.push_back(conversion.output);
      if (wishes_.logged) outputs.push_back(LogIn(FolderOf(conversion.output)));
    }
    cli::RequireReportApart(order_.report, inputs, outputs);
  }

  void CheckMapping() {
    if (order_.mapping.empty()) return;
    const std::string bytes = FileBytes(order_.mapping);
    if (order_.report.omitted) return;
    orvane::ActionOptions options;
    options.markers = order_.NeedsMarkers();
    mapping_report_ =
        ReportOn(orvane::CheckMapping(order_.mapping, bytes), Action::kConvert, options);
    const bool is_mapping = mapping_report_->Count(orvane::FindingSeverity::kError) == 0;
    if (is_mapping && !Forbids(order_.report, *mapping_report_)) return;
    Tell(*mapping_report_, order_.report);
    WriteReportFile({*mapping_report_}, order_.report);
    TellOfOlderOutputs();
    if (!is_mapping) throw Failure{};  // that has been said
    throw ForbiddenByStrict(order_.report, *mapping_report_);
  }

  static void RequireFolder(const std::string& folder) {
    if (folder.empty()) return;
    const platform::ScratchFolder attempt(folder);
    if (attempt.Error().empty()) return;
    throw Failure{ExitStatus::kInputOutput, {{folder, attempt.Error(), ""}}};
  }

  ExitStatus ShowPreview() {
    const auto previews = PreviewConversions(conversions_, order_);
    Complain();
    if (arguments_.json) {
      PrintPreviewJson(previews, mapping_report_, std::cout);
    } else {
      PrintPreviewPage(previews, std::cout);
    }
    WriteReports();
    return Status();
  }

  // What a batch comes to, as bytes: the log's length, the log, and the conversions.
  std::string Convert(const Batch& batch) const {
    std::vector<Conversion> conversions;
    for (const std::size_t index : batch) conversions.push_back(conversions_[index]);
    const ConvertedBatch converted = ConvertBatch(order_, std::move(conversions));
    return orvane::FormatInt(static_cast<std::int64_t>(converted.log.size())) + '\n' +
           converted.log + PackConversions(converted.conversions);
  }

  void TakeOver(const Batch& batch, std::string_view result) {
    const std::size_t line_end = result.find('\n');
    const auto log_size = static_cast<std::size_t>(orvane::ParseInt(result.substr(0, line_end)));
    result.remove_prefix(line_end + 1);
    const std::string_view log = result.substr(0, log_size);
    std::vector<Conversion> conversions = UnpackConversions(result.substr(log_size));
    for (std::size_t at = 0; at < batch.size(); ++at) {
      conversions_[batch[at]] = std::move(conversions[at]);
    }
    if (!log.empty()) AddLog(FolderOf(conversions_[batch.front()].output), log);
  }

  void AddLog(const std::string& folder, std::string_view log) {
    const auto known = std::find_if(logs_.begin(), logs_.end(),
                                    [&folder](const auto& one) { return one.first == folder; });
    if (known == logs_.end()) {
      logs_.emplace_back(folder, log);
    } else {
      known->second += log;
    }
  }

  void CarryOut(const std::vector<Batch>& batches) {
    ProgressLine line("Converting", !arguments_.quiet && platform::ErrorIsTerminal());
    if (batches.size() == 1) return TakeOver(batches.front(), Convert(batches.front()));
    std::size_t ended = 0;
    platform::SideBySide pieces;
    pieces.work = [this, &batches](std::size_t index) { return Convert(batches[index]); };
    pieces.ended = [&line, &ended, &batches](std::size_t) {
      line.Show(static_cast<int>(100 * ++ended / batches.size()));
    };
    const auto results = platform::RunSideBySide(batches.size(), arguments_.jobs, pieces);
    for (std::size_t at = 0; at < batches.size(); ++at) {
      if (results[at]) {
        TakeOver(batches[at], *results[at]);
      } else {
        Abandon(batches[at]);
      }
    }
  }

  // A batch that was not begun, or whose process has died.
  void Abandon(const Batch& batch) {
    // A new folder puts away what the process has left.
    const platform::ScratchFolder attempt(FolderOf(conversions_[batch.front()].output));
    for (const std::size_t index : batch) {
      Conversion& conversion = conversions_[index];
      conversion.status = ConversionStatus::kInterrupted;
      if (platform::Interrupted()) continue;
      conversion.status = ConversionStatus::kFailed;
      conversion.errors.push_back(
          {conversion.input, "The process that was to convert it has ended before", ""});
    }
  }

  void DeliverLogs() {
    for (const auto& [folder, log] : logs_) {
      const std::string path = LogIn(folder);
      platform::OutputFile file(path, order_.replace);
      std::string error = file.WhyImpossible();
      if (error.empty()) error = file.Write(log);
      if (error.empty()) error = file.Deliver();
      if (error.empty()) {
        delivered_logs_.push_back(path);
      } else {
        Print(Severity::kWarning, ComplainAboutOutput(path, file, error));
      }
    }
  }

  // What is odd in the mapping, and in each input that was looked at, as `report_of` has it.
  template <typename ReportOf>
  std::vector<FileReport> Reports(const ReportOf& report_of) const {
    std::vector<FileReport> reports;
    if (mapping_report_) reports.push_back(*mapping_report_);
    for (const Conversion& conversion : conversions_) {
      if (!conversion.report.file.empty()) reports.push_back(report_of(conversion));
    }
    return reports;
  }

  void WriteReports() const {
    WriteReportFile(Reports([](const Conversion& conversion) { return conversion.report; }),
                    order_.report);
  }

  // What is told of several files stands there once.
  void TellOfTaken() const {
    if (arguments_.quiet) return;
    std::vector<const Conversion*> firsts;
    std::map<std::string, std::size_t> files;  // by what is told
    for (const Conversion& conversion : conversions_) {
      const std::string taken = DescribeTaken(conversion.match);
      if (!taken.empty() && ++files[taken] == 1) firsts.push_back(&conversion);
    }
    for (const Conversion* first : firsts) {
      cli::TellOfTaken(first->input, first->match, files[DescribeTaken(first->match)]);
    }
  }

  void Complain() const {
    TellOfTaken();
    TellAll(Reports(WithoutErrorsOf), order_.report);
    for (const Conversion& conversion : conversions_) {
      const std::vector<std::string_view> codes(conversion.told.begin(), conversion.told.end());
      for (const Complaint& error : conversion.errors) {
        Print(Severity::kError, WithCode(error, conversion.report, codes));
      }
      if (conversion.status == ConversionStatus::kBroken && conversion.delivered) {
        Print(Severity::kWarning,
              {conversion.output,
               "delivered all the same, for --keep-broken: " +
                   orvane::CountOf(static_cast<std::size_t>(conversion.frames), "frame") + " of " +
                   orvane::CountOf(static_cast<std::size_t>(conversion.markers_kept), "marker"),
               ""});
      }
    }
    TellOfOlderOutputs();
    if (platform::Interrupted()) {
      Print(Severity::kError, {"", "interrupted; what was converted stays", ""});
    }
  }

  // A user who has wished for others could take them for new ones.
  void TellOfOlderOutputs() const {
    if (arguments_.dry_run || !order_.replace) return;
    std::vector<std::string> older;
    for (const Conversion& conversion : conversions_) {
      if (HasOlderOutput(conversion)) older.push_back(conversion.output);
    }
    if (older.empty()) return;
    const std::string text = older.size() == 1
                                 ? "is still the older one"
                                 : "is the first of " + orvane::CountOf(older.size(), "output") +
                                       " that are still the older ones";
    Print(Severity::kWarning, {older.front(), text, ""});
  }

  // That of the worst file.
  ExitStatus Status() const {
    ExitStatus status = ExitStatus::kDone;
    for (const Conversion& conversion : conversions_) {
      status = std::max(status, ExitStatusOf(conversion.status));
    }
    return status;
  }

  const ConvertArguments& arguments_;
  InputFiles files_;
  OutputWishes wishes_;
  ConversionOrder order_;
  std::vector<Conversion> conversions_;
  std::vector<std::pair<std::string, std::string>> logs_;  // by folder, in the order of the inputs
  std::vector<std::string> delivered_logs_;
  std::optional<FileReport> mapping_report_;
};

}  // namespace

void AddConvertCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<ConvertArguments>();
  CLI::App* verb = app.add_subcommand("convert", "Convert TRC marker files to BVK files");
  AddConvertFlags(*verb, *arguments);
  verb->callback(
      [arguments, &work] { work = [arguments] { return Converting(*arguments).Run(); }; });
}

}  // namespace cli
