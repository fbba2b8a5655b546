import { placeLabels, type Label } from "../logic/label_layout";
import { shown } from "../logic/names";
import { isOnScreen, type Screen } from "../logic/projection";
import type { Palette } from "../state/theme";
import type { TakeDrawing } from "./take_drawing";

/** Names beside objects, on a canvas over the picture. */

const FONT = "12px system-ui, sans-serif";
const HEIGHT = 15;
const AWAY = 7;
const MOST_LABELS = 160;
const MOST_CANDIDATES = 4000;
const LONGEST_NAME = 40;

interface Named {
  text: string;
  width: number;
}

interface Candidate extends Label {
  text: string;
  marked: boolean;
}

export class NamesOverlay {
  private readonly named = new Map<string, Named>();
  private lastShown = new Set<number>();

  constructor(private readonly context: CanvasRenderingContext2D) {}

  /** @param marked which objects of a drawing are selected or under the pointer: these come first */
  draw(
    drawings: readonly TakeDrawing[],
    marked: (drawing: TakeDrawing, object: number) => boolean,
    screen: Screen,
    palette: Palette,
  ): void {
    this.context.font = FONT;
    const candidates = this.candidates(drawings, marked, screen);
    const placed = placeLabels(candidates, MOST_LABELS);
    this.lastShown = new Set(placed.map((label) => label.key));
    this.write(placed as Candidate[], palette);
  }

  private candidates(
    drawings: readonly TakeDrawing[],
    marked: (drawing: TakeDrawing, object: number) => boolean,
    screen: Screen,
  ): Candidate[] {
    const first: Candidate[] = [];
    const kept: Candidate[] = [];
    const others: Candidate[] = [];
    drawings.forEach((drawing, index) => {
      if (!drawing.group.visible) return;
      for (let object = 0; object < drawing.count; ++object) {
        if (!isOnScreen(drawing.screenPlaces, object, screen)) continue;
        const key = index * 1_000_000 + object;
        const isMarked = marked(drawing, object);
        const list = isMarked ? first : this.lastShown.has(key) ? kept : others;
        if (list.length < MOST_CANDIDATES)
          list.push(this.candidate(drawing, object, key, isMarked));
      }
    });
    return [...first, ...kept, ...others];
  }

  private candidate(drawing: TakeDrawing, object: number, key: number, marked: boolean): Candidate {
    const { text, width } = this.name(drawing.take.info.objects[object]);
    const x = drawing.screenPlaces[object * 3] + AWAY;
    const y = drawing.screenPlaces[object * 3 + 1] - HEIGHT / 2;
    return { key, x, y, width: width + 4, height: HEIGHT, text, marked };
  }

  private name(name: string): Named {
    let named = this.named.get(name);
    if (!named) {
      const text = shown(name, LONGEST_NAME);
      named = { text, width: this.context.measureText(text).width };
      if (this.named.size > 50_000) this.named.clear();
      this.named.set(name, named);
    }
    return named;
  }

  private write(placed: readonly Candidate[], palette: Palette): void {
    const { context } = this;
    context.font = FONT;
    context.textBaseline = "middle";
    context.textAlign = "left";
    context.direction = "ltr";
    context.lineJoin = "round";
    context.lineWidth = 3;
    context.strokeStyle = palette.viewTop;
    for (const label of placed) {
      context.fillStyle = label.marked ? palette.accent : palette.label;
      context.strokeText(label.text, label.x, label.y + HEIGHT / 2);
      context.fillText(label.text, label.x, label.y + HEIGHT / 2);
    }
  }
}
