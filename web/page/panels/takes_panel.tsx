import { counted, countedObjects, nounOf } from "../logic/counted";
import { shown } from "../logic/names";
import { rateText } from "../logic/units";
import { closeTake } from "../state/core";
import { colorOf } from "../state/take_color";
import { activeTake, labelOf, takes, type Take } from "../state/takes";
import { activate } from "../state/time";

/** The takes that are open. */
export function TakesPanel() {
  return (
    <section class="panel takes" aria-label="Takes">
      <h2>
        Takes <span class="quiet">{takes.value.length}</span>
      </h2>
      <ul>
        {takes.value.map((take) => (
          <TakeRow key={take.key} take={take} />
        ))}
      </ul>
    </section>
  );
}

function TakeRow({ take }: { take: Take }) {
  const isActive = activeTake.value === take;
  const name = labelOf(take);
  const { frames, rate, objects, kind, unit } = take.info;
  const told = `${countedObjects(objects.length, kind)}, ${counted(frames, "frame")}`;
  return (
    <li class={isActive ? "take active" : "take"}>
      <input
        type="checkbox"
        checked={take.shown.value}
        aria-label={`Show ${name}`}
        title="Show in the view"
        onChange={(event) => (take.shown.value = event.currentTarget.checked)}
      />
      <button class="take-name" aria-pressed={isActive} onClick={() => activate(take)} title={name}>
        <span class="swatch" style={{ background: colorOf(take) }} />
        <span>
          <bdi class="name">{name}</bdi>
          <span class="quiet small">
            {told}, {rateText(rate)} fps, {shown(unit, 12)}
          </span>
        </span>
      </button>
      <button
        class="icon"
        aria-label={`Close ${name}`}
        title="Close"
        onClick={() => void closeTake(take)}
      >
        ×
      </button>
      {takes.value.length > 1 && <OffsetField take={take} name={name} />}
    </li>
  );
}

/** How many of its own frames a take begins later than the others. */
function OffsetField({ take, name }: { take: Take; name: string }) {
  const { rate } = take.info;
  if (!(rate > 0)) return null;
  const later = Math.round(take.offset.value * rate);
  return (
    <label class="offset small quiet" title={`${take.offset.value.toFixed(3)} s later`}>
      begins
      <input
        type="number"
        step="1"
        aria-label={`Frames that ${name} begins later`}
        value={later}
        onInput={(event) => {
          const frames = event.currentTarget.valueAsNumber;
          if (Number.isFinite(frames)) take.offset.value = frames / rate;
        }}
      />
      {nounOf(later, "frame")} later
    </label>
  );
}
