import type { ComponentChildren } from "preact";
import { UNITS, type Unit } from "../logic/units";
import {
  follow,
  grid,
  labels,
  projection,
  toggleProjection,
  trails,
  unit,
  upAxis,
  type Trails,
  type UpAxis,
} from "../state/view_options";
import { Choice } from "../widgets/choice";
import { stage } from "./current_stage";

/** How the takes are shown. */
export function ViewBar() {
  return (
    <div class="bar view-bar" role="toolbar" aria-label="How takes are shown">
      <button
        title="Fit the view to what is selected, or to all (F)"
        onClick={() => stage.value?.fit()}
      >
        Fit
      </button>
      <Toggle
        on={follow.value}
        title="Follow what is selected, or all (T)"
        set={(on) => (follow.value = on)}
      >
        Follow
      </Toggle>
      <Toggle
        on={projection.value === "orthogonal"}
        title="Orthogonal instead of perspective (P)"
        set={toggleProjection}
      >
        Orthogonal
      </Toggle>
      <Toggle on={labels.value} title="Show names (N)" set={(on) => (labels.value = on)}>
        Names
      </Toggle>
      <Toggle on={grid.value} title="Show the floor" set={(on) => (grid.value = on)}>
        Floor
      </Toggle>
      <Choice<Trails>
        label="Trails"
        value={trails.value}
        options={[
          ["off", "off"],
          ["selected", "selected"],
          ["all", "all"],
        ]}
        set={(value) => (trails.value = value)}
      />
      <Choice<UpAxis>
        label="Up"
        value={upAxis.value}
        options={[
          ["file", "as file"],
          ["y", "Y"],
          ["z", "Z"],
        ]}
        set={(value) => (upAxis.value = value)}
      />
      <Choice<Unit>
        label="Unit"
        value={unit.value}
        options={UNITS.map((name) => [name, name])}
        set={(value) => (unit.value = value)}
      />
    </div>
  );
}

interface ToggleProperties {
  on: boolean;
  title: string;
  set: (on: boolean) => void;
  children: ComponentChildren;
}

function Toggle({ on, title, set, children }: ToggleProperties) {
  return (
    <button aria-pressed={on} title={title} onClick={() => set(!on)}>
      {children}
    </button>
  );
}
