#include "cli/rewrite/rewrite_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <optional>

#include "cli/common/input_files.h"
#include "cli/common/input_source.h"
#include "cli/common/outputs.h"
#include "cli/common/reading_memory.h"
#include "cli/common/report.h"
#include "cli/common/told_reading.h"
#include "cli/rewrite/edits.h"
#include "cli/rewrite/output_formats.h"
#include "cli/rewrite/rewrite_flags.h"
#include "cli/rewrite/rewrite_order.h"
#include "cli/rewrite/rewrite_output.h"
#include "cli/rewrite/rewrite_proportion.h"
#include "cli/rewrite/rewrite_summary.h"
#include "cli/rewrite/written_words.h"
#include "formats/text/numbers.h"
#include "inspect/report/cut_check.h"
#include "inspect/summary/first_time.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::Action;
using orvane::FileReport;
using orvane::HtrDocument;
using orvane::TRCDocument;

constexpr auto kError = orvane::FindingSeverity::kError;

// What findings mean where some frames alone are taken, and heights are seen to. Of what is left
// out no gaps are told: edits tell those of the rest.
Purpose PurposeOf(const RewriteOrder& order, OutputFormat format) {
  Purpose purpose{Action::kRewrite, {}, {}, ConsequencesIn(format)};
  if (order.cut) purpose.options.frames = orvane::AskedFrames::kHeld;
  if (order.up) purpose.settled = {"htr-axis-ignored", "htr-up-axis", "trc-up-axis"};
  if (order.start_time) purpose.settled.emplace_back("trc-time-unreadable");
  if (TakesPart(order)) {
    purpose.settled.insert(purpose.settled.end(), {"trc-marker-gaps", "trc-marker-never-seen"});
  }
  return purpose;
}

FileReport ReadInput(HtrDocument& document, const InputFile& file, const ReportManner& manner,
                     const Purpose& purpose) {
  return ReadAndTell(document, file, Motion::kRead, manner, {}, {}, purpose);
}
FileReport ReadInput(TRCDocument& document, const InputFile& file, const ReportManner& manner,
                     const Purpose& purpose) {
  return ReadAndTell(document, file, manner, {}, {}, purpose);
}

orvane::RateTexts RatesOf(const HtrDocument& /*document*/, const InputFile& file) {
  InputSource source(file);
  return orvane::RateTextsOfHtr(source);
}
orvane::RateTexts RatesOf(const TRCDocument& /*document*/, const InputFile& file) {
  InputSource source(file);
  return orvane::RateTextsOfTrc(source);
}

// Motion files hold no times.
double FirstTimeOf(const HtrDocument& /*document*/, const InputFile& /*file*/) { return 0.0; }
double FirstTimeOf(const TRCDocument& /*document*/, const InputFile& file) {
  InputSource source(file);
  return orvane::FirstTimeOfTrc(source);
}

std::int64_t RateIn(const HtrDocument& document) { return document.GetDataFrameRate(); }
std::int64_t RateIn(const TRCDocument& document) { return document.DataRate(); }

std::size_t PartsIn(const HtrDocument& document) { return document.segments().size(); }
std::size_t PartsIn(const TRCDocument& document) { return document.MarkerCount(); }

// Heights stay along the axis that the output can say.
RewriteOrder EditsFor(const RewriteOrder& order, OutputFormat format) {
  RewriteOrder edits = order;
  if (TellsUpAxis(format)) edits.up.reset();
  return edits;
}

class Rewriting {
 public:
  explicit Rewriting(const RewriteOrder& order)
      : order_(order), files_({order.input}, order.stream_name), manner_(order.report) {
    manner_.only_warnings = order.quiet;
  }

  ExitStatus Run() {
    platform::CatchInterrupts();
    const FileKind kind = files_.KindOf(order_.input, order_.kind);
    format_ = FormatFor(order_, kind);
    if (order_.json && order_.output == "-") {
      throw Failure{ExitStatus::kWrongUsage,
                    {{"--json", "is written to standard output, where the file goes",
                      "--report FILE.json writes what was found elsewhere."}}};
    }
    RequireNoStandardInput(order_.mapping, "A mapping");
    const InputFile input = files_.Find(order_.input, kind);
    RequirePlaces(input);
    RewriteOutput output(order_.output, order_.force);
    ExpectReading(input.path);
    if (kind == FileKind::kHtr) {
      Rewrite<HtrDocument>(input, output);
    } else {
      Rewrite<TRCDocument>(input, output);
    }
    return ExitStatus::kDone;
  }

