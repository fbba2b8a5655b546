import type { Take } from "./takes";
import { palette } from "./theme";

/** What a take is drawn in, wherever it is. */
export function colorOf(take: Take): string {
  const colors = palette.value.takes;
  return colors[take.color % colors.length];
}
