import { frameOf, numberOf } from "../logic/frame_range";
import { titleOf } from "../logic/key_map";
import { SPEEDS } from "../logic/playback";
import { secondsText } from "../logic/take_time";
import { Choice } from "../widgets/choice";
import { Icon, type IconName } from "../widgets/icon";
import { bottomTab, type BottomTab } from "../state/layout";
import { goToFinding, goToGap, hasGaps, hasMarks } from "../state/places";
import { activeTake } from "../state/takes";
import * as time from "../state/time";

/** Plays, and goes to frames. */
export function Transport() {
  const playing = time.playing.value;
  return (
    <div class="bar transport" role="toolbar" aria-label="Time">
      <Button icon="first" title="To the first frame (Home)" press={time.goToStart} />
      <Button
        icon="previous"
        title="One frame back (←)"
        press={() => time.jumpTo(time.frame.value - 1)}
      />
      <Button icon="backward" title="Play backward (J)" press={() => time.shuttleTo(-1)} />
      <Button
        icon={playing ? "pause" : "play"}
        title={playing ? "Stop (Space)" : "Play (Space)"}
        press={time.togglePlay}
      />
      <Button
        icon="next"
        title="One frame on (→)"
        press={() => time.jumpTo(time.frame.value + 1)}
      />
      <Button icon="last" title="To the last frame (End)" press={time.goToEnd} />
      <button
        class="icon"
        aria-pressed={time.loop.value}
        title="Loop (R)"
        aria-label="Loop"
        onClick={() => (time.loop.value = !time.loop.value)}
      >
        <Icon name="loop" />
      </button>
      <SpeedChoice />
      <FrameField />
      <SpanButtons />
      <PlaceButtons />
      <span class="spring" />
      <Choice<"frames" | "seconds">
        label="Scale"
        value={time.rulerIn.value}
        options={[
          ["frames", "frames"],
          ["seconds", "seconds"],
        ]}
        set={(value) => (time.rulerIn.value = value)}
      />
      <Button icon="wider" title="Timeline wider (-)" press={() => time.zoomTimeline(1 / 1.5)} />
      <Button icon="closer" title="Timeline closer (+)" press={() => time.zoomTimeline(1.5)} />
      <Button icon="whole" title="The whole timeline" press={time.showAllFrames} />
      <Tabs />
    </div>
  );
}

interface ButtonProperties {
  icon: IconName;
  title: string;
  press: () => void;
  disabled?: boolean;
}

function Button({ icon, title, press, disabled }: ButtonProperties) {
  const name = title.replace(/ \(.*/, "");
  return (
    <button class="icon" title={title} aria-label={name} disabled={disabled} onClick={press}>
      <Icon name={icon} />
    </button>
  );
}

function PlaceButtons() {
  const areNoGaps = !hasGaps.value;
  const areNoMarks = !hasMarks.value;
  return (
    <span class="group">
      <Button icon="gapBefore" title={titleOf("previous-gap")} disabled={areNoGaps} press={() => goToGap(-1)} />
      <Button icon="gapAfter" title={titleOf("next-gap")} disabled={areNoGaps} press={() => goToGap(1)} />
      <Button
        icon="findingBefore"
        title={titleOf("previous-finding")}
        disabled={areNoMarks}
        press={() => goToFinding(-1)}
      />
      <Button
        icon="findingAfter"
        title={titleOf("next-finding")}
        disabled={areNoMarks}
        press={() => goToFinding(1)}
      />
    </span>
  );
}

function SpeedChoice() {
  const speed = time.playing.value ? Math.abs(time.speed.value) : time.usualSpeed.value;
  return (
    <Choice<string>
      label="Speed"
      value={String(speed)}
      options={SPEEDS.map((value) => [String(value), `${value}×`])}
      set={(value) => time.setSpeed(Number(value))}
    />
  );
}

function FrameField() {
  const take = activeTake.value;
  if (!take) return null;
  const { info } = take;
  const { frames, rate } = info;
  const seconds = rate > 0 ? secondsText(time.frame.value / rate) : "no rate";
  return (
    <span class="frame-field">
      <label>
        Frame{" "}
        <input
          type="number"
          value={numberOf(info, time.frame.value)}
          min={numberOf(info, time.reach.value.first)}
          max={numberOf(info, time.reach.value.end - 1)}
          onChange={(event) => time.jumpTo(frameOf(info, event.currentTarget.valueAsNumber))}
        />
      </label>
      <span class="numbers quiet">
        {frames > 0 ? `of ${numberOf(info, 0)}–${numberOf(info, frames - 1)}` : "of none"} · {seconds}
      </span>
    </span>
  );
}

function SpanButtons() {
  return (
    <span class="group">
      <button title="In point here (I)" onClick={time.setIn}>
        In
      </button>
      <button title="Out point here (O)" onClick={time.setOut}>
        Out
      </button>
      {time.hasSpan.value && (
        <button title="No in and out points (X)" onClick={time.clearSpan}>
          Clear
        </button>
      )}
    </span>
  );
}

const TABS: readonly (readonly [BottomTab, string])[] = [
  ["tracks", "Tracks"],
  ["curves", "Curves"],
];

function Tabs() {
  return (
    <span class="group">
      {TABS.map(([tab, text]) => (
        <button
          key={tab}
          aria-pressed={bottomTab.value === tab}
          onClick={() => (bottomTab.value = tab)}
        >
          {text}
        </button>
      ))}
    </span>
  );
}
