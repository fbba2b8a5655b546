#include "cli/rewrite/rewrite_flags.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>

#include "cli/common/choice.h"
#include "cli/common/cut_frames.h"
#include "cli/common/input_files.h"
#include "cli/rewrite/output_formats.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "host/base/letter_case.h"
#include "inspect/summary/frame_rate.h"

namespace cli {
namespace {

constexpr double kHighestNewRate = 100'000;

bool IsMapping(const std::string& text) {
  constexpr std::string_view kExtension = ".mnm";
  return text.size() > kExtension.size() &&
         host::SameButForCase(text.substr(text.size() - kExtension.size()), kExtension);
}

// "OLD=NEW" for each piece between commas where all are such pairs; a name may hold commas itself.
std::vector<std::string> PairsIn(const std::string& text) {
  std::vector<std::string> pairs;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    pairs.push_back(text.substr(begin, end - begin));
    if (std::count(pairs.back().begin(), pairs.back().end(), '=') != 1) return {text};
    begin = end + 1;
  }
  return pairs;
}

void TakePair(const std::string& text, RewriteOrder& order) {
  const std::size_t sign = text.find('=');
  if (sign == std::string::npos) {
    throw CLI::ValidationError("--rename",
                               "takes OLD=NEW, or a mapping whose name ends in .mnm, not " + text);
  }
  order.renames.emplace_back(text.substr(0, sign), text.substr(sign + 1));
}

// Pairs, or a file with such.
void TakeRenaming(const std::vector<std::string>& texts, RewriteOrder& order) {
  for (const std::string& text : texts) {
    if (IsMapping(text)) {
      order.mapping = text;
      continue;
    }
    for (const std::string& pair : PairsIn(text)) TakePair(pair, order);
  }
}

std::string WhyNoRate(const std::string& text) {
  const char* const last = text.data() + text.size();
  const orvane::LeadingDouble number = orvane::ReadDouble(text.data(), last);
  const bool is_rate =
      number.end == last && orvane::ParseFrameRate(text) && number.value <= kHighestNewRate;
  return is_rate ? "" : "a number of frames per second is expected, such as 29.97, not " + text;
}

std::string WhyNoTime(const std::string& text) {
  const char* const last = text.data() + text.size();
  const orvane::LeadingDouble number = orvane::ReadDouble(text.data(), last);
  const bool is_time = !text.empty() && number.end == last && std::isfinite(number.value);
  return is_time ? "" : "a number of seconds is expected, such as 2.27, not " + text;
}

void AddFileFlags(CLI::App& verb, RewriteOrder& order) {
  verb.add_option("FILE", order.input, "The HTR or TRC file, or - for standard input")
      ->required()
      ->type_name("");
  RequireName(verb.add_option("-o,--output", order.output,
                              "The file to write, or - for standard output: " + ListOfFormats()))
      ->required()
      ->type_name("OUT");
  AddChoice(verb, "--to", NamesOfFormats(), "What to write (what the name of OUT says)",
            [&order](const std::string& format) { order.format = format; });
  AddKindChoice(verb, order.kind);
  AddStreamName(verb, order.stream_name);
  verb.add_flag("--force", order.force, "Replace OUT if it exists");
}

// As in "--select A --select B".
void MayBeRepeated(CLI::Option* option) {
  option->expected(1)->allow_extra_args(false)->multi_option_policy(
      CLI::MultiOptionPolicy::TakeAll);
}

void AddEditFlags(CLI::App& verb, RewriteOrder& order) {
  AddCutFlag(verb, order.cut);
  MayBeRepeated(
      verb.add_option(
              "--select", order.selection,
              "Take the segments or markers of these names alone, segments with those that they "
              "hang from; may be repeated (all)")
          ->type_name("NAME,..."));
  MayBeRepeated(
      verb.add_option_function<std::vector<std::string>>(
              "--rename",
              [&order](const std::vector<std::string>& texts) { TakeRenaming(texts, order); },
              "Give other names: OLD=NEW,..., or a mapping file that ends in .mnm; may be repeated")
          ->type_name("MAP"));
  AddChoice(verb, "--unit", {"mm", "cm", "m", "in", "ft", "yd"},
            "Convert all lengths to that unit (that of the file)",
            [&order](const std::string& unit) { order.unit = orvane::FindCalibrationUnits(unit); });
  AddChoice(
      verb, "--up", {"y", "z"},
      "The axis that the heights in the file lie along: z is turned to y (y)",
      [&order](const std::string& axis) { order.up = axis == "z" ? UpAxis::kZ : UpAxis::kY; });
}

void AddTimeFlags(CLI::App& verb, RewriteOrder& order) {
  CLI::Option* rate =
      verb.add_option("--rate", order.rate,
                      "Change the frame rate to that many frames per second, by leaving out all "
                      "frames but each second, third and so on (that of the file)")
          ->check(WhyNoRate, "")
          ->type_name("NUMBER");
  AddChoice(verb, "--resample", {"linear", "slerp"},
            "With --rate: let frames lie between those of the file, with rotations interpolated by "
            "their Euler angles or along the shortest way",
            [&order](const std::string& path) {
              order.resampling =
                  path == "slerp" ? orvane::RotationPath::kSlerp : orvane::RotationPath::kLinear;
            })
      ->needs(rate);
  verb.add_option("--start-frame", order.start_frame,
                  "The number of the first frame (that of the file)")
      ->type_name("NUMBER");
  verb.add_option_function<std::string>(
          "--start-time",
          [&order](const std::string& text) { order.start_time = orvane::ParseDouble(text); },
          "The time of the first frame in seconds, where files hold times (that of the file)")
      ->check(WhyNoTime, "")
      ->type_name("SECONDS");
}

void AddTableFlags(CLI::App& verb, RewriteOrder& order) {
  const auto add = [&verb, &order](const std::string& flag, std::optional<FileKind> kind,
                                   const std::vector<std::string>& choices, const std::string& help,
                                   const auto& take) {
    AddChoice(verb, flag, choices, help, [&order, flag, kind, take](const std::string& choice) {
      order.format_flags.emplace_back(flag, "CSV");
      if (kind) order.kind_flags.emplace_back(flag, *kind);
      take(order.table, choice);
    });
  };
  add("--layout", std::nullopt, {"wide", "long"},
      "CSV: a row a frame, or a row for each marker or segment of each frame (wide)",
      [](orvane::CsvManner& table, const std::string& choice) {
        table.layout = choice == "long" ? orvane::CsvLayout::kLong : orvane::CsvLayout::kWide;
      });
  add("--space", FileKind::kHtr, {"world", "local"},
      "CSV of HTR: tell places and rotations in the world, or against the segment's parent (world)",
      [](orvane::CsvManner& table, const std::string& choice) {
        table.space = choice == "local" ? orvane::CsvSpace::kParent : orvane::CsvSpace::kWorld;
      });
  add("--rotations", FileKind::kHtr, {"euler", "quaternion"},
      "CSV of HTR: tell rotations as Euler angles or as quaternions (euler)",
      [](orvane::CsvManner& table, const std::string& choice) {
        table.rotations =
            choice == "euler" ? orvane::CsvRotations::kEuler : orvane::CsvRotations::kQuaternion;
      });
}

void AddSkeletonFlags(CLI::App& verb, RewriteOrder& order) {
  AddChoice(verb, "--positions", {"root", "all"},
            "BVH: channels of the position of the root alone, or of every segment that moves "
            "against the one that it hangs from (root)",
            [&order](const std::string& choice) {
              order.format_flags.emplace_back("--positions", "BVH");
              order.positions =
                  choice == "all" ? orvane::BvhPositions::kAll : orvane::BvhPositions::kRoot;
            });
  verb.add_option_function<std::string>(
          "--root",
          [&order](const std::string& name) {
            order.format_flags.emplace_back("--root", "BVH");
            order.root = name;
          },
          "BVH: of several roots take this one, with all that hangs from it")
      ->type_name("NAME");
}

void AddRunFlags(CLI::App& verb, RewriteOrder& order) {
  verb.add_option_function<int>(
          "--decimals",
          [&order](int decimals) { order.numbers = orvane::NumberForm::Decimals(decimals); },
          "Write numbers with so many digits behind the point (as many as bring back the very "
          "number)")
      ->check(CLI::Range(0, orvane::NumberForm::kMostDecimals).description(""))
      ->type_name("NUMBER");
  AddReportFlags(verb, order.report);
  verb.add_flag("--json", order.json, "Write JSON");
  verb.add_flag("--quiet", order.quiet,
                "No summary and no notes; warnings and errors are still told");
}

}  // namespace

void AddRewriteFlags(CLI::App& verb, RewriteOrder& order) {
  AddFileFlags(verb, order);
  AddEditFlags(verb, order);
  AddTimeFlags(verb, order);
  AddTableFlags(verb, order);
  AddSkeletonFlags(verb, order);
  AddRunFlags(verb, order);
}

}  // namespace cli
