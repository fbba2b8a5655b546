// Makes a still of an animated .glb file: shapes alone, without nodes' tree, skins and animation,
// standing where the animation has them at each of the seconds given. What is hidden then is left
// out.
//
//   node tools/still_gltf.mjs ANIMATED.glb STILL.glb SECOND...
//
// For viewers that draw a file but cannot be told at which time.
import { writeFileSync } from "node:fs";
import process from "node:process";
import { applied, elements, isHidden, product, readGlb, worldsAt } from "./gltf_scene.mjs";

const JSON_CHUNK = 0x4e4f534a;
const BINARY_CHUNK = 0x004e4942;

// --- The file ---

function chunk(type, content, padding) {
  const padded = Buffer.alloc(Math.ceil(content.length / 4) * 4, padding);
  content.copy(padded);
  const head = Buffer.alloc(8);
  head.writeUInt32LE(padded.length, 0);
  head.writeUInt32LE(type, 4);
  return Buffer.concat([head, padded]);
}

function writeGlb(path, { binary, ...gltf }) {
  const json = chunk(JSON_CHUNK, Buffer.from(JSON.stringify(gltf)), " ");
  const body = Buffer.concat([json, chunk(BINARY_CHUNK, binary, 0)]);
  const head = Buffer.from("glTF\x02\0\0\0\0\0\0\0", "latin1");
  head.writeUInt32LE(head.length + body.length, 8);
  writeFileSync(path, Buffer.concat([head, body]));
}

// --- Where things are ---

// The transforms that a primitive's corners follow: those of node number `index`, or of joints.
function transformsOf(file, index, { attributes }, worlds) {
  const { skin } = file.nodes[index];
  if (skin === undefined) return elements(file, attributes.POSITION).map(() => worlds[index]);
  const { joints, inverseBindMatrices } = file.skins[skin];
  const inverses = elements(file, inverseBindMatrices);
  const places = joints.map((joint, i) => product(worlds[joint], inverses[i]));
  const followed = elements(file, attributes.JOINTS_0);
  return followed.map(([joint]) => places[joint]);
}

function cross([a, b, c], [d, e, f]) {
  return [b * f - c * e, c * d - a * f, a * e - b * d];
}

// Where a surface that faces along `normal` faces behind a transform, which keeps it across.
function turned(m, normal) {
  const [x, y, z] = [0, 4, 8].map((column) => m.slice(column, column + 3));
  const across = [cross(y, z), cross(z, x), cross(x, y)];
  const sum = [0, 1, 2].map((i) => normal.reduce((part, n, axis) => part + n * across[axis][i], 0));
  const length = Math.hypot(...sum);
  return length === 0 ? [0, 0, 1] : sum.map((component) => component / length);
}

// --- The still ---

class Still {
  constructor({ asset, materials }) {
    this.gltf = { asset, materials, accessors: [], bufferViews: [], meshes: [] };
    this.parts = [];
    this.length = 0;
  }

  addAccessor(bytes, accessor, target) {
    const { accessors, bufferViews } = this.gltf;
    bufferViews.push({ buffer: 0, byteOffset: this.length, byteLength: bytes.length, target });
    accessors.push({ bufferView: bufferViews.length - 1, ...accessor });
    this.parts.push(bytes);
    this.length += bytes.length;
    return accessors.length - 1;
  }

  addVectors(vectors, bounds = {}) {
    const bytes = Buffer.from(Float32Array.from(vectors.flat()).buffer);
    const accessor = { componentType: 5126, count: vectors.length, type: "VEC3", ...bounds };
    return this.addAccessor(bytes, accessor, 34962);
  }

  addCorners(corners) {
    const rounded = corners.map((corner) => corner.map(Math.fround));
    const [min, max] = [Math.min, Math.max].map((bound) =>
      [0, 1, 2].map((i) => rounded.map((corner) => corner[i]).reduce((a, b) => bound(a, b))));
    return this.addVectors(corners, { min, max });
  }

  addTriangles(indices) {
    const bytes = Buffer.from(Uint32Array.from(indices.flat()).buffer);
    const accessor = { componentType: 5125, count: indices.length, type: "SCALAR" };
    return this.addAccessor(bytes, accessor, 34963);
  }

  addScene(file, second) {
    const worlds = worldsAt(file, second);
    file.nodes.forEach(({ mesh }, index) => {
      if (mesh === undefined || isHidden(worlds[index])) return;
      const primitives = file.meshes[mesh].primitives.map((part) => ({
        attributes: this.addAttributes(file, part, transformsOf(file, index, part, worlds)),
        indices: this.addTriangles(elements(file, part.indices)),
        material: part.material,
      }));
      this.gltf.meshes.push({ primitives });
    });
  }

  addAttributes(file, { attributes }, transforms) {
    const vectors = (accessor, change) =>
      elements(file, accessor).map((vector, i) => change(transforms[i], vector));
    const added = { POSITION: this.addCorners(vectors(attributes.POSITION, applied)) };
    if (attributes.NORMAL !== undefined) {
      added.NORMAL = this.addVectors(vectors(attributes.NORMAL, turned));
    }
    return added;
  }

  finished() {
    const nodes = this.gltf.meshes.map((_, mesh) => ({ mesh }));
    const scenes = [{ nodes: nodes.map((_, node) => node) }];
    const buffers = [{ byteLength: this.length }];
    return { ...this.gltf, nodes, scenes, scene: 0, buffers, binary: Buffer.concat(this.parts) };
  }
}

const [animated, target, ...seconds] = process.argv.slice(2);
if (seconds.length === 0) {
  console.error("usage: node tools/still_gltf.mjs ANIMATED.glb STILL.glb SECOND...");
  process.exit(2);
}
const file = readGlb(animated);
const still = new Still(file);
for (const second of seconds) still.addScene(file, Number(second));
writeGlb(target, still.finished());
