import assert from "node:assert/strict";
import { test } from "node:test";
import { advance, shuttle } from "../../page/logic/playback";
import { clampFrame, frameIn, placeIn, reachOf, secondsOf } from "../../page/logic/take_time";

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

test("time reaches from the first frame of all takes to the last", () => {
  const film = { frames: 48, rate: 24, offset: 0 };
  const fast = { frames: 480, rate: 240, offset: 0 };
  assert.deepEqual(reachOf(film, [film, fast]), { first: 0, end: 48 });
  assert.deepEqual(reachOf(fast, [film, fast]), { first: 0, end: 480 });
  assert.deepEqual(reachOf(film, [film, { ...fast, offset: 0.5 }]), { first: 0, end: 60 });
  assert.deepEqual(reachOf({ ...fast, offset: 0.5 }, [film]), { first: -120, end: 480 });
  assert.deepEqual(reachOf(film, [{ ...fast, rate: 0, offset: 9 }, { ...fast, frames: 0, offset: 9 }]), {
    first: 0,
    end: 48,
  });
  assert.deepEqual(reachOf({ ...film, frames: 0 }, []), { first: 0, end: 1 });
});

test("frames stay where there are some", () => {
  const reach = { first: -4, end: 10 };
  assert.equal(clampFrame(-3, reach), -3);
  assert.equal(clampFrame(-30, reach), -4);
  assert.equal(clampFrame(30, reach), 9);
  assert.equal(clampFrame(NaN, reach), 0);
});
