import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { curveTexts, shownLength, type Curve } from "../../page/state/curves";
import { dismiss, notices, notify } from "../../page/state/notices";
import * as selection from "../../page/state/selection";
import { setting } from "../../page/state/settings";
import { activeKey, addTake, labelOf, removeTake, takes, type Take } from "../../page/state/takes";
import * as time from "../../page/state/time";
import { unit } from "../../page/state/view_options";
import type { TakeInfo } from "../../worker/protocol";

function take(frames: number, rate: number): Take {
  const info = { name: "take.trc", frames, rate, objects: ["a", "b", "c"], gaps: new Int32Array() };
  return addTake(info as unknown as TakeInfo, { positions: new Float32Array() });
}

beforeEach(() => {
  takes.value = [];
  activeKey.value = 0;
  selection.deselect();
  time.stop();
  time.clearSpan();
  time.setSpeed(1);
  time.loop.value = false;
});

test("another take goes on at the same moment, also where it has none", () => {
  const film = take(48, 24);
  const fast = take(240, 240);
  time.activate(film);
  time.jumpTo(12);
  assert.equal(time.frameOf(fast), 120);
  time.activate(fast);
  assert.equal(time.frame.value, 120);
  assert.deepEqual(time.timelineView.value, { first: 0, end: 471 });
  fast.offset.value = 10;
  assert.equal(time.frameOf(film), -1);
  time.activate(film);
  assert.equal(time.frame.value, 252);
  assert.deepEqual([time.frameOf(film), time.frameOf(fast)], [-1, 120]);
});

test("it plays from the beginning of the first take to the end of the last", () => {
  const first = take(30, 30);
  const later = take(30, 30);
  later.offset.value = 2;
  time.activate(later);
  time.goToStart();
  assert.equal(time.frame.value, -60);
  time.togglePlay();
  const seen = Array.from({ length: 4 }, () => {
    time.passTime(0.9);
    return [time.frame.value, time.frameOf(first), time.frameOf(later)];
  });
  assert.deepEqual(seen, [[-33, 27, -1], [-6, -1, -1], [21, -1, 21], [29, -1, 29]]);
  assert.equal(time.playing.value, false);
  time.activate(first);
  assert.deepEqual([time.frame.value, time.timelineView.value], [89, { first: 0, end: 90 }]);
});

test("time ends with what is still open", () => {
  const first = take(30, 30);
  const later = take(30, 30);
  time.activate(first);
  later.offset.value = 2;
  time.goToEnd();
  time.zoomTimeline(2, 90);
  later.offset.value = 1;
  assert.deepEqual([time.frame.value, time.timelineView.value], [59, { first: 15, end: 60 }]);
  removeTake(later);
  assert.deepEqual([time.frame.value, time.timelineView.value], [29, { first: 0, end: 30 }]);
  take(90, 30);
  assert.deepEqual([time.frame.value, time.reach.value], [29, { first: 0, end: 90 }]);
});

test("in and out points and the zoom stay at their moments when another take is worked on", () => {
  const film = take(48, 24);
  const fast = take(480, 240);
  time.activate(film);
  time.jumpTo(12);
  time.setIn();
  time.jumpTo(24);
  time.setOut();
  time.zoomTimeline(4);
  const { first, end } = time.timelineView.value;
  time.activate(fast);
  assert.deepEqual(time.span.value, { first: 120, last: 240 });
  assert.deepEqual(time.timelineView.value, { first: 10 * first, end: 10 * end });
  time.activate(film);
  assert.deepEqual(time.span.value, { first: 12, last: 24 });
  fast.offset.value = 0.75;
  time.activate(fast);
  assert.deepEqual(time.span.value, { first: -60, last: 60 });
});

test("a curve is told at the frame of its own take, in the unit that is chosen", () => {
  const film = take(48, 24);
  const fast = take(480, 240);
  const info = { ...fast.info, millimetresPerUnit: 10 };
  const value = (frame: number): number => frame;
  const column = Array.from({ length: 480 }, (_, frame) => value(frame));
  const curve = { take: { ...fast, info }, object: 0, of: "position", columns: [column, column, column, column] };
  time.activate(film);
  time.jumpTo(3);
  unit.value = "mm";
  assert.deepEqual(curveTexts(curve as Curve), ["300.0 mm", "300.0 mm", "300.0 mm"]);
  assert.deepEqual(shownLength(curve as Curve), { unit: " mm", factor: 10 });
  unit.value = "m";
  assert.equal(curveTexts(curve as Curve)[0], "0.3000 m");
  assert.equal(curveTexts({ ...curve, of: "rotation" } as Curve)[0], "30.00°");
  time.jumpTo(47);
  assert.equal(curveTexts({ ...curve, take: { ...curve.take, offset: { value: 9 } } } as Curve)[0], null);
});

