import type { MappingEntry, Suggestion } from "../../worker/desk_protocol";

/** A mapping while it is made: what was picked so far, and what could be picked next. */

/** What is suggested for a standard marker, if it can be picked and was not yet. */
export function suggestionFor(
  asked: string,
  suggested: readonly Suggestion[],
  entries: readonly MappingEntry[],
  pickable: ReadonlySet<number>,
): Suggestion | null {
  const found = suggested.find(({ standard }) => standard === asked);
  if (!found || !pickable.has(found.node)) return null;
  return entries.some(({ node }) => node === found.node) ? null : found;
}

const REASONS: Readonly<Record<Suggestion["reason"], string>> = {
  same: "the same name",
  subject: "the same name behind that of the subject",
  case: "the same name but for capital letters",
  synonym: "a usual name of the same place",
  geometry: "by its position alone",
};

/** What a suggestion rests on. */
export function reasonText({ reason, place }: Suggestion): string {
  return place === "" ? REASONS[reason] : `${REASONS[reason]}: ${place}`;
}
