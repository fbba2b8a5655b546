const RADIUS = 10;

/** Of what is suggested by a name, and by a position alone. */
export const DASHES = { name: [4, 3], position: [1.5, 4] } as const;

/** A broken ring around a place, for what is suggested and was not done. */
export function drawRing(
  context: CanvasRenderingContext2D,
  x: number,
  y: number,
  color: string,
  dashes: readonly number[],
): void {
  context.save();
  context.strokeStyle = color;
  context.lineWidth = 1.5;
  context.setLineDash([...dashes]);
  context.beginPath();
  context.arc(x, y, RADIUS, 0, 2 * Math.PI);
  context.stroke();
  context.restore();
}
