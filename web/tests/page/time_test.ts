import assert from "node:assert/strict";
import { test } from "node:test";
import { advance, shuttle } from "../../page/logic/playback";
import { clampFrame, frameIn, placeIn, secondsOf } from "../../page/logic/take_time";

const SPAN = { first: 10, last: 19 };

test("time goes on to the end of the span and stops there, or begins anew", () => {
  const cases: [number, number, boolean, number, boolean][] = [
    [12, 3, false, 15, false],
    [19, 0.5, false, 19.5, false],
    [19, 1, false, 19, true],
    [19, 1, true, 10, false],
    [12, -3, false, 10, true],
    [12, -3, true, 19, false],
    [12, 25, true, 17, false],
    [5, 1, true, 16, false],
  ];
  for (const [position, frames, loop, expected, ended] of cases) {
    assert.deepEqual(advance(position, frames, SPAN, loop), { position: expected, ended });
  }
});

test("J and L set the direction first, then double the speed up to eight times", () => {
  assert.equal(shuttle(1, false, 1), 1);
  assert.equal(shuttle(4, false, 1), 1);
  assert.equal(shuttle(1, true, 1), 2);
  assert.equal(shuttle(8, true, 1), 8);
  assert.equal(shuttle(4, true, -1), -1);
  assert.equal(shuttle(-1, true, -1), -2);
});

test("takes of other rates and beginnings show the same moment", () => {
  const film = { frames: 48, rate: 24, offset: 0 };
  const fast = { frames: 480, rate: 240, offset: 0 };
  assert.equal(frameIn(fast, film, 24), 240);
  assert.equal(frameIn(film, fast, 245), 25);
  assert.equal(frameIn({ ...fast, offset: 0.5 }, film, 24), 120);
  assert.equal(frameIn({ ...fast, offset: 0.5 }, film, 3), -1);
  assert.equal(frameIn(fast, { ...film, offset: 1 }, 0), 240);
  assert.equal(frameIn(film, fast, 479), -1);
  assert.equal(secondsOf({ frames: 1, rate: 0, offset: 0 }, 30), 0);
});

test("a place on the frames of one take lies on those of another", () => {
  const film = { frames: 48, rate: 24, offset: 0 };
  const fast = { frames: 480, rate: 240, offset: 0.5 };
  assert.equal(placeIn(film, fast, 0), 12);
  assert.equal(placeIn(film, fast, 5), 12.5);
  assert.equal(placeIn(fast, film, 0), -120);
  assert.equal(placeIn(film, { ...fast, rate: 0 }, 7), 7);
});

test("frames stay within the take", () => {
  assert.equal(clampFrame(-3, 10), 0);
  assert.equal(clampFrame(30, 10), 9);
  assert.equal(clampFrame(NaN, 10), 0);
  assert.equal(clampFrame(3, 0), 0);
});
