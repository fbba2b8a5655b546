/** Where the standard markers sit: on a body that is drawn once from the front and once from the back. */

export type Side = "front" | "back";

export interface BodyPlace {
  side: Side;
  /** Toward the body's left from its middle, and down from the top of the head; the body is 230 high. */
  left: number;
  down: number;
}

const HEIGHT = 240;
const HALF_WIDTH = 62;

/** The size of the picture with both bodies. */
export const PICTURE = { width: 4 * HALF_WIDTH, height: HEIGHT };

const MIDDLE: Readonly<Record<Side, number>> = { front: HALF_WIDTH, back: 3 * HALF_WIDTH };

function front(left: number, down: number): BodyPlace {
  return { side: "front", left, down };
}

function back(left: number, down: number): BodyPlace {
  return { side: "back", left, down };
}

const CENTER: Readonly<Record<string, BodyPlace>> = {
  C7: back(0, 39),
  CLAV: front(0, 51),
  STRN: front(0, 70),
  T10: back(0, 76),
  SACR: back(0, 113),
};

/** By the names without the letter of the side. */
const OF_BOTH_SIDES: Readonly<Record<string, BodyPlace>> = {
  FHD: front(8, 15),
  BHD: back(8, 18),
  SHO: front(21, 45),
  ELB: front(37, 88),
  ILB: front(28, 90),
  WRE: front(53, 121),
  WRI: front(41, 121),
  WRA: front(35, 121),
  WRB: front(43, 120),
  FIN: front(42, 140),
  FWT: front(10, 108),
  BWT: back(10, 106),
  KNE: front(19, 166),
  KNI: front(7, 166),
  ANK: front(18, 210),
  HEL: back(13, 221),
  MT5: front(22, 223),
  MTI: front(9, 223),
  TOE: front(16, 230),
  PRPB: front(55, 160),
  PRPM: front(55, 110),
  PRPT: front(55, 60),
};

function mirrored(place: BodyPlace): BodyPlace {
  return { ...place, left: -place.left };
}

/** By the names of the standard markers. */
export const BODY_PLACES: ReadonlyMap<string, BodyPlace> = new Map([
  ...Object.entries(CENTER),
  ...Object.entries(OF_BOTH_SIDES).flatMap(([name, place]): [string, BodyPlace][] => [
    [`L${name}`, place],
    [`R${name}`, mirrored(place)],
  ]),
]);

/** Where a place comes to lie in the picture: who looks at a front has the body's left at the right. */
export function pictured(place: BodyPlace): { x: number; y: number } {
  const across = place.side === "front" ? place.left : -place.left;
  return { x: MIDDLE[place.side] + across, y: place.down + 3 };
}

export interface Limb {
  points: readonly (readonly [number, number])[];
  width: number;
}

/** The body but for its head, as lines of a width, toward the left of its middle. */
const LIMBS: readonly Limb[] = [
  { points: [[0, 30], [0, 42]], width: 11 }, // prettier-ignore
  { points: [[0, 52], [0, 84]], width: 30 }, // prettier-ignore
  { points: [[0, 84], [0, 110]], width: 27 }, // prettier-ignore
  { points: [[3, 48], [20, 50], [32, 88], [39, 121]], width: 11 }, // prettier-ignore
  { points: [[39, 121], [42, 139]], width: 8 }, // prettier-ignore
  { points: [[9, 112], [13, 166]], width: 16 }, // prettier-ignore
  { points: [[13, 166], [14, 212]], width: 12 }, // prettier-ignore
  { points: [[14, 216], [16, 226]], width: 12 }, // prettier-ignore
];

export const HEAD = { down: 17, across: 11, along: 15 };

function pathOf({ points }: Limb, middle: number, direction: 1 | -1): string {
  const places = points.map(([left, down]) => `${middle + direction * left} ${down + 3}`);
  return `M${places.join("L")}`;
}

/** The lines of the body from a side. */
export function bodyLines(side: Side): { path: string; width: number }[] {
  return LIMBS.flatMap((limb) =>
    ([1, -1] as const).map((direction) => ({
      path: pathOf(limb, MIDDLE[side], direction),
      width: limb.width,
    })),
  );
}

export function headMiddle(side: Side): { x: number; y: number } {
  return pictured({ side, left: 0, down: HEAD.down });
}
