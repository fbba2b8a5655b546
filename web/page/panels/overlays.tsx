import { cancelTask } from "../state/core";
import { dismiss, notices } from "../state/notices";
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
      <button onClick={cancelTask} disabled={canceling.value}>
        Cancel
      </button>
    </div>
  );
}

export function Notices() {
  return (
    <div class="notices" aria-live="polite">
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
