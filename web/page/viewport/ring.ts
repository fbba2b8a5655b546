const RADIUS = 10;

/** A dashed ring around a place, for what is suggested and was not done. */
export function drawRing(
  context: CanvasRenderingContext2D,
  x: number,
  y: number,
  color: string,
): void {
  context.save();
  context.strokeStyle = color;
  context.lineWidth = 1.5;
  context.setLineDash([4, 3]);
  context.beginPath();
  context.arc(x, y, RADIUS, 0, 2 * Math.PI);
  context.stroke();
  context.restore();
}