test("it plays by the file's rate to the out point, and stops there", () => {
  time.activate(take(100, 50));
  time.jumpTo(10);
  time.setIn();
  time.jumpTo(19);
  time.setOut();
  time.jumpTo(10);
  time.togglePlay();
  time.passTime(0.1);
  assert.equal(time.frame.value, 15);
  time.passTime(1);
  assert.equal(time.frame.value, 19);
  assert.equal(time.playing.value, false);
  time.togglePlay();
  assert.equal(time.frame.value, 10);
});

test("pieces of frames add up", () => {
  time.activate(take(100, 24));
  time.goTo(0);
  time.play(0.5);
  for (let picture = 0; picture < 60; ++picture) time.passTime(1 / 60);
  assert.ok(Math.abs(time.frame.value - 12) <= 1);
});

test("it plays backward, in a loop over the end", () => {
  time.activate(take(10, 10));
  time.loop.value = true;
  time.goTo(1);
  time.shuttleTo(-1);
  time.passTime(0.3);
  assert.equal(time.frame.value, 8);
  assert.equal(time.playing.value, true);
});

test("a take without a rate is played, one of a single frame is not", () => {
  time.activate(take(100, 0));
  time.goTo(0);
  time.play(1);
  time.passTime(1);
  assert.equal(time.frame.value, 30);
  time.stop();
  time.activate(take(1, 30));
  time.play(1);
  assert.equal(time.playing.value, false);
});

test("an out point before the in point is none, and the other way around", () => {
  time.activate(take(100, 25));
  time.jumpTo(20);
  time.setOut();
  time.jumpTo(50);
  time.setIn();
  assert.deepEqual(time.span.value, { first: 50, last: 99 });
});

test("Home and End go to the points first, then to the ends", () => {
  time.activate(take(100, 25));
  time.jumpTo(20);
  time.setIn();
  time.jumpTo(50);
  time.goToStart();
  assert.equal(time.frame.value, 20);
  time.goToStart();
  assert.equal(time.frame.value, 0);
  time.goToEnd();
  assert.equal(time.frame.value, 99);
});

test("what is selected of a take goes with it", () => {
  const one = take(10, 10);
  const other = take(10, 10);
  time.activate(one);
  selection.select(one, 1, false);
  selection.select(other, 2, true);
  assert.deepEqual([...selection.selectedOf(one)], [1]);
  assert.deepEqual(selection.lastSelected.value, { take: other.key, object: 2 });
  selection.select(one, 1, true);
  assert.deepEqual([...selection.selectedOf(one)], []);
  removeTake(other);
  assert.equal(selection.lastSelected.value, null);
});

test("of many files that fail each is told", () => {
  for (let file = 0; file < 30; ++file) notify("error", `${file}.htr was not opened`);
  assert.equal(notices.value.length, 30);
  assert.equal(notices.value[0].title, "0.htr was not opened");
  for (const { key } of notices.value) dismiss(key);
  assert.equal(notices.value.length, 0);
});

test("takes of one name are told apart, however often one is closed and opened", () => {
  const named = (name: string): Take =>
    addTake({ name, objects: [], gaps: new Int32Array() } as unknown as TakeInfo, { positions: new Float32Array() });
  const first = named("walk.trc");
  const second = named("walk.trc");
  const third = named("walk.trc");
  assert.deepEqual([first, second, third].map((each) => labelOf(each)),
    ["walk.trc", "walk.trc (2)", "walk.trc (3)"]);
  removeTake(second);
  assert.equal(labelOf(third), "walk.trc (3)");
  assert.deepEqual([named("walk.trc"), named("walk.trc (2)")].map((each) => labelOf(each)),
    ["walk.trc (2)", "walk.trc (2) (2)"]);
  const long = "w".repeat(200);
  assert.deepEqual([named(`${long}1.trc`), named(`${long}2.trc`)].map((each) => labelOf(each, 60)),
    [`${"w".repeat(60)}…`, `${"w".repeat(60)}… (2)`]);
});

test("a color that became free is given again", () => {
  const first = take(10, 10);
  const second = take(10, 10);
  removeTake(first);
  assert.deepEqual([second.color, take(10, 10).color, take(10, 10).color], [1, 0, 2]);
});

test("settings work where nothing can be kept, and take over nothing that is not one", () => {
  const isText = (kept: unknown): kept is string => typeof kept === "string";
  assert.equal(setting("nowhere", "first", isText).value, "first");
  const kept = new Map([["orvane-workbench/known", '"kept"']]);
  kept.set("orvane-workbench/other", "7");
  kept.set("orvane-workbench/broken", "{");
  const storage = {
    getItem: (key: string) => kept.get(key) ?? null,
    setItem: (key: string, value: string) => kept.set(key, value),
  };
  Object.defineProperty(globalThis, "localStorage", { value: storage, configurable: true });
  assert.equal(setting("known", "first", isText).value, "kept");
  assert.equal(setting("other", "first", isText).value, "first");
  const broken = setting("broken", "first", isText);
  assert.equal(broken.value, "first");
  broken.value = "chosen";
  assert.equal(kept.get("orvane-workbench/broken"), '"chosen"');
});
