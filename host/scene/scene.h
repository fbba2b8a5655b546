#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/animation/animation_state.h"
#include "host/animation/controller.h"
#include "host/base/instance_pool.h"
#include "host/base/misuse_log.h"
#include "host/scene/name_table.h"
#include "host/scene/node.h"
#include "host/scene/node_selection.h"
#include "host/scene/recording.h"
#include "host/scene/world_memory.h"
#include "platform/export.h"

// What a file is made of and what plug-ins change. Progress, callbacks and all else around it is
// the application's (host/application/application.h), which owns one scene; tests and the readers
// of files may make others.

namespace host {

// A scene: its nodes and what they hold, the selection, names and handles, time and units. Owns all
// of it. New: only the root node, 30 frames a second, range 0 to 100 frames, time 0, millimetres.
class SKELDER_API Scene {
 public:
  Scene();
  ~Scene();
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  AnimationState& Animation() { return animation_; }
  const AnimationState& Animation() const { return animation_; }
  ControllerFaults& Faults() { return faults_; }
  MisuseLog& Misuse() { return misuse_; }
  const MisuseLog& Misuse() const { return misuse_; }

  // --- Objects and controllers ---

  // Creates an object or controller; the caller deletes it or gives it to the scene. Returns null
  // for a class that the host does not know.
  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id);

  // How many instances callers were given and have neither deleted nor given to the scene.
  std::size_t LooseInstances() const { return pool_.Size(); }

  // --- Nodes ---

  Node& Root() { return *nodes_.front(); }
  const Node& Root() const { return *nodes_.front(); }

  // Takes `object` over and shows it with a new node under the root. Returns null, and notes a
  // misuse, when it is null or belongs to a node already.
  Node* CreateNode(Object* object);

  // Deletes `node`: see Node::Retire; it leaves the selection. The root, a deleted node and null
  // stay as they are and are noted as misuse.
  void DeleteNode(INode* node);

  // How many nodes there are, the root not counted.
  std::size_t NodeCount() const { return node_count_; }

  // The node with that handle, or null when there is none or it was deleted. The root has one too.
  Node* FindByHandle(NodeHandle handle) const;

  // The earliest made node of that name, or null; the root has none.
  Node* FindByName(const std::string& name) const;

  // `name`, with a number after it when a node has that name.
  std::string MakeNameUnique(const std::string& name) { return names_.MakeUnique(name); }

  // --- Selection ---

  // Appends `node` unless it is selected. The root, a deleted node and a node of another scene are
  // not selected and noted as misuse.
  void Select(Node& node);
  void ClearSelection() { selection_.Clear(); }

  // In the order of selection.
  const std::vector<Node*>& Selection() const { return selection_.Nodes(); }

  // --- Units and views ---

  // Millimetres in one system unit.
  // REQUIRES: they are positive.
  double MillimetersPerUnit() const { return millimeters_per_unit_; }
  void SetMillimetersPerUnit(double millimeters) {
    assert(millimeters > 0.0);
    millimeters_per_unit_ = millimeters;
  }

  // The recording that the motion is from, as far as it is known; nothing at first.
  const std::optional<host::Recording>& Recording() const { return recording_; }
  void SetRecording(std::optional<host::Recording> recording) { recording_ = std::move(recording); }

  // How often the views were redrawn.
  std::size_t RedrawCount() const { return redraws_; }
  void Redraw() { ++redraws_; }

 private:
  MisuseLog misuse_;
  AnimationState animation_;
  ControllerFaults faults_;
  const ControllerEnvironment controller_environment_{animation_.AnimateMode(), faults_, pool_};
  InstancePool pool_{misuse_};
  NameTable names_;
  PropertyKeys property_keys_;
  WorldMemory worlds_;
  const NodeEnvironment node_environment_{animation_, names_, property_keys_, worlds_, misuse_};

  // By handle, which is the index and 1. Deleted nodes stay as shells.
  std::vector<std::unique_ptr<Node>> nodes_;
  std::size_t node_count_ = 0;
  NodeSelection selection_;
  double millimeters_per_unit_ = 1.0;
  std::optional<host::Recording> recording_;
  std::size_t redraws_ = 0;
};

}  // namespace host
