#include "plugin/export_htr/export_root.h"

#include "plugin/skeleton/bone.h"

namespace orvane {
namespace {

// Intended: bones further down do not count.
INode* FirstBoneChild(INode& node) {
  const int count = node.NumberOfChildren();
  for (int i = 0; i < count; ++i) {
    INode* child = node.GetChildNode(i);
    if (child != nullptr && IsBone(*child)) return child;
  }
  return nullptr;
}

}  // namespace

ExportRoot FindExportRoot(Interface& interface) {
  INode* selected = interface.GetSelNodeCount() > 0 ? interface.GetSelNode(0) : nullptr;
  if (selected == nullptr) {
    return {nullptr, "Please select the root bone of the skeleton you wish to export"};
  }
  INode* root = IsBone(*selected) ? selected : FirstBoneChild(*selected);
  if (root == nullptr) return {nullptr, "Please select a Skelder 4 bone object to export"};
  return {root, {}};
}

}  // namespace orvane
