import assert from "node:assert/strict";
import { test } from "node:test";
import { compiledCore, example, workerModule } from "./built_core.mjs";

const { CoreInstance } = await workerModule("core_instance.ts");

async function opened(path, bytes) {
  const instance = await CoreInstance.make(await compiledCore());
  instance.put({ path, bytes });
  return { instance, ...instance.open(1, path) };
}

const bytesOf = (text) => new TextEncoder().encode(text);

const MARKERS = [
  "PathFileType\t4\t(X/Y/Z)\ttwo.trc",
  "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\tOrigNumFrames",
  "59.94\t59.94\t4\t2\tmm\t59.94\t11\t4",
  "Frame#\tTime\tA\t\t\tB\t\t",
  "\t\tX1\tY1\tZ1\tX2\tY2\tZ2",
  "",
  "11\t0.000000\t1.0\t2.0\t3.0\t4.0\t5.0\t6.0",
  "12\t0.016683\t\t\t\t4.5\t5.5\t6.5",
  "13\t0.033367\t\t\t\t4.0\tx\t6.0",
  "14\t0.050050\t1.5\t2.5\t3.5\t4.0\t5.0\t6.0",
  "",
].join("\r\n");

test("tells what markers a file has, their gaps and its true rate", async () => {
  const { info, tracks } = await opened("two.trc", bytesOf(MARKERS));
  assert.equal(info.kind, "markers");
  assert.deepEqual(info.objects, ["A", "B"]);
  assert.deepEqual(info.parents, [-1, -1]);
  assert.equal(info.frames, 4);
  assert.equal(info.rateText, "59.94");
  assert.equal(info.rate, 59.94);
  assert.equal(info.rateTaken, 59);
  assert.equal(info.unit, "mm");
  assert.equal(info.millimetresPerUnit, 1);
  assert.deepEqual([...info.coverage], [0.5, 1]);
  assert.deepEqual([...info.gaps], [0, 1, 2]);
  assert.deepEqual([...tracks.positions.slice(0, 6)], [1, 2, 3, 4, 5, 6]);
  assert.ok(tracks.positions.slice(6, 9).every(Number.isNaN));
  assert.equal(tracks.ends, undefined);
});

test("hands out a marker's curve", async () => {
  const { instance } = await opened("two.trc", bytesOf(MARKERS));
  assert.deepEqual(
    [...instance.curve(1, 0, "position")],
    [1, 2, 3, NaN, NaN, NaN, NaN, NaN, NaN, 1.5, 2.5, 3.5],
  );
  assert.throws(() => instance.curve(1, 2, "position"), { message: "The take has no such object" });
});

test("a finding leads to marker and frame, and to the line with its column", async () => {
  const { instance } = await opened("two.trc", bytesOf(MARKERS));
  const { findings } = instance.findings(1, "import");
  const unread = findings.find(({ code }) => code === "trc-number-unreadable");
  assert.equal(unread.line, 9);
  assert.deepEqual(unread.places[0], { line: 9, column: unread.column, object: 1, frame: 2 });
  const { text, start } = instance.line(1, 9, unread.column);
  assert.equal(start, 1);
  assert.equal(text[unread.column - 1], "x");
});

const DAMAGED = MARKERS.replace("4.0\tx\t", "4.0\t5.0\t");

