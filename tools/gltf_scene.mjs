// What the tools know of .glb files: how to read our own, and where an animation has its nodes. Our
// own hold one scene and one binary chunk, animations whose keys are joined linearly or in steps,
// and vertices that follow one joint.
import { readFileSync } from "node:fs";

const WIDTHS = { SCALAR: 1, VEC3: 3, VEC4: 4, MAT4: 16 };
const READERS = { 5123: ["readUInt16LE", 2], 5125: ["readUInt32LE", 4], 5126: ["readFloatLE", 4] };
const IDENTITY = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1];

// --- The file ---

// The JSON of a file, with its data as `binary`.
export function readGlb(path) {
  const bytes = readFileSync(path);
  const jsonLength = bytes.readUInt32LE(12);
  const gltf = JSON.parse(bytes.subarray(20, 20 + jsonLength).toString());
  return { ...gltf, binary: bytes.subarray(28 + jsonLength) };
}

// The elements of an accessor, each an array of its components.
export function elements(file, index) {
  const { bufferView, byteOffset = 0, componentType, count, type } = file.accessors[index];
  const start = (file.bufferViews[bufferView].byteOffset ?? 0) + byteOffset;
  const [read, size] = READERS[componentType];
  const width = WIDTHS[type];
  const component = (i) => file.binary[read](start + size * i);
  return Array.from({ length: count }, (_, element) =>
    Array.from({ length: width }, (_, i) => component(element * width + i)));
}

// --- Where things are ---

// The transform that does first b and then a.
export function product(a, b) {
  return IDENTITY.map((_, i) =>
    [0, 1, 2, 3].reduce((sum, k) => sum + a[4 * k + (i % 4)] * b[4 * (i >> 2) + k], 0));
}

// Where a transform takes a point.
export function applied(m, [x, y, z]) {
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

// What keys say at `second`: linearly between two of them, or in steps.
function valueAt(times, values, inSteps, second) {
  const next = times.findIndex(([time]) => time >= second);
  if (next === -1) return values.at(-1);
  if (next === 0) return values[0];
  if (inSteps) return times[next][0] === second ? values[next] : values[next - 1];
  const fraction = (second - times[next - 1][0]) / (times[next][0] - times[next - 1][0]);
  const mixed = values[next].map((to, i) => values[next - 1][i] * (1 - fraction) + to * fraction);
  const length = mixed.length === 4 ? Math.hypot(...mixed) : 1;
  return mixed.map((component) => component / length);
}

// The world transforms of all nodes at `second`, each a matrix column by column.
export function worldsAt(file, second) {
  const nodes = structuredClone(file.nodes);
  for (const { channels, samplers } of file.animations ?? []) {
    for (const { sampler, target } of channels) {
      const { input, output, interpolation } = samplers[sampler];
      const inSteps = interpolation === "STEP";
      nodes[target.node][target.path] =
        valueAt(elements(file, input), elements(file, output), inSteps, second);
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

// Whether a world transform leaves nothing of a shape to be seen.
export function isHidden(world) {
  const axes = [0, 4, 8].flatMap((column) => world.slice(column, column + 3));
  return axes.every((component) => component === 0);
}
