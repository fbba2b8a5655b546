#include "host/gltf/joints/joint_clip.h"

#include <cstdint>
#include <map>
#include <utility>

#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

// What a channel of an animation moves; nothing of the tree when `place` is kNoNode.
struct Target {
  std::size_t place = kNoNode;  // index in the tree
  std::string path;
};

using Places = std::vector<std::size_t>;  // in the tree, by the index in the file

Places PlacesOf(const JointTree& tree, std::size_t node_count) {
  Places places(node_count, kNoNode);
  for (std::size_t i = 0; i < tree.size(); ++i) places[tree[i].node] = i;
  return places;
}

Target TargetOf(const JsonField& channel, const Places& places) {
  const JsonField field = channel.Member("target");
  const auto node = field.FindMember("node");
  if (!node) return {};
  const auto index = node->Whole(0, static_cast<std::int64_t>(places.size()) - 1);
  Target target{places[static_cast<std::size_t>(index)], field.Member("path").Text()};
  const bool moves =
      target.path == "translation" || target.path == "rotation" || target.path == "scale";
  if (!moves) target.place = kNoNode;
  return target;
}

bool MovesAny(const JsonField& animation, const Places& places) {
  const JsonField channels = animation.Member("channels");
  for (std::size_t i = 0; i < channels.Size(); ++i) {
    if (TargetOf(channels.Element(i), places).place != kNoNode) return true;
  }
  return false;
}

KeyJoin JoinOf(const JsonField& sampler) {
  const auto name = sampler.FindMember("interpolation");
  if (!name || name->Text() == "LINEAR") return KeyJoin::kLinear;
  if (name->Text() == "STEP") return KeyJoin::kStep;
  if (name->Text() == "CUBICSPLINE") return KeyJoin::kCubic;
  name->Refuse("neither LINEAR nor STEP nor CUBICSPLINE");
}

class ClipReader {
 public:
  ClipReader(const JsonField& animation, const Places& places, const JointTree& tree,
             const std::vector<FileNode>& nodes, Accessors& accessors)
      : animation_(animation),
        places_(places),
        tree_(tree),
        nodes_(nodes),
        accessors_(accessors),
        samplers_(animation.Member("samplers")) {}

  JointClip Run() {
    JointClip clip;
    clip.tracks.resize(tree_.size());
    const JsonField channels = animation_.Member("channels");
    for (std::size_t i = 0; i < channels.Size(); ++i) Take(channels.Element(i), clip);
    clip.seconds.reserve(seconds_.size());
    for (const auto& [index, seconds] : seconds_) clip.seconds.push_back(seconds);
    return clip;
  }

 private:
  void Take(const JsonField& channel, JointClip& clip) {
    const Target target = TargetOf(channel, places_);
    if (target.place == kNoNode) return;
    if (nodes_[tree_[target.place].node].matrix) {
      channel.Member("target").Member("node").Refuse("a node with a matrix, which cannot be moved");
    }
    const JsonField reference = channel.Member("sampler");
    const auto count = static_cast<std::int64_t>(samplers_.Size());
    const JsonField sampler =
        samplers_.Element(static_cast<std::size_t>(reference.Whole(0, count - 1)));
    NodeTracks& tracks = clip.tracks[target.place];
    if (target.path == "rotation") {
      tracks.rotation = TrackOf(sampler, "VEC4");
    } else {
      (target.path == "scale" ? tracks.scale : tracks.translation) = TrackOf(sampler, "VEC3");
    }
  }

  KeyTrack TrackOf(const JsonField& sampler, std::string_view type) {
    KeyTrack track;
    track.join = JoinOf(sampler);
    track.seconds = SecondsOf(sampler.Member("input"));
    const JsonField output = sampler.Member("output");
    track.values = accessors_.Find(output, type);
    const std::size_t wanted = track.seconds.Size() * (track.join == KeyJoin::kCubic ? 3 : 1);
    if (track.values.Size() != wanted) {
      output.Refuse("not the index of " + std::to_string(wanted) + " values, as there are keys");
    }
    return track;
  }

  const FileNumbers& SecondsOf(const JsonField& reference) {
    const FileNumbers seconds = accessors_.Find(reference, "SCALAR");
    const auto [known, is_new] = seconds_.try_emplace(reference.Word(), seconds);
    if (!is_new) return known->second;
    if (seconds.Size() == 0) reference.Refuse("the index of no times");
    for (std::size_t i = 1; i < seconds.Size(); ++i) {
      if (!(seconds.At(i - 1, 0) < seconds.At(i, 0))) {
        reference.Refuse("the index of times that do not rise");
      }
    }
    return known->second;
  }

  const JsonField& animation_;
  const Places& places_;
  const JointTree& tree_;
  const std::vector<FileNode>& nodes_;
  Accessors& accessors_;
  const JsonField samplers_;
  std::map<std::uint32_t, FileNumbers> seconds_;  // by the indices of their accessors
};

std::string NameOf(const JsonField& animation, std::size_t index) {
  const auto name = animation.FindMember("name");
  if (name && !name->Text().empty()) return name->Text();
  return "animation " + std::to_string(index + 1);
}

}  // namespace

std::optional<JointClip> FindJointClip(const JsonField& document,
                                       const std::vector<FileNode>& nodes, const JointTree& tree,
                                       const std::string& wanted, Accessors& accessors) {
  const auto animations = document.FindMember("animations");
  const Places places = PlacesOf(tree, nodes.size());
  std::optional<std::size_t> chosen;
  std::vector<std::string> names;
  for (std::size_t i = 0; animations && i < animations->Size(); ++i) {
    const JsonField animation = animations->Element(i);
    if (!MovesAny(animation, places)) continue;
    std::string name = NameOf(animation, i);
    const bool is_wanted = wanted.empty() || name == wanted;
    if (is_wanted && !chosen) {
      chosen = i;
    } else {
      names.push_back(std::move(name));
    }
  }
  if (!chosen && !wanted.empty()) {
    throw Refusal("No animation of the file that moves joints is named \"" + wanted + "\".");
  }
  if (!chosen) return std::nullopt;
  const JsonField animation = animations->Element(*chosen);
  JointClip clip = ClipReader(animation, places, tree, nodes, accessors).Run();
  clip.name = NameOf(animation, *chosen);
  clip.others = std::move(names);
  return clip;
}

}  // namespace host::gltf
