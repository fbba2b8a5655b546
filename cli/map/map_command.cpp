#include "cli/map/map_command.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/common/input_files.h"
#include "cli/map/map_create.h"
#include "cli/map/map_lint.h"
#include "cli/map/map_show.h"
#include "cli/map/map_suggest.h"

namespace cli {
namespace {

void AddCreate(CLI::App& map, Work& work) {
  auto arguments = std::make_shared<MapCreateArguments>();
  CLI::App* verb = map.add_subcommand("create", "Make a mapping file by the plug-in's creator");
  verb->add_option("FILE", arguments->marker_file, "The TRC file, or - for standard input")
      ->required()
      ->type_name("");
  AddStreamName(*verb, arguments->stream_name);
  verb->add_option("-o,--output", arguments->output, "The mapping file to write")
      ->required()
      ->type_name("MAPPING");
  verb->add_option("--picks", arguments->picks, "Which marker plays which standard marker's role")
      ->required()
      ->type_name("TABLE");
  verb->add_flag("--left-stick", arguments->sticks.left, "The left wrist carries a stick");
  verb->add_flag("--right-stick", arguments->sticks.right, "The right wrist carries a stick");
  verb->add_flag("--force", arguments->force, "Replace the mapping file if it exists");
  verb->add_option("--module", arguments->module, "The plug-in to load (the one beside orvane)")
      ->type_name("PATH");
  AddReportFlags(*verb, arguments->report);
  verb->add_flag("--json", arguments->json, "Write JSON");
  verb->add_flag("--quiet", arguments->quiet,
                 "No summary and no notes; warnings and errors are still told");
  verb->callback([arguments, &work] { work = [arguments] { return CreateMapping(*arguments); }; });
}

}  // namespace

void AddMapCommand(CLI::App& app, Work& work) {
  CLI::App* map = app.add_subcommand("map", "Make, suggest, show and check marker name mappings");
  map->require_subcommand(1);
  AddCreate(*map, work);
  AddMapSuggest(*map, work);
  AddMapShow(*map, work);
  AddMapLint(*map, work);
}

}  // namespace cli
