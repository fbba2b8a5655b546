import type { StoredValue } from "../../worker/desk_protocol";

/** The plug-in's settings as a browser may keep them for the next visit. */

/** Files and folders are those of one visit, and their names nobody else's business. */
function isPath({ name }: StoredValue): boolean {
  return name.endsWith("Path");
}

export function settingsToKeep(values: readonly StoredValue[]): StoredValue[] {
  return values.filter((value) => !isPath(value));
}

const TYPES: readonly string[] = ["text", "binary", "int32", "int64"];

function isStoredValue(kept: unknown): kept is StoredValue {
  if (typeof kept !== "object" || kept === null) return false;
  const { key, name, type, bytes } = kept as Record<string, unknown>;
  return (
    typeof key === "string" &&
    typeof name === "string" &&
    TYPES.includes(type as string) &&
    Array.isArray(bytes) &&
    bytes.every((byte) => Number.isInteger(byte) && byte >= 0 && byte <= 255)
  );
}

export function areStoredValues(kept: unknown): kept is StoredValue[] {
  return Array.isArray(kept) && kept.every(isStoredValue);
}

/** Of the numbers of four bytes these are whole; the others are kept as the bits of real ones. */
const WHOLE: readonly string[] = ["RotationController", "Offset"];

function numberText(name: string, bytes: readonly number[]): string {
  const view = new DataView(Uint8Array.from(bytes).buffer);
  if (view.byteLength === 8) return String(view.getFloat64(0, true));
  if (view.byteLength !== 4) return "";
  if (WHOLE.includes(name)) return String(view.getInt32(0, true));
  return String(Number(view.getFloat32(0, true).toPrecision(7)));
}

/** A value as a person reads it; one byte is a flag. */
export function valueText({ name, type, bytes }: StoredValue): string {
  if (type === "text") {
    return new TextDecoder().decode(Uint8Array.from(bytes)).replace(/\0+$/, "");
  }
  if (type !== "binary") return numberText(name, bytes);
  if (bytes.length === 1) return bytes[0] === 0 ? "no" : "yes";
  return bytes.map((byte) => byte.toString(16).padStart(2, "0")).join(" ");
}
