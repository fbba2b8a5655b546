import {
  BufferAttribute,
  BufferGeometry,
  DynamicDrawUsage,
  LineBasicMaterial,
  LineSegments,
} from "three";
import { fillLinks, linkedObjects } from "../logic/links";

/** Thin lines from each joint to the one that it hangs from, which a bone does not always lead to. */
export class Links {
  readonly body: LineSegments<BufferGeometry, LineBasicMaterial>;
  private readonly linked: readonly number[];
  private readonly points: Float32Array;

  constructor(private readonly parents: readonly number[]) {
    this.linked = linkedObjects(parents);
    this.points = new Float32Array(this.linked.length * 6);
    const attribute = new BufferAttribute(this.points, 3);
    attribute.setUsage(DynamicDrawUsage);
    const geometry = new BufferGeometry();
    geometry.setAttribute("position", attribute);
    const material = new LineBasicMaterial({ transparent: true, opacity: 0.55 });
    this.body = new LineSegments(geometry, material);
    this.body.frustumCulled = false;
  }

  paint(color: string): void {
    this.body.material.color.setStyle(color);
  }

  /** @param places of the joints, what is missing being NOWHERE */
  show(places: Float32Array): void {
    fillLinks(places, this.parents, this.linked, this.points);
    this.body.geometry.getAttribute("position").needsUpdate = true;
  }

  dispose(): void {
    this.body.geometry.dispose();
    this.body.material.dispose();
  }
}
