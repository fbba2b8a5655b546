import { Quaternion, Vector3, type Camera } from "three";
import type { Screen } from "../logic/projection";

/** The directions of the file's axes, small in a corner. */

const LENGTH = 26;
const NAMES = ["X", "Y", "Z"];

function directions(up: "y" | "z"): Vector3[] {
  const axes = [new Vector3(1, 0, 0), new Vector3(0, 1, 0), new Vector3(0, 0, 1)];
  if (up === "y") return axes;
  return axes.map((axis) => axis.applyAxisAngle(new Vector3(1, 0, 0), -Math.PI / 2));
}

export function drawAxes(
  context: CanvasRenderingContext2D,
  camera: Camera,
  up: "y" | "z",
  screen: Screen,
  colors: readonly string[],
): void {
  const turn = camera.getWorldQuaternion(new Quaternion()).invert();
  const x = 44;
  const y = screen.height - 44;
  const seen = directions(up).map((axis, index) => ({ axis: axis.applyQuaternion(turn), index }));
  seen.sort((one, other) => one.axis.z - other.axis.z);
  context.font = "bold 11px system-ui, sans-serif";
  context.textAlign = "center";
  context.textBaseline = "middle";
  context.lineWidth = 2;
  for (const { axis, index } of seen) {
    context.strokeStyle = colors[index];
    context.fillStyle = colors[index];
    context.beginPath();
    context.moveTo(x, y);
    context.lineTo(x + axis.x * LENGTH, y - axis.y * LENGTH);
    context.stroke();
    context.fillText(NAMES[index], x + axis.x * (LENGTH + 9), y - axis.y * (LENGTH + 9));
  }
}
