// Files that are too large for the memory that WebAssembly can have.

import { CoreError } from "./core_instance";

const MOST = 2 ** 32;

function megabytes(bytes: number): string {
  return `${Math.ceil(bytes / 1e6).toLocaleString("en-US")} MB`;
}

function tooLarge(size: number): CoreError {
  return new CoreError({
    message: `The file has ${megabytes(size)}, and to show it takes more than the ${megabytes(MOST)} of memory that a page can have`,
    code: "memory",
  });
}

/** Throws a CoreError for a file of so many bytes when no page can show it. */
export function requireRoom(size: number): void {
  if (size >= MOST) throw tooLarge(size);
}

/** What to tell of `error`, which a file of so many bytes has caused. */
export function failureForSize(error: unknown, size: number): unknown {
  const isMemory = error instanceof CoreError ? error.code === "memory" : error instanceof RangeError;
  return isMemory ? tooLarge(size) : error;
}
