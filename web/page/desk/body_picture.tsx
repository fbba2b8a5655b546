import { BODY_PLACES, bodyLines, HEAD, headMiddle, pictured, PICTURE } from "../logic/body_places";

/** A body from the front and from the back, with the place that a standard marker sits at. */

interface BodyProperties {
  asked: string;
  /** The standard markers that there are already. */
  found: ReadonlySet<string>;
}

const PROP = /^[LR]PRP/;
const STICK = /^[LR]WR[EI]$/;
const WRIST = /^[LR]WR[AB]$/;

/** Props and sticks are shown where they are asked for, and the places that a stick stands in for then not. */
function isShown(name: string, asked: string, found: ReadonlySet<string>): boolean {
  if (name === asked || found.has(name)) return true;
  if (PROP.test(name)) return PROP.test(asked);
  const sticks = [asked, ...found].some((other) => STICK.test(other) && other[0] === name[0]);
  if (STICK.test(name)) return sticks;
  return !(WRIST.test(name) && sticks);
}

function classOf(name: string, asked: string, found: ReadonlySet<string>): string {
  if (name === asked) return "place asked";
  return found.has(name) ? "place found" : "place";
}

export function BodyPicture({ asked, found }: BodyProperties) {
  const place = BODY_PLACES.get(asked);
  const side = place ? `: on the picture from the ${place.side}` : "";
  return (
    <svg
      class="body-picture"
      viewBox={`0 0 ${PICTURE.width} ${PICTURE.height + 14}`}
      role="img"
      aria-label={`Where ${asked || "the markers"} sits${side}`}
      data-asked={asked}
    >
      <Body side="front" text="from the front" />
      <Body side="back" text="from the back" />
      {[...BODY_PLACES].map(([name, where]) => {
        if (!isShown(name, asked, found)) return null;
        const { x, y } = pictured(where);
        const radius = name === asked ? 5 : 2.2;
        return (
          <circle
            key={name}
            class={classOf(name, asked, found)}
            cx={x}
            cy={y}
            r={radius}
            data-place={name}
          />
        );
      })}
    </svg>
  );
}

function Body({ side, text }: { side: "front" | "back"; text: string }) {
  const head = headMiddle(side);
  const left = side === "front" ? 1 : -1;
  return (
    <g class="body">
      <ellipse cx={head.x} cy={head.y} rx={HEAD.across} ry={HEAD.along} />
      {bodyLines(side).map(({ path, width }) => (
        <path key={path} d={path} stroke-width={width} />
      ))}
      <text x={head.x} y={PICTURE.height + 10}>
        {text}
      </text>
      <text x={head.x + 40 * left} y={20}>
        left
      </text>
      <text x={head.x - 40 * left} y={20}>
        right
      </text>
    </g>
  );
}
