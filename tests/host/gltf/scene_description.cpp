#include "tests/host/gltf/scene_description.h"

#include <ostream>
#include <sstream>
#include <vector>

#include "host/scene/box_object.h"

namespace test {
namespace {

void Print(std::ostream& out, const Point3& point) {
  out << " " << point.x << " " << point.y << " " << point.z;
}

void Print(std::ostream& out, const Quat& rotation) {
  out << " " << rotation.x << " " << rotation.y << " " << rotation.z << " " << rotation.w;
}

void PrintMode(std::ostream& out, const host::SuspendableMode& mode) {
  out << "mode " << mode.IsOn() << " " << mode.UnmatchedResumes();
  host::SuspendableMode copy = mode;
  while (copy.SuspendDepth() > 0) {
    copy.Resume();
    out << " " << copy.IsOn();
  }
  out << "\n";
}

template <typename KeyedController>
void PrintController(std::ostream& out, KeyedController& controller) {
  out << "  " << std::hex << controller.SuperClassID() << " " << controller.ClassID().part_a << " "
      << controller.ClassID().part_b << std::dec;
  Print(out, controller.Constant());
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    const TimeValue tick = controller.KeyTick(key);
    out << "\n    " << tick;
    Print(out, controller.KeyValue(key));
    out << " between";  // what the controller makes of its keys
    Print(out, controller.ValueAt(tick / 2 + 1));
  }
  out << "\n";
}

void PrintObject(std::ostream& out, host::SceneObject& object) {
  ::Object& own = object.AsObject();
  out << "  object " << own.SuperClassID() << " " << own.ClassID().part_a << " "
      << own.ClassID().part_b;
  if (const auto* box = dynamic_cast<const host::BoxObject*>(&object)) {
    Print(out, box->Box().min);
    Print(out, box->Box().max);
  }
  for (const double parameter : object.Parameters()) out << " " << parameter;
  out << "\n";
}

void PrintTransform(std::ostream& out, host::TransformController& transform) {
  out << "  transform " << transform.ClassID().part_a << " " << transform.ClassID().part_b << "\n";
  PrintController(out, transform.Position());
  PrintController(out, transform.Rotation());
  PrintController(out, transform.Scale());
}

void PrintRecording(std::ostream& out, const host::Recording& recording) {
  const host::Rate rate = recording.rate.value_or(host::Rate{0, 0});
  out << "recorded " << rate.numerator << "/" << rate.denominator << " from "
      << recording.first_frame << " in " << recording.unit << " as '" << recording.source << "' "
      << recording.turned_up << "\n";
}

void PrintMeasurement(std::ostream& out, const host::Measured& measured) {
  out << "  measured " << measured.made_by_import << " " << static_cast<int>(measured.manner);
  for (const host::Gap& gap : measured.gaps) out << " " << gap.first << ":" << gap.last;
  out << "\n";
}

void PrintNode(std::ostream& out, const host::Node& node) {
  out << "node '" << node.Name() << "' below '"
      << (node.Parent() == nullptr ? "" : node.Parent()->Name()) << "' color " << node.WireColor()
      << " display " << node.BoneDisplay() << " bone " << node.IsBone() << " "
      << node.BoneSince().value_or(0) << "\n";
  if (node.ObjectOffset()) {
    for (int row = 0; row < 4; ++row) Print(out, node.ObjectOffset()->GetRow(row));
  }
  for (const auto& [key, value] : node.Properties()) out << "  " << key << "=" << value << "\n";
  if (node.Measurement()) PrintMeasurement(out, *node.Measurement());
  if (node.ShownObject() != nullptr) PrintObject(out, *node.ShownObject());
  if (node.Transform() != nullptr) PrintTransform(out, *node.Transform());
}

}  // namespace

std::string Description(const host::Scene& scene) {
  std::ostringstream out;
  out << std::hexfloat;
  const host::AnimationState& animation = scene.Animation();
  out << animation.FrameRate() << " " << animation.Range().Start() << " " << animation.Range().End()
      << " " << animation.Time() << " " << scene.MillimetersPerUnit() << "\n";
  if (scene.Recording()) PrintRecording(out, *scene.Recording());
  PrintMode(out, animation.AnimateMode());
  PrintMode(out, animation.SetKeyMode());
  for (const host::Node* node : scene.Selection()) out << "selected '" << node->Name() << "'\n";
  std::vector<const host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    const host::Node* node = waiting.back();
    waiting.pop_back();
    PrintNode(out, *node);
    waiting.insert(waiting.end(), node->Children().begin(), node->Children().end());
  }
  return out.str();
}

}  // namespace test
