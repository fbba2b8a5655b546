import { Splitter } from "../widgets/splitter";
import { namesWidth } from "../state/layout";

/** Between the names and the frames of the timeline. */
export function NamesSplitter() {
  return (
    <div class="names-splitter">
      <Splitter
        label="Width of the names"
        size={namesWidth}
        least={60}
        most={400}
        between="columns"
        before={true}
      />
    </div>
  );
}
