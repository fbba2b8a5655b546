/** Lengths as they are shown: the scene of the page is in meters, files are in units of their own. */

export type Unit = "mm" | "cm" | "m" | "in" | "ft";

export const UNITS: readonly Unit[] = ["mm", "cm", "m", "in", "ft"];

const METERS: Readonly<Record<Unit, number>> = {
  mm: 0.001,
  cm: 0.01,
  m: 1,
  in: 0.0254,
  ft: 0.3048,
};

const DECIMALS: Readonly<Record<Unit, number>> = { mm: 1, cm: 2, m: 4, in: 3, ft: 4 };

export function metersOf(unit: Unit): number {
  return METERS[unit];
}

/** A length in meters, told in a unit with digits down to a tenth of a millimeter. */
export function lengthText(meters: number, unit: Unit): string {
  if (!Number.isFinite(meters)) return "–";
  return (meters / METERS[unit]).toFixed(DECIMALS[unit]);
}

/** Frames per second, without digits that say nothing. */
export function rateText(rate: number): string {
  return String(Number(rate.toFixed(3)));
}

/** The smallest of 1, 2 and 5 times a power of ten that is at least `value`. */
export function roundStep(value: number): number {
  if (!(value > 0) || !Number.isFinite(value)) return 1;
  const power = 10 ** Math.floor(Math.log10(value));
  const digit = [1, 2, 5].find((candidate) => candidate * power >= value * (1 - 1e-9));
  return (digit ?? 10) * power;
}

/** The length in the unit between two lines of a grid that has some twenty of them over an extent in meters. */
export function gridStep(extent: number, unit: Unit): number {
  return roundStep(extent / METERS[unit] / 20);
}

/** A number of a grid without digits that say nothing. */
export function stepText(step: number): string {
  return String(Number(step.toPrecision(6)));
}
