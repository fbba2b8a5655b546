// Reads the BVH files of a folder with three.js and compares where their joints are with what the
// files beside them say, which write_bvh_samples wrote:
//
//   node tests/readers/three_bvh.mjs FOLDER
//
// Exit status 0: all joints are where they have to be; 1: some are not; 2: there was no file.
import { readdirSync, readFileSync } from "node:fs";
import { join } from "node:path";
import process from "node:process";
import { Vector3 } from "three";
import { BVHLoader } from "three/examples/jsm/loaders/BVHLoader.js";

// What the loader reports it reports there.
const complaints = [];
console.error = (...words) => complaints.push(words.join(" "));
console.warn = console.error;

const isEnd = (bone) => bone.name === "ENDSITE" && bone.children.length === 0;

// Puts the bones where the clip has them at its key number `frame`.
function pose(bones, clip, frame) {
  const joints = bones.filter((bone) => !isEnd(bone));
  joints.forEach((bone, index) => {
    bone.position.fromArray(clip.tracks[2 * index].values, 3 * frame);
    bone.quaternion.fromArray(clip.tracks[2 * index + 1].values, 4 * frame).normalize();
  });
  bones[0].updateMatrixWorld(true);
}

// How far a joint or an end is from where it has to be, at most.
function greatestError(bones, clip, sample) {
  let greatest = 0;
  sample.positions.forEach((positions, frame) => {
    pose(bones, clip, frame);
    let joint = 0;
    for (const bone of bones) {
      const expected = isEnd(bone) ? sample.ends[frame][joint - 1] : positions[joint++];
      const place = new Vector3().setFromMatrixPosition(bone.matrixWorld);
      greatest = Math.max(greatest, place.distanceTo(new Vector3(...expected)));
    }
  });
  return greatest;
}

// What is wrong with the file `path`, or nothing.
function fault(path) {
  complaints.length = 0;
  const sample = JSON.parse(readFileSync(path.replace(/bvh$/, "json"), "utf8"));
  const { skeleton, clip } = new BVHLoader().parse(readFileSync(path, "utf8"));
  if (complaints.length > 0) return complaints[0];
  const names = skeleton.bones.filter((bone) => !isEnd(bone)).map((bone) => bone.name);
  if (names.join() !== sample.names.join()) return `its joints are ${names}`;
  const frames = clip.tracks[0].times.length;
  if (frames !== sample.positions.length) return `it has ${frames} frames`;
  const error = greatestError(skeleton.bones, clip, sample);
  return error <= sample.tolerance ? undefined : `a joint is off by ${error}, of ${sample.tolerance}`;
}

const folder = process.argv[2];
const files = folder === undefined ? [] : readdirSync(folder).filter((name) => name.endsWith(".bvh"));
let faults = 0;
for (const file of files) {
  const found = fault(join(folder, file));
  if (found === undefined) continue;
  console.log(`${file}: ${found}`);
  ++faults;
}
console.log(`${files.length} files, ${faults} with joints elsewhere`);
process.exit(files.length === 0 ? 2 : faults === 0 ? 0 : 1);