for (const [what, text, code, place] of [
  ["a frame number that is repeated", DAMAGED.replace("14\t0.050050\t1.5", "13\t0.050050\tbad"), "trc-number-unreadable", { line: 10, object: 0, frame: 3 }],
  ["frame numbers that are skipped", DAMAGED.replace("14\t0.050050\t1.5", "114\t0.050050\tbad"), "trc-number-unreadable", { line: 10, object: 0, frame: 3 }],
  ["a comment that takes a frame's place", DAMAGED.replace("13\t0", "#13\t0").replace("14\t0.050050\t1.5", "x\n14\t0.050050\tbad"), "trc-number-unreadable", { line: 11, object: 0, frame: 3 }],
  ["a repeated name", DAMAGED.replace("\tA\t\t\tB\t\t", "\tA\t\t\tA\t\t\tB\t\t").replace("4.0\t5.0\t6.0\r\n12", "bad\t5.0\t6.0\r\n12"), "trc-number-unreadable", { line: 7, object: 1, frame: 0 }],
  ["a value behind the last marker's", DAMAGED.replace("5.0\t6.0\r\n12", "5.0\t6.0\t7.0\r\n12"), "trc-value-extra", { line: 7, frame: 0 }],
  ["a marker without a name", DAMAGED.replace("\tB\t", "\t\t"), "trc-name-empty", { line: 4, object: 1 }],
]) {
  test(`with ${what} a finding leads to the marker and frame that were read`, async () => {
    const { instance } = await opened("two.trc", bytesOf(text));
    const { findings } = instance.findings(1, "import");
    const { places } = findings.find((each) => each.code === code) ?? assert.fail(findings.map((each) => each.code).join());
    const { column, ...found } = places.find(({ line }) => line === place.line);
    assert.ok(column > 0);
    assert.deepEqual(found, place);
  });
}

const WALK_LINES = Buffer.from(example("walk.htr")).toString("latin1").split("\n");

test("a finding in a motion leads to the segment and frame that were read, whatever the frame's number", async () => {
  const spine = WALK_LINES.findIndex((line) => line.startsWith("[Spine]"));
  const rows = WALK_LINES.map((line, at) => ({ line, at })).filter(({ line, at }) => at > spine && /^\d/.test(line));
  const lines = [...WALK_LINES];
  lines[rows[60].at] = lines[rows[60].at].replace(/^\d+(\s+)\S+/, "60$1bad");
  const { instance, info } = await opened("walk.htr", bytesOf(lines.join("\n")));
  const { findings } = instance.findings(1, "import");
  const { places } = findings.find(({ code }) => code === "htr-number-unreadable");
  assert.equal(places[0].line, rows[60].at + 1);
  assert.equal(places[0].object, info.objects.indexOf("Spine"));
  assert.equal(places[0].frame, 60);
});

test("a motion has joints, the ends of bones, and parents", async () => {
  const { info, tracks, instance } = await opened("walk.htr", example("walk.htr"));
  assert.equal(info.kind, "motion");
  assert.equal(info.frames, 120);
  assert.equal(info.objects[0], "Hips");
  assert.equal(info.parents[0], -1);
  assert.equal(info.upAxis, "y");
  // The next joint stands where the bone of its parent ends.
  const spine = info.objects.indexOf("Spine");
  assert.deepEqual([...tracks.ends.slice(0, 3)], [...tracks.positions.slice(3 * spine, 3 * spine + 3)]);
  const curve = instance.curve(1, spine, "position");
  assert.equal(curve.length, 3 * 120);
  assert.equal(Math.fround(curve[0]), tracks.positions[3 * spine]);
  assert.deepEqual([...info.boxMin].map(Math.fround)[1] <= tracks.positions[1], true);
});

test("a file that fails says why, with its code and place", async () => {
  const instance = await CoreInstance.make(await compiledCore());
  instance.put({ path: "not.htr", bytes: bytesOf("solid nonsense\n") });
  assert.throws(
    () => instance.open(1, "not.htr"),
    ({ name, message, code }) => name === "CoreError" && message.length > 10 && code.startsWith("htr-"),
  );
});

test("of a long line the part around the column is shown", async () => {
  const long = MARKERS.replace("1.0\t2.0", `1.${"0".repeat(5000)}7\t2.0`);
  const { instance } = await opened("two.trc", bytesOf(long));
  const { text, start } = instance.line(1, 7, 5010);
  assert.equal(text.length, 2000);
  assert.ok(start > 1 && start <= 5010 && 5010 < start + 2000);
});

test("a name goes out as it came in, whatever it holds", async () => {
  const name = '<img src=x onerror="a()">\u202e';
  const { info } = await opened("two.trc", bytesOf(MARKERS.replace("\tA\t", `\t${name}\t`)));
  assert.equal(info.objects[0], name);
});
