import {
  BufferGeometry,
  Float32BufferAttribute,
  Group,
  LineBasicMaterial,
  LineSegments,
} from "three";
import { floorLines } from "../logic/floor_lines";
import type { Palette } from "../state/theme";

/** The grid that one stands on. */
export class Floor {
  readonly group = new Group();
  private readonly thin = new LineSegments(new BufferGeometry(), new LineBasicMaterial());
  private readonly thick = new LineSegments(new BufferGeometry(), new LineBasicMaterial());

  constructor() {
    this.group.add(this.thin, this.thick);
  }

  paint(palette: Palette): void {
    this.thin.material.color.setStyle(palette.grid);
    this.thick.material.color.setStyle(palette.gridMain);
  }

  /** @param step meters between two lines */
  lay(middleX: number, middleZ: number, step: number): void {
    const lines = floorLines(middleX, middleZ, step);
    replace(this.thin, lines.thin);
    replace(this.thick, lines.thick);
  }
}

function replace(lines: LineSegments, points: number[]): void {
  lines.geometry.dispose();
  lines.geometry = new BufferGeometry();
  lines.geometry.setAttribute("position", new Float32BufferAttribute(points, 3));
}
