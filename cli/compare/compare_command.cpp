#include "cli/compare/compare_command.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

#include "cli/common/found_files.h"
#include "cli/common/input.h"
#include "cli/compare/comparison.h"
#include "cli/compare/folder_comparison.h"
#include "formats/text/numbers.h"
#include "platform/path_text.h"

namespace cli {
namespace {

struct CompareArguments {
  std::string a;
  std::string b;
  std::string stream_name;  // of standard input; empty: its own
  bool recursive = false;
  bool limits_turns = false;  // the user has said how far segments may be turned
  bool json = false;
  bool quiet = false;
  CompareManner manner;
};

ExitStatus CompareFiles(const std::string& file_a, const std::string& file_b,
                        const CompareArguments& arguments) {
  InputFiles files({file_a, file_b}, arguments.stream_name);
  if (arguments.limits_turns && KindOfBoth(file_a, file_b, files) == FileKind::kTrc) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{"--tolerance-deg", "markers are not turned", "--tolerance-mm is for them."}}};
  }
  std::vector<orvane::FileReport> untold;
  CompareManner manner = arguments.manner;
  if (arguments.quiet) manner.report.gathered = &untold;
  return CompareAndUse(file_a, file_b, files, manner, [&arguments](const auto& report) {
    if (arguments.json) {
      JsonWriter json(std::cout);
      WriteComparison(json, report);
    } else if (!arguments.quiet) {
      PrintComparison(report, std::cout);
    }
    return report.SaysTheSame() ? ExitStatus::kDone : ExitStatus::kDifferent;
  });
}

// The file in `folder` that has the name of `file`. Throws a Failure when there is no such `file`.
std::string SameIn(const std::string& folder, const std::string& file) {
  if (StreamOf(file)) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{file, "is compared with a file, and " + folder + " is a folder", ""}}};
  }
  const std::string found = ReadableFile(file, KindOf(file));
  return platform::TextOf(platform::PathOf(folder) / platform::PathOf(found).filename());
}

ExitStatus Compare(const CompareArguments& arguments) {
  const std::string& a = arguments.a;
  const std::string& b = arguments.b;
  const bool is_folder_a = IsFolder(a);
  const bool is_folder_b = IsFolder(b);
  if (is_folder_a && is_folder_b) {
    return CompareFolders(
        {a, b, arguments.recursive, arguments.json, arguments.quiet, arguments.manner});
  }
  return CompareFiles(is_folder_a ? SameIn(a, b) : a, is_folder_b ? SameIn(b, a) : b, arguments);
}

double ToleranceFrom(const std::string& flag, const std::string& text) {
  const char* const end = text.data() + text.size();
  const orvane::LeadingDouble number = orvane::ReadDouble(text.data(), end);
  const bool is_number = !text.empty() && number.end == end;
  if (!is_number || !std::isfinite(number.value) || number.value < 0.0) {
    throw CLI::ValidationError(flag,
                               "a number that is not negative is expected, not \"" + text + "\"");
  }
  return number.value;
}

CLI::Option* AddTolerance(CLI::App& verb, const std::string& flag, double& tolerance,
                          const std::string& help) {
  return verb
      .add_option_function<std::string>(
          flag,
          [&tolerance, flag](const std::string& text) { tolerance = ToleranceFrom(flag, text); },
          help + " (" + orvane::FormatShortest(tolerance) + ")")
      ->type_name("NUMBER");
}

}  // namespace

void AddCompareCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<CompareArguments>();
  orvane::Tolerance& tolerance = arguments->manner.tolerance;
  CLI::App* verb = app.add_subcommand("compare", "Tell how far motion or marker files are apart");
  verb->add_option("A", arguments->a,
                   "An HTR or TRC file, or a folder of them, or - for standard input")
      ->required()
      ->type_name("");
  verb->add_option("B", arguments->b,
                   "Another one of the same kind; of a folder and a file, the one of the same name "
                   "is taken, of two folders all that are in both")
      ->required()
      ->type_name("");
  AddStreamName(*verb, arguments->stream_name);
  AddRecursive(*verb, arguments->recursive);
  AddTolerance(*verb, "--tolerance-mm", tolerance.mm,
               "How far apart joints or markers may be, in millimeters");
  const CLI::Option* turns = AddTolerance(*verb, "--tolerance-deg", tolerance.deg,
                                          "HTR: how far segments may be turned, in degrees");
  AddTellingFlags(*verb, arguments->manner.report);
  CLI::Option* json = verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--quiet", arguments->quiet, "Write nothing of what is found: the status says it")
      ->excludes(json);
  verb->callback([arguments, turns, &work] {
    arguments->limits_turns = turns->count() > 0;
    work = [arguments] { return Compare(*arguments); };
  });
}

}  // namespace cli
