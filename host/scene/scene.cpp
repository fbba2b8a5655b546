#include "host/scene/scene.h"

#include <utility>

#include "host/scene/instance_factory.h"

namespace host {

Scene::Scene() { nodes_.push_back(std::make_unique<Node>(node_environment_, NodeHandle{1})); }

Scene::~Scene() = default;

ClassInstance* Scene::CreateInstance(SuperClassId super_class, ClassId class_id) {
  return host::CreateInstance(controller_environment_, super_class, class_id);
}

Node* Scene::CreateNode(Object* object) {
  auto taken = pool_.Take<SceneObject>(object);
  if (taken == nullptr) return nullptr;
  const std::string name = names_.Numbered(taken->KindName());
  const auto handle = static_cast<NodeHandle>(nodes_.size() + 1);
  nodes_.push_back(
      std::make_unique<Node>(node_environment_, handle, std::move(taken),
                             std::make_unique<TransformController>(controller_environment_)));
  Node* node = nodes_.back().get();
  node->SetName(name.c_str());
  Root().AttachChild(node, false);
  ++node_count_;
  return node;
}

void Scene::DeleteNode(INode* node) {
  auto* own = dynamic_cast<Node*>(node);
  if (own == nullptr || own->IsRoot() || FindByHandle(own->Handle()) != own) {
    misuse_.Report("DeleteNode called for no node of the scene");
    return;
  }
  selection_.Remove(*own);
  own->Retire();
  --node_count_;
}

Node* Scene::FindByHandle(NodeHandle handle) const {
  if (handle == 0 || handle > nodes_.size()) return nullptr;
  Node* node = nodes_[handle - 1].get();
  return node->IsDeleted() ? nullptr : node;
}

Node* Scene::FindByName(const std::string& name) const {
  for (const std::unique_ptr<Node>& node : nodes_) {
    if (!node->IsDeleted() && !node->IsRoot() && node->Name() == name) return node.get();
  }
  return nullptr;
}

void Scene::Select(Node& node) {
  if (node.IsRoot() || FindByHandle(node.Handle()) != &node) {
    misuse_.Report("Select called for no node of the scene");
    return;
  }
  selection_.Add(node);
}

}  // namespace host
