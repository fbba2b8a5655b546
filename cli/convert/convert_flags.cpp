#include "cli/convert/convert_flags.h"

#include <CLI/CLI.hpp>

#include "cli/common/choice.h"
#include "cli/common/cut_frames.h"
#include "cli/common/input_files.h"
#include "cli/common/plugin_session.h"
#include "cli/common/taken_names.h"

namespace cli {
namespace {

void AddFileArguments(CLI::App& verb, ConvertArguments& arguments) {
  verb.add_option("FILE", arguments.inputs, "The TRC files, or - for standard input")
      ->required()
      ->type_name("");
  AddStreamName(verb, arguments.stream_name);
  CLI::Option* output =
      verb.add_option("-o,--output", arguments.output.file,
                      "The BVK file to write, for one FILE; its name ends in .bvk, which is "
                      "added to one without an extension")
          ->check(
              [](const std::string& path) {
                return IsBvkFileName(path) ? "" : path + " does not end in .bvk";
              },
              "")
          ->type_name("OUT");
  RequireName(verb.add_option("--output-dir", arguments.output.folder,
                              "The folder to write to, which exists (each beside its FILE)"))
      ->type_name("DIR")
      ->excludes(output);
  verb.add_flag("--force", arguments.output.replace, "Replace outputs that exist");
  // What is kept is made by a batch, which names its outputs after its inputs.
  verb.add_flag("--keep-broken", arguments.order.keep_broken,
                "Deliver what the plug-in makes of files that its reader refuses, and of those of "
                "which no marker is left; the status is 1 all the same")
      ->excludes(output);
  verb.add_flag("--dry-run", arguments.dry_run,
                "Show what would become of the files and their markers; write nothing");
}

void AddPanelFlags(CLI::App& verb, ConvertArguments& arguments) {
  CLI::Option* mapping =
      RequireName(verb.add_option("--mapping", arguments.order.mapping,
                                  "The mapping file: rename the markers it lists, drop the others"))
          ->type_name("M.mnm");
  AddNamesFlag(verb, arguments.order.names)->needs(mapping);
  CLI::Option* offset = verb.add_option("--offset", arguments.offset,
                                        "Add X, Y and Z to every position, in the file's unit")
                            ->type_name("X,Y,Z");
  AddChoice(
      verb, "--offset-space", {"trc", "skelder"}, "The axes that the offset is in (trc)",
      [&arguments](const std::string& space) { arguments.offset_in_trc_space = space == "trc"; })
      ->needs(offset);
  AddCutFlag(verb, arguments.order.cut);
  AddChoice(verb, "--up", {"y", "z"}, "The axis that the heights in the files lie along (y)",
            [&arguments](const std::string& axis) { arguments.z_up = axis == "z"; });
}

void AddRunFlags(CLI::App& verb, ConvertArguments& arguments) {
  verb.add_option("--jobs", arguments.jobs, "How many processes run side by side (one a processor)")
      ->check(CLI::Range(1, 256).description(""))
      ->type_name("N");
  verb.add_option("--module", arguments.order.module, "The plug-in to load (the one beside orvane)")
      ->type_name("PATH");
  AddReportFlags(verb, arguments.order.report, kAllowEmpty);
  verb.get_option("--allow")->description(
      "With --strict: codes that are no reason to refuse; may be repeated. empty, also without "
      "--strict: convert files of which no marker is left, too");
  verb.add_flag("--json", arguments.json, "Write JSON");
  verb.add_flag("--quiet", arguments.quiet,
                "No table, no progress and no notes; warnings and errors are still told");
}

}  // namespace

void AddConvertFlags(CLI::App& verb, ConvertArguments& arguments) {
  arguments.order.module = DefaultModulePath();
  AddFileArguments(verb, arguments);
  AddPanelFlags(verb, arguments);
  AddRunFlags(verb, arguments);
}

}  // namespace cli
