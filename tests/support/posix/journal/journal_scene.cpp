#include "tests/support/posix/journal/journal_scene.h"

#include <utility>

namespace test {

INode* JournalScene::Shown(INode* own) {
  if (own == nullptr) return nullptr;
  std::unique_ptr<JournalNode>& node = nodes_[own];
  if (node == nullptr) node = std::make_unique<JournalNode>(*this, *own);
  return node.get();
}

Object* JournalScene::Shown(Object* own, INode& owner) {
  if (own == nullptr) return nullptr;
  if (objects_.count(own) == 0) Keep(own, "");
  JournalObject& object = *objects_[own];
  object.SetName(NodeName(owner) + ".object");
  return &object.AsObject();
}

Control* JournalScene::Shown(Control* own, INode& owner, const char* part) {
  if (own == nullptr) return nullptr;
  if (controllers_.count(own) == 0) Keep(own, "");
  JournalController& controller = *controllers_[own];
  controller.SetOwner(owner, part);
  return &controller;
}

ClassInstance* JournalScene::ShownInstance(ClassInstance* own, SuperClassId super_class,
                                           ClassId class_id) {
  if (own == nullptr) return nullptr;
  const std::string name = ClassName(super_class, class_id);
  if (super_class == kRotationControllerSuperClass) {
    return Keep(static_cast<Control*>(own), name);
  }
  return Keep(static_cast<Object*>(own), name);
}

Object* JournalScene::Keep(Object* own, const std::string& name) {
  std::unique_ptr<JournalObject> object;
  if (own->ClassID() == kDummyClass) {
    object = std::make_unique<JournalDummy>(journal_, static_cast<DummyObject&>(*own), name);
  } else {
    object = std::make_unique<JournalObjectOf<Object>>(journal_, *own, name);
  }
  objects_[own] = object.get();
  all_objects_.push_back(std::move(object));
  return &objects_[own]->AsObject();
}

Control* JournalScene::Keep(Control* own, const std::string& name) {
  all_controllers_.push_back(std::make_unique<JournalController>(*this, *own, name));
  controllers_[own] = all_controllers_.back().get();
  return controllers_[own];
}

INode* OwnOf(INode* shown) {
  auto* const node = dynamic_cast<JournalNode*>(shown);
  return node == nullptr ? shown : &node->Own();
}

Object* OwnOf(Object* shown) {
  auto* const object = dynamic_cast<JournalObject*>(shown);
  return object == nullptr ? shown : &object->Own();
}

Control* OwnOf(Control* shown) {
  auto* const controller = dynamic_cast<JournalController*>(shown);
  return controller == nullptr ? shown : &controller->Own();
}

}  // namespace test
