#include "plugin/export_htr/export_root.h"

#include "plugin/skeleton/bone.h"

namespace orvane {
ExportRoot FindExportRoot(Interface& interface) {
  INode* selected = interface.GetSelNodeCount() > 0 ? interface.GetSelNode(0) : nullptr;
  if (selected == nullptr) {
    return {nullptr, "Please select the root bone of the skeleton you wish to export"};
  }
  // Intended: bones further down do not count.
  INode* root = IsBone(*selected) ? selected : FirstBoneChild(*selected);
  if (root == nullptr) return {nullptr, "Please select a Skelder 4 bone object to export"};
  return {root, {}};
}

}  // namespace orvane
