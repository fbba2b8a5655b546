import { signal } from "@preact/signals";
import { UNITS, type Unit } from "../logic/units";
import { isBoolean, oneOf, setting } from "./settings";

/** How the takes are shown. */
export type Projection = "perspective" | "orthogonal";
export type UpAxis = "file" | "y" | "z";
export type Trails = "off" | "selected" | "all";

export const projection = setting<Projection>(
  "projection",
  "perspective",
  oneOf<Projection>("perspective", "orthogonal"),
);
export const upAxis = signal<UpAxis>("file");
export const unit = setting<Unit>("unit", "m", oneOf<Unit>(...UNITS));
export const labels = setting("labels", true, isBoolean);
export const grid = setting("grid", true, isBoolean);
export const trails = setting<Trails>("trails", "off", oneOf<Trails>("off", "selected", "all"));
export const trailSeconds = 1;
export const follow = signal(false);

const NEXT_TRAILS: Readonly<Record<Trails, Trails>> = {
  off: "selected",
  selected: "all",
  all: "off",
};

export function nextTrails(): void {
  trails.value = NEXT_TRAILS[trails.value];
}

export function toggleProjection(): void {
  projection.value = projection.value === "perspective" ? "orthogonal" : "perspective";
}
