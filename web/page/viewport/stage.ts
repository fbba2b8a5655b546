import { batch, effect, signal, untracked } from "@preact/signals";
import { Scene, SRGBColorSpace, Vector3, WebGLRenderer } from "three";
import { Nearest } from "../logic/picking";
import { isOnScreen, type Screen } from "../logic/projection";
import { diagonal, emptyBox, isEmpty, type Box } from "../logic/tracks";
import { gridStep, metersOf } from "../logic/units";
import { isTelling } from "../logic/usual_box";
import { objectOfNode } from "../state/scene";
import { hovered, selected, selectedOf, type ObjectReference } from "../state/selection";
import { activeTake, SCENE_KEY, seenTakes, working } from "../state/takes";
import { palette } from "../state/theme";
import { frameOf } from "../state/time";
import { follow, grid, labels, projection, trails, unit, upAxis } from "../state/view_options";
import { suggestion } from "../state/work";
import { drawAxes } from "./axes_overlay";
import { Eye } from "./eye";
import { Floor } from "./floor";
import { NamesOverlay } from "./names_overlay";
import { DASHES, drawRing } from "./ring";
import { TakeDrawing } from "./take_drawing";

/** The length between two lines of the floor, in the unit that is shown. */
export const floorStep = signal(1);
/** How many objects are seen, of how many there are. */
export const drawnCount = signal(0);

const PICK_REACH = 12;
const FAR = 2.5;
/** Pixels of a saved picture for each of the page. */
const PICTURE_PIXELS = 2;

/** All that is seen in the view. It draws when something has changed, once for each picture of the screen. */
export class Stage {
  readonly eye: Eye;
  private readonly renderer: WebGLRenderer;
  private readonly scene = new Scene();
  private readonly floor = new Floor();
  private readonly names: NamesOverlay;
  private readonly context: CanvasRenderingContext2D;
  private readonly stops: (() => void)[] = [];
  private drawings: readonly TakeDrawing[] = [];
  private screen: Screen = { width: 1, height: 1 };
  private followed: Vector3 | null = null;
  private requested = 0;

  constructor(
    canvas: HTMLCanvasElement,
    private readonly overlay: HTMLCanvasElement,
  ) {
    this.renderer = new WebGLRenderer({ canvas, antialias: true, alpha: true });
    this.renderer.outputColorSpace = SRGBColorSpace;
    this.context = overlay.getContext("2d")!;
    this.names = new NamesOverlay(this.context);
    this.eye = new Eye(canvas, () => this.invalidate());
    this.scene.add(this.floor.group);
    this.stops.push(
      effect(() => this.takeDrawings()),
      effect(() => this.paint()),
      effect(() => this.orient()),
      effect(() => this.markSelected()),
      effect(() => this.project()),
      effect(() => this.watchTime()),
    );
  }

  private takeDrawings(): void {
    const before = new Map(this.drawings.map((drawing) => [drawing.take, drawing]));
    this.drawings = seenTakes.value.map((take) => before.get(take) ?? new TakeDrawing(take));
    const keys = new Set([...before.keys()].map(({ key }) => key));
    const areAllNew = !this.drawings.some(({ take }) => keys.has(take.key));
    for (const drawing of this.drawings) {
      if (!before.delete(drawing.take)) this.scene.add(drawing.group);
    }
    for (const drawing of before.values()) drawing.dispose();
    untracked(() => this.prepare());
    if (areAllNew && this.drawings.length > 0) queueMicrotask(() => this.lookAtFirst());
  }

  // What changes with other signals is made ready for new takes here, in whatever order effects run.
  private prepare(): void {
    this.paint();
    this.orient();
    this.markSelected();
  }

  private paint(): void {
    void seenTakes.value;
    this.floor.paint(palette.value);
    for (const drawing of this.drawings) drawing.paint(palette.value);
    this.invalidate();
  }

  private orient(): void {
    for (const drawing of this.drawings) {
      const own = drawing.take.info.upAxis;
      drawing.orient(upAxis.value === "file" ? own : upAxis.value);
    }
    this.followed = null;
    this.layFloor(unit.value);
    this.invalidate();
  }

