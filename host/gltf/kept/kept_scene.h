#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "host/gltf/file/container.h"
#include "host/gltf/file/document.h"
#include "host/gltf/file/key_counts.h"
#include "host/gltf/file/node_tree.h"
#include "host/scene/scene.h"

// What a file holds for ourselves: all of the scene, exactly, whatever viewers are shown.
// docs/formats/gltf.md describes the form.

namespace host::gltf {

// The extension that it is known by.
inline constexpr char kExtensionName[] = "ORVANE_scene";
inline constexpr std::uint32_t kExtensionVersion = 3;

// The oldest that is still read: it has no record of the recording and of what was measured.
inline constexpr std::uint32_t kOldestVersion = 2;

// Adds `scene`, whose nodes are `tree`, to `document`, which both outlive. Throws a Refusal when a
// number is not finite.
void KeepScene(const Scene& scene, const NodeTree& tree, Document& document);

// The keys of all controllers in `tree`, which KeepScene keeps.
KeyCounts KeptKeys(const NodeTree& tree);

// Says in `document` that it keeps no scene, and that it is meant not to.
void LeaveSceneOut(Document& document);

// The members of a document that the two below look at.
std::set<std::string> MembersOfScenes();

// Whether `file` keeps a scene, in whatever form.
bool KeepsScene(const FileParts& file);

// Builds the scene that `file` keeps in `scene`, a new one. Throws a Refusal when there is none or
// it is damaged; `scene` then holds a part of it.
void RestoreScene(const FileParts& file, Scene& scene);

}  // namespace host::gltf
