import { signal } from "@preact/signals";
import { pageWords } from "../logic/page_words";

/** What went wrong, or what came of something, until it is put away. */
export interface Notice {
  readonly key: number;
  readonly kind: "error" | "note";
  readonly title: string;
  readonly text: string;
}

export const notices = signal<readonly Notice[]>([]);

let lastKey = 0;

export function notify(kind: Notice["kind"], title: string, text = ""): void {
  notices.value = [...notices.value, { key: ++lastKey, kind, title, text }];
}

export function dismiss(key: number): void {
  notices.value = notices.value.filter((notice) => notice.key !== key);
}

/** Tells what failed and in whose words; not what the person has ended. */
export function notifyFailure(title: string, reason: unknown): void {
  if (!isCanceled(reason)) notify("error", title, wordsOf(reason));
}

export function isCanceled(reason: unknown): boolean {
  return reason instanceof Object && "name" in reason && reason.name === "Cancelled";
}

/** The words of whatever was thrown. */
export function wordsOf(reason: unknown): string {
  const isError = reason && typeof reason === "object" && "message" in reason;
  return pageWords(String(isError ? reason.message : reason));
}
