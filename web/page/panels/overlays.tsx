import { cancelTask } from "../state/core";
import { dismiss, notices } from "../state/notices";
import { rightWidth, workWidth } from "../state/layout";
import { takes, working } from "../state/takes";
import { canceling, task } from "../state/tasks";

/** What is going on, with a way to end it; and what went wrong. */

export function Busy() {
  const current = task.value;
  if (!current) return null;
  const { what, fraction } = current;
  return (
    <div class="busy" role="status">
      <p>{canceling.value ? "Canceling…" : `${what}…`}</p>
      {fraction === null ? (
        <progress aria-label={what} />
      ) : (
        <progress aria-label={what} value={fraction} max={1} />
      )}
      <button onClick={() => void cancelTask()} disabled={canceling.value}>
        Cancel
      </button>
    </div>
  );
}

/** Notices stand beside the findings, which may be what they are about. */
function besideFindings(): number {
  if (working.value) return workWidth.value;
  return takes.value.length > 0 ? rightWidth.value : 0;
}

export function Notices() {
  return (
    <div class="notices" aria-live="polite" style={{ "--beside": `${besideFindings()}px` }}>
      {notices.value.map((notice) => (
        <div key={notice.key} class={`notice ${notice.kind}`} role="alert">
          <div class="notice-text">
            <p>
              <bdi>{notice.title}</bdi>
            </p>
            {notice.text && <p class="words">{notice.text}</p>}
          </div>
          <button class="icon" aria-label="Put away" onClick={() => dismiss(notice.key)}>
            ×
          </button>
        </div>
      ))}
    </div>
  );
}
