import { Matrix4, OrthographicCamera, PerspectiveCamera, Spherical, Vector3 } from "three";
import { OrbitControls } from "three/examples/jsm/controls/OrbitControls.js";
import { fittingDistance } from "../logic/fitting";
import { diagonal, isEmpty, type Box } from "../logic/tracks";
import type { Projection } from "../state/view_options";

/** Where the scene is seen from: two cameras, of which one is in use, moved around a point. */

const FIELD_DEGREES = 35;
const ROOM = 1.12;
const FIRST_DIRECTION = new Vector3(1.5, 0.5, 1).normalize();

export type Side = "front" | "side" | "top";

const SIDES: Readonly<Record<Side, Vector3>> = {
  front: new Vector3(0, 0, 1),
  side: new Vector3(1, 0, 0),
  top: new Vector3(0, 1, 1e-4).normalize(),
};

export class Eye {
  readonly viewProjection = new Matrix4();
  private readonly perspective = new PerspectiveCamera(FIELD_DEGREES);
  private readonly orthogonal = new OrthographicCamera();
  private readonly controls: OrbitControls;
  private aspect = 1;
  private sceneSize = 1;

  constructor(canvas: HTMLCanvasElement, changed: () => void) {
    this.perspective.position.copy(FIRST_DIRECTION).multiplyScalar(6);
    this.controls = new OrbitControls(this.perspective, canvas);
    this.controls.target.set(0, 0.9, 0);
    this.controls.zoomToCursor = false;
    this.controls.addEventListener("change", changed);
    this.controls.update();
  }

  get camera(): PerspectiveCamera | OrthographicCamera {
    return this.controls.object as PerspectiveCamera | OrthographicCamera;
  }

  get target(): Vector3 {
    return this.controls.target;
  }

  private get distance(): number {
    return this.camera.position.distanceTo(this.target);
  }

  resize(width: number, height: number): void {
    this.aspect = width / Math.max(height, 1);
  }

  project(projection: Projection): void {
    const wanted = projection === "perspective" ? this.perspective : this.orthogonal;
    const before = this.camera;
    if (wanted === before) return;
    const away = before.position.clone().sub(this.target);
    if (before instanceof OrthographicCamera) away.divideScalar(before.zoom);
    wanted.position.copy(this.target).add(away);
    this.orthogonal.zoom = 1;
    this.orthogonal.userData.distance = away.length();
    this.controls.object = wanted;
    this.controls.update();
  }

  /** Looks at a box from where the eye is now, as close as shows all of it. */
  fit(box: Box, whole: Box): void {
    if (isEmpty(box)) return;
    this.sceneSize = Math.max(diagonal(whole), diagonal(box), 1e-3);
    const direction = this.camera.position.clone().sub(this.target).normalize();
    const middle = new Vector3(...box.min).add(new Vector3(...box.max)).divideScalar(2);
    const distance = fittingDistance(box, direction, FIELD_DEGREES, this.aspect);
    this.target.copy(middle);
    this.place(direction, Math.max(distance * ROOM, this.sceneSize / 100));
  }

  lookFrom(side: Side): void {
    this.place(SIDES[side], this.distance);
  }

  /** Goes around the point that is looked at, by angles in degrees. */
  orbit(across: number, upward: number): void {
    const around = new Spherical().setFromVector3(this.camera.position.clone().sub(this.target));
    around.theta += (across * Math.PI) / 180;
    around.phi -= (upward * Math.PI) / 180;
    around.makeSafe();
    this.place(new Vector3().setFromSpherical(around).normalize(), this.distance);
  }

  zoom(factor: number): void {
    const { camera } = this;
    if (camera instanceof OrthographicCamera) {
      camera.zoom *= factor;
      this.controls.update();
      return;
    }
    const direction = camera.position.clone().sub(this.target).normalize();
    this.place(direction, this.distance / factor);
  }

  /** Goes along to the right and up, by parts of the height that is seen. */
  pan(across: number, upward: number): void {
    const height = this.seenHeight();
    const right = new Vector3().setFromMatrixColumn(this.camera.matrixWorld, 0);
    const up = new Vector3().setFromMatrixColumn(this.camera.matrixWorld, 1);
    const by = right.multiplyScalar(across * height).addScaledVector(up, upward * height);
    this.shift(by.x, by.y, by.z);
  }

  private seenHeight(): number {
    const { camera } = this;
    if (camera instanceof OrthographicCamera) return (camera.top - camera.bottom) / camera.zoom;
    return 2 * this.distance * Math.tan((FIELD_DEGREES / 2) * (Math.PI / 180));
  }

  private place(direction: Vector3, distance: number): void {
    this.camera.position.copy(this.target).addScaledVector(direction, distance);
    this.orthogonal.zoom = 1;
    this.orthogonal.userData.distance = distance;
    this.controls.update();
  }

  shift(x: number, y: number, z: number): void {
    const by = new Vector3(x, y, z);
    this.target.add(by);
    this.camera.position.add(by);
    this.controls.update();
  }

  /** Before each picture: what the camera sees, near and far. */
  prepare(): void {
    const { distance } = this;
    const depth = distance * 4 + this.sceneSize * 4;
    this.perspective.aspect = this.aspect;
    this.perspective.near = Math.max(distance / 200, depth / 20000);
    this.perspective.far = depth;
    const from = (this.orthogonal.userData.distance as number | undefined) ?? distance;
    const halfHeight = from * Math.tan((FIELD_DEGREES / 2) * (Math.PI / 180));
    this.orthogonal.top = halfHeight;
    this.orthogonal.bottom = -halfHeight;
    this.orthogonal.left = -halfHeight * this.aspect;
    this.orthogonal.right = halfHeight * this.aspect;
    this.orthogonal.near = -depth;
    this.orthogonal.far = depth;
    this.camera.updateProjectionMatrix();
    this.camera.updateMatrixWorld();
    this.viewProjection.multiplyMatrices(
      this.camera.projectionMatrix,
      this.camera.matrixWorldInverse,
    );
  }

  dispose(): void {
    this.controls.dispose();
  }
}
