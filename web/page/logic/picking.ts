/** Which object is meant by a place on the screen. */

export interface ScreenSegment {
  x: number;
  y: number;
  endX: number;
  endY: number;
  /** Falls to the front. */
  depth: number;
}

/** How far a place lies from a line between two places. */
export function distanceToSegment(x: number, y: number, line: ScreenSegment): number {
  const alongX = line.endX - line.x;
  const alongY = line.endY - line.y;
  const square = alongX * alongX + alongY * alongY;
  const share = square > 0 ? ((x - line.x) * alongX + (y - line.y) * alongY) / square : 0;
  const clamped = Math.min(Math.max(share, 0), 1);
  return Math.hypot(x - line.x - clamped * alongX, y - line.y - clamped * alongY);
}

/** A choice that keeps the best so far: what lies under the place counts by depth, what is near by distance. */
export class Nearest<Key> {
  private best: { key: Key; under: boolean; distance: number; depth: number } | null = null;

  constructor(
    private readonly x: number,
    private readonly y: number,
    private readonly reach: number,
  ) {}

  /** @param radius how wide the object is drawn around its line */
  offer(key: Key, line: ScreenSegment, radius: number): void {
    const distance = distanceToSegment(this.x, this.y, line);
    if (!(distance <= Math.max(radius, this.reach))) return;
    const under = distance <= radius;
    if (this.best && !this.isBetter(under, distance, line.depth)) return;
    this.best = { key, under, distance, depth: line.depth };
  }

  private isBetter(under: boolean, distance: number, depth: number): boolean {
    const best = this.best!;
    if (under !== best.under) return under;
    return under ? depth < best.depth : distance < best.distance;
  }

  get key(): Key | null {
    return this.best?.key ?? null;
  }
}
