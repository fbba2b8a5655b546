#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "tests/support/posix/journal/journal.h"
#include "tests/support/posix/journal/journal_controller.h"
#include "tests/support/posix/journal/journal_node.h"
#include "tests/support/posix/journal/journal_object.h"

namespace test {

// How a plug-in sees the scene of a host while a journal is kept: for each node, object and
// controller of the host there is one that forwards all calls to it and notes them. The plug-in
// gets those, and the host gets its own ones back from it.
class JournalScene {
 public:
  // `journal` outlives this object.
  explicit JournalScene(Journal& journal) : journal_(journal) {}
  JournalScene(const JournalScene&) = delete;
  JournalScene& operator=(const JournalScene&) = delete;

  Journal& journal() { return journal_; }

  // What the plug-in gets for what the host has: always the same, and null for null. An object or
  // controller is from now on called after the node that it belongs to, of which it is `part`.
  INode* Shown(INode* own);
  Object* Shown(Object* own, INode& owner);
  Control* Shown(Control* own, INode& owner, const char* part);

  // The same for an instance that the host has just made, which belongs to no node yet.
  ClassInstance* ShownInstance(ClassInstance* own, SuperClassId super_class, ClassId class_id);

 private:
  Object* Keep(Object* own, const std::string& name);
  Control* Keep(Control* own, const std::string& name);

  Journal& journal_;
  std::unordered_map<INode*, std::unique_ptr<JournalNode>> nodes_;
  std::unordered_map<Object*, JournalObject*> objects_;
  std::unordered_map<Control*, JournalController*> controllers_;

  // All so far: the host may use the memory of one that it has destroyed again.
  std::vector<std::unique_ptr<JournalObject>> all_objects_;
  std::vector<std::unique_ptr<JournalController>> all_controllers_;
};

// What the host has for what the plug-in got; null for null.
INode* OwnOf(INode* shown);
Object* OwnOf(Object* shown);
Control* OwnOf(Control* shown);

}  // namespace test
