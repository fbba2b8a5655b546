import { openChosen } from "../panels/header";
import { labelOf, takes, type Take } from "../state/takes";
import { free, importFile } from "../state/work";

/** The files that are open, to be brought into the scene. */
export function FilesPanel() {
  return (
    <section class="panel takes" aria-label="Files">
      <h2>
        Files <span class="quiet">{takes.value.length}</span>
      </h2>
      <ul>
        {takes.value.map((take) => (
          <FileRow key={take.key} take={take} />
        ))}
        {takes.value.length === 0 && (
          <li>
            <button onClick={openChosen}>Open files…</button>
          </li>
        )}
      </ul>
    </section>
  );
}

function FileRow({ take }: { take: Take }) {
  const name = labelOf(take);
  return (
    <li class="work-file">
      <bdi class="name">{name}</bdi>
      <button
        disabled={!free.value}
        aria-label={`Import ${name}`}
        title="Import as new nodes, or apply to those that are selected"
        onClick={() => importFile(take)}
      >
        Import…
      </button>
    </li>
  );
}