  private layFloor(inUnit: typeof unit.value): void {
    const box = this.wholeBox();
    const extent = isEmpty(box)
      ? 4
      : Math.max(box.max[0] - box.min[0], box.max[2] - box.min[2], 0.2 * (box.max[1] - box.min[1]));
    const step = gridStep(Math.max(extent * 2, 1e-6), inUnit);
    floorStep.value = step;
    const middle = isEmpty(box) ? [0, 0] : [box.min[0] + box.max[0], box.min[2] + box.max[2]];
    this.floor.lay(middle[0] / 2, middle[1] / 2, step * metersOf(inUnit));
  }

  private project(): void {
    this.eye.project(projection.value);
    this.invalidate();
  }

  private markSelected(): void {
    void selected.value;
    for (const drawing of this.drawings) {
      const objects = selectedOf(drawing.take);
      drawing.mark((object) => (objects.has(object) ? 1 : 0));
    }
    this.followed = null;
    this.invalidate();
  }

  private watchTime(): void {
    for (const take of seenTakes.value) {
      frameOf(take);
      void take.shown.value;
    }
    void suggestion.value;
    void [labels.value, grid.value, trails.value, hovered.value];
    if (!follow.value) this.followed = null;
    this.invalidate();
  }

  resize(width: number, height: number): void {
    if (width < 1 || height < 1) return;
    this.setSize(width, height, Math.min(devicePixelRatio, 2));
    this.render();
  }

  private setSize(width: number, height: number, ratio: number): void {
    this.screen = { width, height };
    this.renderer.setPixelRatio(ratio);
    this.renderer.setSize(width, height, false);
    this.overlay.width = Math.round(width * ratio);
    this.overlay.height = Math.round(height * ratio);
    this.eye.resize(width, height);
  }

  invalidate(): void {
    if (this.requested === 0) this.requested = requestAnimationFrame(() => this.render());
  }

  private render(): void {
    cancelAnimationFrame(this.requested);
    this.requested = 0;
    for (const drawing of this.drawings) {
      const frame = frameOf(drawing.take);
      drawing.setScreenHeight(this.renderer.domElement.height);
      drawing.show(frame);
      drawing.trails.show(this.trailsOf(drawing), frame);
    }
    this.floor.group.visible = grid.value;
    this.keepFollowing();
    this.eye.prepare();
    this.renderer.render(this.scene, this.eye.camera);
    this.drawOverlay();
    this.requested = 0;
    drawnCount.value = this.drawings.reduce((sum, drawing) => sum + drawing.drawn, 0);
  }

  private trailsOf(drawing: TakeDrawing): readonly number[] {
    if (trails.value === "off") return [];
    if (trails.value === "all") return Array.from({ length: drawing.count }, (_, index) => index);
    return [...selectedOf(drawing.take)];
  }

  private drawOverlay(): void {
    const ratio = this.overlay.width / this.screen.width;
    this.context.setTransform(ratio, 0, 0, ratio, 0, 0);
    this.context.clearRect(0, 0, this.screen.width, this.screen.height);
    if (labels.value) {
      const over = hovered.value;
      const marked = ({ take }: TakeDrawing, object: number): boolean =>
        selectedOf(take).has(object) || (over?.object === object && over.take === take.key);
      this.projectAll();
      this.names.draw(this.drawings, marked, this.screen, palette.value);
    }
    this.markSuggested();
    const up = upAxis.value === "file" ? (activeTake.value?.info.upAxis ?? "y") : upAxis.value;
    drawAxes(this.context, this.eye.camera, up, this.screen, palette.value.axes);
  }

  private markSuggested(): void {
    const suggested = suggestion.value;
    const object = objectOfNode.value.get(suggested?.node ?? 0);
    const drawing = this.drawings.find(({ take }) => take.key === SCENE_KEY);
    if (object === undefined || !drawing?.group.visible) return;
    this.projectAll();
    if (!isOnScreen(drawing.screenPlaces, object, this.screen)) return;
    const [x, y] = drawing.screenPlaces.subarray(object * 3);
    const dashes = suggested?.reason === "geometry" ? DASHES.position : DASHES.name;
    drawRing(this.context, x, y, palette.value.quiet, dashes);
  }

  private projectAll(): void {
    for (const drawing of this.drawings) {
      if (drawing.group.visible) drawing.project(this.eye.viewProjection, this.screen);
    }
  }

  private shownBox(onlySelected: boolean): Box {
    const box = emptyBox();
    for (const drawing of this.drawings) {
      drawing.encloseShown(box, onlySelected ? selectedOf(drawing.take) : null);
    }
    return box;
  }