 private:
  void RequirePlaces(const InputFile& input) const {
    std::vector<std::string> inputs = {input.path};
    if (!order_.mapping.empty()) inputs.push_back(order_.mapping);
    if (order_.output == "-") return RequireReportApart(order_.report, inputs, {});
    RequireNoInput(order_.output, inputs);
    RequireReportApart(order_.report, inputs, {order_.output});
  }

  template <typename Document>
  void Rewrite(const InputFile& input, RewriteOutput& output) {
    EditedFile<Document> file{input.name};
    FileReport report = ReadInput(*file.document, input, manner_, PurposeOf(order_, format_));
    RequireNoErrors(report, report);
    RequireProportion(*file.document, input, order_, format_);
    file.rates = RatesOf(*file.document, input);
    file.first_time = FirstTimeOf(*file.document, input);
    const orvane::FrameSpan held = FramesHeld(*file.document);
    Edit(file, EditsFor(order_, format_));
    const Document& document = *file.document;
    PreparedFile prepared = PrepareFile(
        format_, document, {input.name, NameOfOutput(input), file.rates, file.first_time, order_});
    file.circumstances.losses = std::move(prepared.losses);
    StopIfInterrupted();
    TellOfEdits(file, held, report);
    const std::size_t size = output.Deliver(prepared);
    const std::string rate =
        file.rates.data.empty() ? orvane::FormatInt(RateIn(document)) : file.rates.data;
    orvane::FrameSpan frames = FramesHeld(document);
    if (prepared.first_frame) {
      frames = {*prepared.first_frame, *prepared.first_frame + frames.Count() - 1};
    }
    Show({input.name, order_.kind.value_or(KindFor(document)), order_.output,
          prepared.parts.value_or(PartsIn(document)), frames, rate, size, !manner_.omitted,
          std::move(report)});
  }

  static FileKind KindFor(const HtrDocument& /*document*/) { return FileKind::kHtr; }
  static FileKind KindFor(const TRCDocument& /*document*/) { return FileKind::kTrc; }

  // Adds what is to be told beside what is odd in the file to its `report`. Throws a Failure when
  // that is a reason against the work.
  template <typename Document>
  void TellOfEdits(const EditedFile<Document>& file, const orvane::FrameSpan& held,
                   FileReport& report) const {
    orvane::CheckedFile checked = orvane::CheckRewrite(
        file.name, KindFor(*file.document) == FileKind::kHtr ? "HTR" : "TRC", file.circumstances);
    if (order_.cut) CheckCut(*order_.cut, held, checked);
    const FileReport edits = ReportOn(checked, Action::kRewrite);
    if (!manner_.omitted) Tell(edits, manner_);
    report.file = file.name;
    report.kind = checked.kind;
    report.action = Action::kRewrite;
    report.Take(edits);
    RequireNoErrors(edits, report);
    WriteReportFile({report}, manner_);
    if (Forbids(manner_, report)) throw ForbiddenByStrict(manner_, report);
  }

  // Throws a Failure that says so when there are any in `told`, a part of `report`.
  void RequireNoErrors(const FileReport& told, const FileReport& report) const {
    if (told.Count(kError) == 0) return;
    WriteReportFile({report}, manner_);
    throw RefusedForErrors(manner_, told, {});
  }

  // Standard output gets the name of the input.
  [[nodiscard]] std::string NameOfOutput(const InputFile& input) const {
    const std::string& path = order_.output == "-" ? input.name : order_.output;
    return platform::TextOf(platform::PathOf(path).filename());
  }

  void Show(const RewrittenFile& file) const {
    if (order_.output == "-") return;
    if (order_.json) return PrintRewriteJson(file, std::cout);
    if (!order_.quiet) PrintRewriteSummary(file, std::cout);
  }

  const RewriteOrder& order_;
  InputFiles files_;
  ReportManner manner_;
  OutputFormat format_ = OutputFormat::kHtr;
};

}  // namespace

void AddRewriteCommand(CLI::App& app, Work& work) {
  auto order = std::make_shared<RewriteOrder>();
  CLI::App* verb = app.add_subcommand("rewrite", "Make another motion or marker file of one");
  AddRewriteFlags(*verb, *order);
  verb->callback([order, &work] { work = [order] { return Rewriting(*order).Run(); }; });
}

}  // namespace cli
