/** How time goes on: between an in and an out point, forward or backward, once or in a loop. */

export interface Span {
  first: number;
  last: number;
}

export interface Step {
  position: number;
  ended: boolean;
}

/** Where a position comes to in `frames` (negative: backward), and whether it stands at the end of the span. */
export function advance(position: number, frames: number, span: Span, loop: boolean): Step {
  const next = position + frames;
  if (next >= span.first && next < span.last + 1) return { position: next, ended: false };
  if (!loop) {
    return { position: frames < 0 ? span.first : span.last, ended: true };
  }
  const length = span.last - span.first + 1;
  const into = (((next - span.first) % length) + length) % length;
  return { position: span.first + into, ended: false };
}

export const SPEEDS: readonly number[] = [0.1, 0.25, 0.5, 1, 2, 4, 8];

/** The speed that a further press of J or L plays at: the direction first, then twice as fast each time. */
export function shuttle(speed: number, playing: boolean, direction: 1 | -1): number {
  if (!playing || Math.sign(speed) !== direction) return direction;
  return Math.sign(speed) * Math.min(Math.abs(speed) * 2, 8);
}
