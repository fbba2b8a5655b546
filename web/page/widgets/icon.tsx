/** Signs of buttons, on a field of 16 by 16. */

const PATHS = {
  first: "M3 3h2v10H3zM13 3v10L6 8z",
  last: "M11 3h2v10h-2zM3 3v10l7-5z",
  previous: "M10 3v10L4 8zM11 3h2v10h-2z",
  next: "M6 3v10l6-5zM3 3h2v10H3z",
  backward: "M12 3v10L4 8z",
  play: "M4 2.5v11l9-5.5z",
  pause: "M4 3h3v10H4zM9 3h3v10H9z",
  loop: "M4 4h6V2l3.5 3L10 8V6H6v4h1.500v2H4zM12 12H8v2l-3.500-3L8 8v2h2V9h2z",
  gapBefore: "M7 3v10L2 8zM8.500 5.500h2v5h-2zM13 5.500h2v5h-2z",
  gapAfter: "M9 3v10l5-5zM5.500 5.500h2v5h-2zM1 5.500h2v5H1z",
  findingBefore: "M7 3v10L2 8zM11.500 4L15 8l-3.500 4L8 8z",
  findingAfter: "M9 3v10l5-5zM4.500 4L8 8l-3.500 4L1 8z",
  closer: "M7 3h2v4h4v2H9v4H7V9H3V7h4z",
  wider: "M3 7h10v2H3z",
  whole: "M2 4h2v8H2zM12 4h2v8h-2zM5 8l2.500-3v2h1V5L11 8l-2.500 3V9h-1v2z",
} as const;

export type IconName = keyof typeof PATHS;

export function Icon({ name }: { name: IconName }) {
  return (
    <svg viewBox="0 0 16 16" width="16" height="16" aria-hidden="true" focusable="false">
      <path d={PATHS[name]} fill="currentColor" />
    </svg>
  );
}
