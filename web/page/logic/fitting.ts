import type { Box, Point } from "./tracks";

/** How far from the middle of a box one has to stand to see all of it. */

interface Direction {
  x: number;
  y: number;
  z: number;
}

function cross(one: Direction, other: Direction): Direction {
  return {
    x: one.y * other.z - one.z * other.y,
    y: one.z * other.x - one.x * other.z,
    z: one.x * other.y - one.y * other.x,
  };
}

function unit({ x, y, z }: Direction): Direction {
  const length = Math.hypot(x, y, z) || 1;
  return { x: x / length, y: y / length, z: z / length };
}

function dot(direction: Direction, [x, y, z]: Point): number {
  return direction.x * x + direction.y * y + direction.z * z;
}

function corners({ min, max }: Box): Point[] {
  return Array.from({ length: 8 }, (_, bits): Point => {
    const side = (axis: 0 | 1 | 2): number =>
      ((bits >> axis) & 1 ? 0.5 : -0.5) * (max[axis] - min[axis]);
    return [side(0), side(1), side(2)];
  });
}

/**
 * @param towards from the middle to the eye, of length 1, not straight up or down
 * @param fieldDegrees the height of what is seen, as an angle
 * @param aspect its width by its height
 */
export function fittingDistance(
  box: Box,
  towards: Direction,
  fieldDegrees: number,
  aspect: number,
): number {
  const right = unit(cross({ x: 0, y: 1, z: 0 }, towards));
  const up = cross(towards, right);
  const slope = Math.tan(((fieldDegrees / 2) * Math.PI) / 180);
  const distances = corners(box).map(
    (corner) =>
      dot(towards, corner) +
      Math.max(Math.abs(dot(up, corner)) / slope, Math.abs(dot(right, corner)) / (slope * aspect)),
  );
  return Math.max(...distances);
}
