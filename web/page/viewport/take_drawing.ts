import { Group, Matrix4, Vector3 } from "three";
import { projectAll, type Screen, type ScreenPlaces } from "../logic/projection";
import {
  ballRadius,
  copyFrame,
  diagonal,
  emptyBox,
  enclose,
  momentExtent,
  NOWHERE,
  type Box,
} from "../logic/tracks";
import { usualBox } from "../logic/usual_box";
import { colorOf } from "../state/take_color";
import type { Take } from "../state/takes";
import type { Palette } from "../state/theme";
import { Balls } from "./balls";
import { Bones } from "./bones";
import { Links } from "./links";
import { TrailLines } from "./trails";

/** What is seen of one take: in a group that turns its unit and axes into meters with y up. */
export class TakeDrawing {
  readonly group = new Group();
  /** The values of the frame that is shown, what is missing being NOWHERE. */
  readonly places: Float32Array;
  readonly radius: number;
  readonly screenPlaces: ScreenPlaces;
  readonly trails: TrailLines;
  private readonly tips: Float32Array | null;
  private readonly balls: Balls;
  private readonly bones: Bones | null;
  private readonly links: Links | null;
  private readonly usualBox: Box;
  private shownFrame = -2;

  constructor(readonly take: Take) {
    const { info, tracks } = take;
    const count = info.objects.length;
    const whole = { min: info.boxMin, max: info.boxMax };
    this.usualBox = usualBox(tracks.positions, count, info.frames, whole);
    const extent =
      momentExtent(tracks.positions, count, info.frames, this.usualBox) || diagonal(this.usualBox);
    const isMotion = info.kind === "motion";
    this.radius = ballRadius(extent, count, this.metersPerUnit * 1000) * (isMotion ? 0.7 : 1);
    this.balls = new Balls(count, this.radius);
    this.bones = tracks.ends ? new Bones(count, this.radius * 3.5) : null;
    this.links = tracks.ends ? new Links(joinedParents(take)) : null;
    this.places = this.balls.places;
    this.tips = this.bones?.tips ?? null;
    this.screenPlaces = new Float32Array(count * 3);
    this.trails = new TrailLines(take);
    this.group.add(this.balls.body, this.trails.lines);
    if (this.bones) this.group.add(this.bones.body);
    if (this.links) this.group.add(this.links.body);
  }

  private get metersPerUnit(): number {
    const scale = this.take.info.millimetresPerUnit / 1000;
    return scale > 0 && Number.isFinite(scale) ? scale : 0.001;
  }

  get count(): number {
    return this.take.info.objects.length;
  }

  paint(palette: Palette): void {
    this.balls.paint(colorOf(this.take), palette.accent);
    if (this.take.colors) this.balls.paintEach(this.take.colors.value);
    this.bones?.paint(colorOf(this.take), palette.accent);
    this.links?.paint(colorOf(this.take));
    this.trails.paint(colorOf(this.take));
  }

  /** Which axis of the file points up there: "y" or "z". */
  orient(up: "y" | "z"): void {
    this.group.scale.setScalar(this.metersPerUnit);
    this.group.rotation.x = up === "z" ? -Math.PI / 2 : 0;
    this.group.updateMatrixWorld(true);
  }

  mark(marked: (object: number) => number): void {
    const { marks } = this.balls;
    for (let object = 0; object < marks.length; ++object) marks[object] = marked(object);
    this.balls.changed("mark");
    if (!this.bones) return;
    this.bones.marks.set(marks);
    this.bones.changed("mark");
  }

  setScreenHeight(height: number): void {
    this.balls.setScreenHeight(height);
  }

  /** Shows a frame, or with -1 nothing. */
  show(frame: number): void {
    this.group.visible = frame >= 0 && this.take.shown.value;
    if (frame === this.shownFrame) return;
    this.shownFrame = frame;
    if (frame < 0) {
      this.places.fill(NOWHERE);
      return;
    }
    const { positions, ends } = this.take.tracks;
    copyFrame(positions, this.count, frame, this.places);
    this.balls.changed("position");
    this.links?.show(this.places);
    if (!this.bones || !ends) return;
    this.bones.places.set(this.places);
    this.bones.changed("place");
    copyFrame(ends, this.count, frame, this.bones.tips);
    this.bones.changed("tip");
  }

  /** How many objects the frame that is shown has. */
  get drawn(): number {
    if (!this.group.visible) return 0;
    const nowhere = Math.fround(NOWHERE);
    let drawn = 0;
    for (let at = 0; at < this.places.length; at += 3) if (this.places[at] !== nowhere) ++drawn;
    return drawn;
  }

  /** Finds where on the screen the objects of the frame are. */
  project(viewProjection: Matrix4, screen: Screen): void {
    const matrix = new Matrix4().multiplyMatrices(viewProjection, this.group.matrixWorld);
    projectAll(this.places, this.count, matrix.elements, screen, this.screenPlaces);
  }

  /** The box in the scene around all that the take ever shows, but for what is far off from all else. */
  wholeBox(): Box {
    const { min: boxMin, max: boxMax } = this.usualBox;
    const box = emptyBox();
    const corner = new Vector3();
    for (let bits = 0; bits < 8; ++bits) {
      corner.set(
        bits & 1 ? boxMax[0] : boxMin[0],
        bits & 2 ? boxMax[1] : boxMin[1],
        bits & 4 ? boxMax[2] : boxMin[2],
      );
      corner.applyMatrix4(this.group.matrixWorld);
      enclose(box, corner.x, corner.y, corner.z);
    }
    return box;
  }

  /** Widens a box by those of the objects that the frame has, all or the chosen ones. */
  encloseShown(box: Box, chosen: ReadonlySet<number> | null): void {
    if (!this.group.visible) return;
    const nowhere = Math.fround(NOWHERE);
    const point = new Vector3();
    for (let object = 0; object < this.count; ++object) {
      if (chosen && !chosen.has(object)) continue;
      this.encloseOne(box, this.places, object, nowhere, point);
      if (this.tips) this.encloseOne(box, this.tips, object, nowhere, point);
    }
  }

  private encloseOne(
    box: Box,
    values: Float32Array,
    object: number,
    nowhere: number,
    point: Vector3,
  ): void {
    if (values[object * 3] === nowhere) return;
    point.fromArray(values, object * 3).applyMatrix4(this.group.matrixWorld);
    enclose(box, point.x, point.y, point.z);
  }

  /** Where on the screen the end of an object's bone is; a marker's is the marker itself. */
  tipOf(object: number, out: Vector3): Vector3 {
    const values = this.tips ?? this.places;
    return out.fromArray(values, object * 3).applyMatrix4(this.group.matrixWorld);
  }

  dispose(): void {
    this.balls.dispose();
    this.bones?.dispose();
    this.links?.dispose();
    this.trails.dispose();
    this.group.removeFromParent();
  }
}

/** In a scene bones alone are joined to what is above them. */
function joinedParents({ info, nodes }: Take): readonly number[] {
  const isBone = (object: number): boolean => !nodes || nodes[object]?.kind === "bone";
  return info.parents.map((parent, object) =>
    parent >= 0 && isBone(object) && isBone(parent) ? parent : -1,
  );
}
