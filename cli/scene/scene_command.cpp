#include "cli/scene/scene_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "cli/common/scene_input.h"
#include "cli/scene/scene_report.h"

namespace cli {
namespace {

struct SceneArguments {
  std::string input;
  bool json = false;
};

ExitStatus ShowScene(const SceneArguments& arguments) {
  host::Scene scene;
  (void)ReadSceneOrSkins(arguments.input, {}, scene);
  if (arguments.json) {
    PrintSceneJson(arguments.input, scene, std::cout);
  } else {
    PrintScenePage(arguments.input, scene, std::cout);
  }
  return ExitStatus::kDone;
}

}  // namespace

void AddSceneCommand(CLI::App& app, Work& work) {
  auto arguments = std::make_shared<SceneArguments>();
  CLI::App* verb = app.add_subcommand("scene", "Tell what a scene file holds");
  verb->add_option(
          "SCENE", arguments->input,
          "The scene file, which orvane has written: .glb or .gltf; or one of another program, for "
          "its skeletons")
      ->required()
      ->type_name("");
  verb->add_flag("--json", arguments->json, "Write JSON, with every key");
  verb->callback([arguments, &work] { work = [arguments] { return ShowScene(*arguments); }; });
}

}  // namespace cli
