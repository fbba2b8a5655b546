// What two scene files of the same scene may differ in: the last bits of angles, which are in double precision
// and come of the sines of two C libraries.

const MOST_STEPS = 4;

function partsOf(bytes) {
  const view = new DataView(bytes.buffer, bytes.byteOffset);
  const length = view.getUint32(12, true);
  const json = JSON.parse(new TextDecoder().decode(bytes.subarray(20, 20 + length)));
  return { json, data: bytes.subarray(28 + length) };
}

function viewOf({ json, data }, index) {
  const { byteOffset = 0, byteLength } = json.bufferViews[index];
  return data.slice(byteOffset, byteOffset + byteLength);
}

// Numbers of double precision in their order: neighbours are one step apart.
function step(number) {
  const bits = new BigInt64Array(new Float64Array([number]).buffer)[0];
  return bits < 0n ? -(bits & 0x7fffffffffffffffn) : bits;
}

export function areNear(first, second) {
  if (Object.is(first, second)) return true;
  const distance = step(first) - step(second);
  return -MOST_STEPS <= distance && distance <= MOST_STEPS;
}

// Where two values as JSON has them differ by more.
function differenceOf(first, second, place) {
  if (typeof first === "number" && typeof second === "number") {
    return areNear(first, second) ? "" : `${place}: ${first} and ${second}`;
  }
  if (first === null || second === null || typeof first !== "object" || typeof second !== "object") {
    return first === second ? "" : `${place}: ${first} and ${second}`;
  }
  const names = Object.keys(first);
  if (names.join() !== Object.keys(second).join()) return `${place}: other members`;
  for (const name of names) {
    const found = differenceOf(first[name], second[name], `${place}.${name}`);
    if (found) return found;
  }
  return "";
}

function recordsOf(bytes, ignored) {
  const lines = new TextDecoder().decode(bytes).trimEnd().split("\n");
  return lines.map((line) => JSON.parse(line, (name, value) => (ignored.includes(name) ? undefined : value)));
}

function recordsDiffer(first, second, ignored) {
  const [ours, theirs] = [recordsOf(first, ignored), recordsOf(second, ignored)];
  if (ours.length !== theirs.length) return "the record has other lines";
  for (const [index, record] of ours.entries()) {
    const found = differenceOf(record, theirs[index], `record ${index}`);
    if (found) return found;
  }
  return "";
}

function anglesDiffer(first, second) {
  const [ours, theirs] = [first, second].map((bytes) => new Float64Array(bytes.buffer));
  const at = ours.findIndex((angle, index) => !areNear(angle, theirs[index]));
  return at < 0 ? "" : `angle ${at}: ${ours[at]} and ${theirs[at]}`;
}

// A record whose numbers have other digits has another length, and what stands behind it another place.
function withoutPlaces(json) {
  const copy = structuredClone(json);
  for (const view of copy.bufferViews ?? []) {
    delete view.byteOffset;
    delete view.byteLength;
  }
  for (const buffer of copy.buffers ?? []) delete buffer.byteLength;
  return copy;
}

/** Why two files are not the same scene, but for members of the record; an empty text when they are. */
export function sceneDifference(first, second, ignored = []) {
  if (Buffer.compare(first, second) === 0) return "";
  // Slices of a Buffer are none of their own.
  const [ours, theirs] = [first, second].map((bytes) => partsOf(new Uint8Array(bytes)));
  if (JSON.stringify(withoutPlaces(ours.json)) !== JSON.stringify(withoutPlaces(theirs.json))) {
    return differenceOf(withoutPlaces(ours.json), withoutPlaces(theirs.json), "json") || "the JSON differs";
  }
  const kept = ours.json.extensions?.ORVANE_scene ?? {};
  const angles = kept.angles === undefined ? -1 : ours.json.accessors[kept.angles].bufferView;
  for (const index of (ours.json.bufferViews ?? []).keys()) {
    const pair = [viewOf(ours, index), viewOf(theirs, index)];
    const differ = index === kept.scene ? recordsDiffer : index === angles ? anglesDiffer : bytesDiffer;
    const found = differ(...pair, ignored);
    if (found) return `view ${index}: ${found}`;
  }
  return "";
}

function bytesDiffer(first, second) {
  return Buffer.compare(first, second) === 0 ? "" : "other bytes";
}
