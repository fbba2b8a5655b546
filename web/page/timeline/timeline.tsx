import { Curves } from "./curves";
import { bottomTab, namesWidth } from "../state/layout";
import { Ruler } from "./ruler";
import { Rows } from "./rows";
import { NamesSplitter } from "./names_splitter";
import { Transport } from "./transport";

/** Time: what plays it, its scale, and under that rows or curves over the same frames. */
export function Timeline() {
  return (
    <section class="timeline" aria-label="Timeline">
      <Transport />
      <div class="timeline-body" style={{ "--names": `${namesWidth.value}px` }}>
        <Ruler />
        {bottomTab.value === "tracks" ? <Rows /> : <Curves />}
        <NamesSplitter />
      </div>
    </section>
  );
}
