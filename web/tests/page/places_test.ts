import assert from "node:assert/strict";
import { test } from "node:test";
import { neighborOf } from "../../page/logic/take_time";
import { goToFinding, goToGap, hasGaps, hasMarks } from "../../page/state/places";
import { connect } from "../../page/state/core";
import { report } from "../../page/state/findings";
import * as selection from "../../page/state/selection";
import { addTake } from "../../page/state/takes";
import * as time from "../../page/state/time";
import type { CoreApi, Finding, TakeInfo } from "../../worker/protocol";

const places = [{ frame: 8, object: 2 }, { frame: 3, object: 0 }, { frame: 3, object: 1 }, { frame: 5 }, {}];
const finding = { code: "a", severity: "note", text: "", cause: "", consequence: "", places } as unknown as Finding;

await connect(Promise.resolve({
  onProgress() {},
  findings: async () => ({ findings: [finding], json: "" }),
} as Partial<CoreApi> as CoreApi));
const info = {
  name: "take.trc", kind: "markers", frames: 20, rate: 10, objects: ["a", "b", "c"],
  gaps: Int32Array.of(0, 2, 4, 0, 9, 9, 1, 6, 7),
};
const take = addTake(info as unknown as TakeInfo, { positions: new Float32Array() });
time.activate(take);
for (let turn = 0; turn < 20 && !report.value; ++turn) await new Promise((done) => setImmediate(done));

test("the nearest frame is the one before or behind, never the same", () => {
  assert.equal(neighborOf([9, 2, 5, 7], 5, 1), 7);
  assert.equal(neighborOf([9, 2, 5, 3], 5, -1), 3);
  assert.equal(neighborOf([5], 5, 1), null);
  assert.equal(neighborOf([], 5, -1), null);
});

function framesOf(go: () => void, times: number): number[] {
  return Array.from({ length: times }, () => {
    go();
    return time.frame.value;
  });
}

test("gaps are those of what is selected, or of all", () => {
  time.jumpTo(0);
  selection.deselect();
  assert.deepEqual(framesOf(() => goToGap(1), 4), [2, 6, 9, 9]);
  selection.select(take, 0, false);
  assert.deepEqual(framesOf(() => goToGap(-1), 2), [2, 2]);
  selection.select(take, 2, false);
  assert.equal(hasGaps.value, false);
  selection.select(take, 1, true);
  assert.deepEqual(framesOf(() => goToGap(1), 1), [6]);
});

test("findings are gone to frame by frame, and select what has them there", () => {
  assert.equal(hasMarks.value, true);
  time.jumpTo(0);
  selection.deselect();
  goToFinding(1);
  assert.equal(time.frame.value, 3);
  assert.deepEqual([...selection.selectedInActive.value], [0, 1]);
  goToFinding(1);
  assert.equal(time.frame.value, 5);
  assert.deepEqual([...selection.selectedInActive.value], [0, 1], "it is of none in particular");
  assert.deepEqual(framesOf(() => goToFinding(1), 2), [8, 8]);
  assert.deepEqual([...selection.selectedInActive.value], [2]);
  assert.deepEqual(framesOf(() => goToFinding(-1), 1), [5]);
});
