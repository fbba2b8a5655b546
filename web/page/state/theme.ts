import { computed, effect, signal } from "@preact/signals";
import { oneOf, setting } from "./settings";

/** Dark or light: as the system has it, or as it was chosen. */

export type Theme = "system" | "dark" | "light";

export const theme = setting<Theme>("theme", "system", oneOf<Theme>("system", "dark", "light"));

const lightSystem = matchMedia("(prefers-color-scheme: light)");
const systemIsLight = signal(lightSystem.matches);
lightSystem.addEventListener("change", () => (systemIsLight.value = lightSystem.matches));

const isLight = computed(() =>
  theme.value === "system" ? systemIsLight.value : theme.value === "light",
);

export function toggleTheme(): void {
  theme.value = isLight.value ? "dark" : "light";
}

/** The colors of the style sheet, for what is drawn on a canvas. */
export interface Palette {
  background: string;
  viewTop: string;
  viewBottom: string;
  grid: string;
  gridMain: string;
  text: string;
  quiet: string;
  line: string;
  row: string;
  accent: string;
  error: string;
  warning: string;
  note: string;
  label: string;
  /** Of takes, one behind the other: first the two that are told apart best by all eyes. */
  takes: readonly string[];
  /** Of x, y and z. */
  axes: readonly string[];
}

type Lists = "takes" | "axes";

const NAMES: Readonly<Record<Exclude<keyof Palette, Lists>, string>> = {
  background: "--panel",
  viewTop: "--view",
  viewBottom: "--view-low",
  grid: "--grid",
  gridMain: "--grid-main",
  text: "--text",
  quiet: "--quiet",
  line: "--line",
  row: "--row",
  accent: "--accent",
  error: "--error",
  warning: "--warning",
  note: "--note",
  label: "--label",
};

function readPalette(): Palette {
  const styles = getComputedStyle(document.documentElement);
  const valueOf = (name: string): string => styles.getPropertyValue(name).trim();
  const entries = Object.entries(NAMES).map(([key, name]) => [key, valueOf(name)]);
  const listOf = (name: string): string[] => valueOf(name).split(" ");
  return { ...Object.fromEntries(entries), takes: listOf("--takes"), axes: listOf("--axes") } as Palette;
}

export const palette = signal<Palette>(readPalette());

effect(() => {
  document.documentElement.dataset.theme = isLight.value ? "light" : "dark";
  palette.value = readPalette();
});
