// Tells what an animated .glb file shows at each of the seconds given:
//
//   node tools/seen_gltf.mjs ANIMATED.glb SECOND...
//
// Prints JSON: a list with, for each second, "seen" and "hidden", the names of the nodes with
// shapes or of the joints of skins that are and are not to be seen, and "nearest", how many metres
// the nearest of those seen is away from the origin; null when none is seen.
import process from "node:process";
import { applied, isHidden, readGlb, worldsAt } from "./gltf_scene.mjs";

// The nodes that shapes stand at.
function shapeNodes({ nodes, skins }) {
  return nodes.flatMap(({ mesh, skin }, index) => {
    if (mesh === undefined) return [];
    return skin === undefined ? [index] : skins[skin].joints;
  });
}

function seenAt(file, second) {
  const worlds = worldsAt(file, second);
  const names = (shapes) => shapes.map((index) => file.nodes[index].name);
  const shapes = shapeNodes(file);
  const seen = shapes.filter((index) => !isHidden(worlds[index]));
  const distances = seen.map((index) => Math.hypot(...applied(worlds[index], [0, 0, 0])));
  return {
    second,
    seen: names(seen),
    hidden: names(shapes.filter((index) => isHidden(worlds[index]))),
    nearest: distances.length === 0 ? null : distances.reduce((a, b) => Math.min(a, b)),
  };
}

const [animated, ...seconds] = process.argv.slice(2);
if (seconds.length === 0) {
  console.error("usage: node tools/seen_gltf.mjs ANIMATED.glb SECOND...");
  process.exit(2);
}
const file = readGlb(animated);
console.log(JSON.stringify(seconds.map((second) => seenAt(file, Number(second)))));
