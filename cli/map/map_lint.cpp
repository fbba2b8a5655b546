#include "cli/map/map_lint.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/common/check_results.h"
#include "cli/common/file_kind.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/known_messages.h"
#include "cli/common/taken_names.h"
#include "inspect/check/mnm_check.h"
#include "inspect/mapping/mapping_roles.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::CheckMapping;
using orvane::ListTrcMarkers;
using orvane::MappedCapture;
using orvane::OutlineTrcFile;

struct LintArguments {
  std::string mapping;
  std::string capture;      // empty for none
  std::string stream_name;  // of standard input; empty: its own
  orvane::NameMatching names = orvane::NameMatching::kExact;
  CheckManner manner;
};

// The capture in `file` with its markers. Throws a Failure when it cannot be read, or holds none.
MappedCapture ReadCapture(const InputFile& file) {
  const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(file.path);
  if (!outline)
    throw Failure{ExitStatus::kInputOutput, {{file.name, "could not be read to its end", ""}}};
  MappedCapture capture{file.name, {}};
  std::string message = ListTrcMarkers(outline->Header(), capture.markers);
  if (message.empty() && capture.markers.empty()) message = kNoMarkers;
  if (!message.empty()) {
    throw Failure{ExitStatus::kRefused, ComplainAboutRefusal(file, FileKind::kTrc, message)};
  }
  return capture;
}

// Takes names of `capture` for those of the mapping, whose `bytes` these are, and tells which.
// Throws a Failure when that is ambiguous.
void MatchCapture(MappedCapture& capture, const std::string& bytes, orvane::NameMatching how) {
  std::vector<std::string> markers;
  for (const orvane::TrcMarkerName& marker : capture.markers) markers.push_back(marker.name);
  capture.match = MatchNames(orvane::MarkersIn(bytes), markers, how);
  if (const auto ambiguity = FindAmbiguity(capture.file, capture.match)) {
    throw Failure{ExitStatus::kRefused, {*ambiguity}};
  }
  TellOfTaken(capture.file, capture.match);
}

// A capture that is refused keeps nothing of the mapping from being told.
void Lint(const LintArguments& arguments, CheckResults& results) {
  RequireNoStandardInput(arguments.mapping, "A mapping");
  InputFiles files({arguments.capture}, arguments.stream_name);
  const std::string bytes = FileBytes(arguments.mapping);
  if (arguments.capture.empty()) return results.Add(CheckMapping(arguments.mapping, bytes));
  try {
    MappedCapture capture = ReadCapture(files.Find(arguments.capture, FileKind::kTrc));
    MatchCapture(capture, bytes, arguments.names);
    for (CheckedFile& file : CheckMapping(arguments.mapping, bytes, capture)) {
      results.Add(std::move(file));
    }
  } catch (const Failure& failure) {
    results.Add(CheckMapping(arguments.mapping, bytes));
    results.Add(failure);
  }
}

ExitStatus Run(const LintArguments& arguments) {
  CheckResults results(arguments.manner);
  try {
    Lint(arguments, results);
  } catch (const Failure& failure) {
    results.Add(failure);
  }
  return results.Finish();
}

}  // namespace

void AddMapLint(CLI::App& map, Work& work) {
  auto arguments = std::make_shared<LintArguments>();
  CLI::App* verb = map.add_subcommand("lint", "Name everything that is odd in a mapping");
  verb->add_option("MAPPING", arguments->mapping, "The MNM file")->required()->type_name("");
  CLI::Option* file =
      verb->add_option("FILE", arguments->capture,
                       "A TRC file whose markers are to be mapped, or - for standard "
                       "input")
          ->type_name("");
  AddStreamName(*verb, arguments->stream_name);
  AddNamesFlag(*verb, arguments->names)->needs(file);
  AddCheckManner(*verb, arguments->manner);
  verb->callback([arguments, &work] { work = [arguments] { return Run(*arguments); }; });
}

}  // namespace cli