  private wholeBox(): Box {
    const box = emptyBox();
    for (const drawing of this.drawings) {
      if (!drawing.take.shown.peek()) continue;
      const own = drawing.wholeBox();
      if (isEmpty(own)) continue;
      for (let axis = 0; axis < 3; ++axis) {
        box.min[axis] = Math.min(box.min[axis], own.min[axis]);
        box.max[axis] = Math.max(box.max[axis], own.max[axis]);
      }
    }
    return box;
  }

  /** Shows all that the first takes ever show; of a scene, and of takes that go so far that nothing would be seen, this moment alone. */
  private lookAtFirst(): void {
    for (const drawing of this.drawings) drawing.show(frameOf(drawing.take));
    const whole = this.wholeBox();
    const moment = this.shownBox(false);
    const drawn = this.drawings.reduce((sum, drawing) => sum + drawing.drawn, 0);
    const objects = this.drawings.reduce((sum, drawing) => sum + drawing.count, 0);
    const tells = isTelling(drawn, objects, diagonal(moment), diagonal(whole));
    const isFar = tells && diagonal(whole) > FAR * diagonal(moment);
    const isScene = working.value && !isEmpty(moment);
    this.eye.fit(isFar || isScene ? moment : whole, whole);
    this.invalidate();
  }

  /** Shows what is selected, or all that the takes ever show. */
  fit(): void {
    const whole = this.wholeBox();
    const box = selected.value.length > 0 ? this.shownBox(true) : whole;
    this.eye.fit(isEmpty(box) ? whole : box, whole);
    this.followed = null;
    this.invalidate();
  }

  private keepFollowing(): void {
    if (!follow.value) return;
    const box = this.shownBox(selected.value.length > 0);
    if (isEmpty(box)) return;
    const middle = new Vector3(
      (box.min[0] + box.max[0]) / 2,
      (box.min[1] + box.max[1]) / 2,
      (box.min[2] + box.max[2]) / 2,
    );
    const by = middle.clone().sub(this.followed ?? this.eye.target);
    this.followed = middle;
    this.eye.shift(by.x, by.y, by.z);
  }

  /** The object that is meant by a place on the screen. */
  pick(x: number, y: number): ObjectReference | null {
    this.projectAll();
    const nearest = new Nearest<ObjectReference>(x, y, PICK_REACH);
    const tip = new Vector3();
    for (const drawing of this.drawings) {
      if (!drawing.group.visible) continue;
      for (let object = 0; object < drawing.count; ++object) {
        if (!isOnScreen(drawing.screenPlaces, object, this.screen)) continue;
        this.offer(nearest, drawing, object, tip);
      }
    }
    return nearest.key;
  }

  private offer(
    nearest: Nearest<ObjectReference>,
    drawing: TakeDrawing,
    object: number,
    tip: Vector3,
  ): void {
    const places = drawing.screenPlaces;
    const placeX = places[object * 3];
    const placeY = places[object * 3 + 1];
    const isMotion = drawing.take.tracks.ends !== undefined;
    if (isMotion) drawing.tipOf(object, tip).applyMatrix4(this.eye.viewProjection);
    const endX = isMotion ? (tip.x / 2 + 0.5) * this.screen.width : placeX;
    const endY = isMotion ? (0.5 - tip.y / 2) * this.screen.height : placeY;
    const line = { x: placeX, y: placeY, endX, endY, depth: places[object * 3 + 2] };
    nearest.offer({ take: drawing.take.key, object }, line, 5);
  }

  /** What is seen now, with its names. */
  async picture(background: string): Promise<Blob> {
    const { width, height } = this.screen;
    this.setSize(width, height, PICTURE_PIXELS);
    this.render();
    const canvas = document.createElement("canvas");
    canvas.width = this.overlay.width;
    canvas.height = this.overlay.height;
    const context = canvas.getContext("2d")!;
    context.fillStyle = background;
    context.fillRect(0, 0, canvas.width, canvas.height);
    context.drawImage(this.renderer.domElement, 0, 0, canvas.width, canvas.height);
    context.drawImage(this.overlay, 0, 0);
    this.resize(width, height);
    return new Promise((resolve, reject) =>
      canvas.toBlob((blob) => (blob ? resolve(blob) : reject(new Error("No picture was made.")))),
    );
  }

  dispose(): void {
    cancelAnimationFrame(this.requested);
    batch(() => this.stops.forEach((stop) => stop()));
    for (const drawing of this.drawings) drawing.dispose();
    this.eye.dispose();
    this.renderer.dispose();
  }
}
