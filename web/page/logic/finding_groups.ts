import type { Finding, Place } from "../../worker/protocol";

/** Findings as they are read: those of one kind together, the worst kinds first. */

export type Severity = Finding["severity"];

const RANK: Readonly<Record<Severity, number>> = { error: 0, warning: 1, note: 2 };

export function worstFirst(findings: readonly Finding[]): Finding[] {
  return [...findings].sort((one, other) => RANK[one.severity] - RANK[other.severity]);
}

export function countBySeverity(findings: readonly Finding[]): Record<Severity, number> {
  const counts = { error: 0, warning: 0, note: 0 };
  for (const finding of findings) counts[finding.severity] += 1;
  return counts;
}

/** A place in the data that something was found at: of one object, or of none in particular. */
export interface Mark {
  frame: number;
  object: number | null;
  severity: Severity;
}

export function marksOf(findings: readonly Finding[]): Mark[] {
  return findings.flatMap(({ severity, places }) =>
    places
      .filter((place) => place.frame !== undefined)
      .map((place) => ({ frame: place.frame ?? 0, object: place.object ?? null, severity })),
  );
}

/** Places that are told alike, such as those of several objects in one line, once each. */
export function distinctPlaces(places: readonly Place[]): Place[] {
  const keyOf = ({ line, column, object, frame }: Place): string =>
    [line, column, object, frame].join();
  return [...new Map(places.map((place) => [keyOf(place), place])).values()];
}

export function placeText(place: Place, firstFrame: number, name: string | undefined): string {
  const parts = [`line ${place.line}, column ${place.column}`];
  if (name !== undefined) parts.push(name);
  if (place.frame !== undefined) parts.push(`frame ${place.frame + firstFrame}`);
  return parts.join(" · ");
}
