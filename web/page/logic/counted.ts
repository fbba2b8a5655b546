import type { Kind } from "../../worker/protocol";

/** What is counted, in words: "1 marker", "2 markers". */

export function nounOf(count: number, one: string): string {
  return count === 1 ? one : `${one}s`;
}

export function counted(count: number, one: string): string {
  return `${count} ${nounOf(count, one)}`;
}

export function countedObjects(count: number, kind: Kind): string {
  return counted(count, kind === "motion" ? "segment" : "marker");
}
