// Makes a still of an animated .glb file: shapes alone, without nodes' tree, skins and animation,
// standing where the animation has them at each of the seconds given.
//
//   node tools/still_gltf.mjs ANIMATED.glb STILL.glb SECOND...
//
// For viewers that draw a file but cannot be told at which time. It knows what our own files hold:
// one scene and one binary chunk, animations joined linearly, vertices that follow one joint.
import { readFileSync, writeFileSync } from "node:fs";
import process from "node:process";

const JSON_CHUNK = 0x4e4f534a;
const BINARY_CHUNK = 0x004e4942;
const WIDTHS = { SCALAR: 1, VEC3: 3, VEC4: 4, MAT4: 16 };
const READERS = { 5123: ["readUInt16LE", 2], 5125: ["readUInt32LE", 4], 5126: ["readFloatLE", 4] };
const IDENTITY = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

// --- The file ---

function readGlb(path) {
  const bytes = readFileSync(path);
  const jsonLength = bytes.readUInt32LE(12);
  const gltf = JSON.parse(bytes.subarray(20, 20 + jsonLength).toString());
  return { ...gltf, binary: bytes.subarray(28 + jsonLength) };
}

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

// The elements of an accessor, each an array of its components.
function elements(file, index) {
  const { bufferView, byteOffset = 0, componentType, count, type } = file.accessors[index];
  const start = (file.bufferViews[bufferView].byteOffset ?? 0) + byteOffset;
  const [read, size] = READERS[componentType];
  const width = WIDTHS[type];
  const component = (i) => file.binary[read](start + size * i);
  return Array.from({ length: count }, (_, element) =>
    Array.from({ length: width }, (_, i) => component(element * width + i)));
}

// --- Where things are ---

function product(a, b) {
  return IDENTITY.map((_, i) =>
    [0, 1, 2, 3].reduce((sum, k) => sum + a[4 * k + (i % 4)] * b[4 * (i >> 2) + k], 0));
}

function applied(m, [x, y, z]) {
  return [0, 1, 2].map((i) => m[i] * x + m[4 + i] * y + m[8 + i] * z + m[12 + i]);
}

function composed({ translation: t = [0, 0, 0], rotation = [0, 0, 0, 1], scale: s = [1, 1, 1] }) {
  const [x, y, z, w] = rotation;
  const axes = [
    [1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w)],
    [2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w)],
    [2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y)],
  ];
  return [...axes.flatMap((axis, i) => [...axis.map((component) => component * s[i]), 0]), ...t, 1];
}

function valueAt(times, values, second) {
  const next = times.findIndex(([time]) => time >= second);
  if (next === -1) return values.at(-1);
  if (next === 0) return values[0];
  const fraction = (second - times[next - 1][0]) / (times[next][0] - times[next - 1][0]);
  const mixed = values[next].map((to, i) => values[next - 1][i] * (1 - fraction) + to * fraction);
  const length = mixed.length === 4 ? Math.hypot(...mixed) : 1;
  return mixed.map((component) => component / length);
}

// The world transforms of all nodes at `second`.
function worldsAt(file, second) {
  const nodes = structuredClone(file.nodes);
  for (const { channels, samplers } of file.animations ?? []) {
    for (const { sampler, target } of channels) {
      const { input, output } = samplers[sampler];
      nodes[target.node][target.path] =
        valueAt(elements(file, input), elements(file, output), second);
    }
  }
  const worlds = [];
  const pending = file.scenes[0].nodes.map((node) => [node, IDENTITY]);
  while (pending.length > 0) {
    const [node, parent] = pending.pop();
    worlds[node] = product(parent, composed(nodes[node]));
    for (const child of nodes[node].children ?? []) pending.push([child, worlds[node]]);
  }
  return worlds;
}

// The world places of a primitive's corners, which follow node number `index` or their joints.
function placed(file, index, { attributes }, worlds) {
  const corners = elements(file, attributes.POSITION);
  const { skin } = file.nodes[index];
  if (skin === undefined) return corners.map((corner) => applied(worlds[index], corner));
  const { joints, inverseBindMatrices } = file.skins[skin];
  const inverses = elements(file, inverseBindMatrices);
  const places = joints.map((joint, i) => product(worlds[joint], inverses[i]));
  const followed = elements(file, attributes.JOINTS_0);
  return corners.map((corner, i) => applied(places[followed[i][0]], corner));
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

  addCorners(corners) {
    const bytes = Buffer.from(Float32Array.from(corners.flat()).buffer);
    const rounded = corners.map((corner) => corner.map(Math.fround));
    const [min, max] = [Math.min, Math.max].map((bound) =>
      [0, 1, 2].map((i) => rounded.map((corner) => corner[i]).reduce((a, b) => bound(a, b))));
    const accessor = { componentType: 5126, count: corners.length, type: "VEC3", min, max };
    return this.addAccessor(bytes, accessor, 34962);
  }

  addTriangles(indices) {
    const bytes = Buffer.from(Uint32Array.from(indices.flat()).buffer);
    const accessor = { componentType: 5125, count: indices.length, type: "SCALAR" };
    return this.addAccessor(bytes, accessor, 34963);
  }

  addScene(file, second) {
    const worlds = worldsAt(file, second);
    file.nodes.forEach(({ mesh }, index) => {
      if (mesh === undefined) return;
      const primitives = file.meshes[mesh].primitives.map((part) => ({
        attributes: { POSITION: this.addCorners(placed(file, index, part, worlds)) },
        indices: this.addTriangles(elements(file, part.indices)),
        material: part.material,
      }));
      this.gltf.meshes.push({ primitives });
    });
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
