import { computed } from "@preact/signals";
import { counted } from "../logic/counted";
import { shown } from "../logic/names";
import { depths } from "../logic/object_search";
import { gapCount } from "../logic/gaps";
import { hovered, lastSelected, select, selectAll, selectedInActive } from "../state/selection";
import { colorOf } from "../state/take_color";
import { activeTake, areSeveral, labelOf, type Take } from "../state/takes";
import { picking, pickNode } from "../state/desk";
import { nodeOf } from "../state/scene";
import { coarsePointer } from "../state/pointer";
import { foundObjects, search } from "../state/rows";
import { VirtualList } from "../widgets/virtual_list";

/** The markers or segments of the take that is worked on. */

export const SEARCH_ID = "object-search";

const indents = computed(() => depths(activeTake.value?.info.parents ?? []));

export function ObjectsPanel() {
  const take = activeTake.value;
  if (!take) return null;
  const kind = take.nodes ? "Nodes" : take.info.kind === "motion" ? "Segments" : "Markers";
  const rows = foundObjects.value;
  const current = rows.indexOf(
    lastSelected.value?.take === take.key ? lastSelected.value.object : -1,
  );
  return (
    <section class="panel grow" aria-label={kind}>
      <h2>
        {kind} <span class="quiet">{countText(rows.length, take)}</span>
        {areSeveral.value && <bdi class="of-take quiet small">{labelOf(take)}</bdi>}
      </h2>
      <div class="search">
        <input
          id={SEARCH_ID}
          type="search"
          placeholder="Search (/)"
          aria-label={`Search ${kind.toLowerCase()}`}
          value={search.value}
          onInput={(event) => (search.value = event.currentTarget.value)}
        />
        <button title="Select all that are found" onClick={() => selectAll(take, rows)}>
          All
        </button>
      </div>
      <VirtualList
        id={`objects-${take.key}`}
        label={kind}
        count={rows.length}
        rowHeight={coarsePointer.value ? 34 : 24}
        current={current}
        move={(row, extend) => select(take, rows[row], extend)}
        enter={picking.value ? (row) => pickNode(nodeOf(rows[row])) : undefined}
        row={(row, id) => (
          <ObjectRow take={take} object={rows[row]} id={id} row={row} of={rows.length} />
        )}
      />
    </section>
  );
}

function countText(shownCount: number, take: Take): string {
  const all = take.info.objects.length;
  return shownCount === all ? String(all) : `${shownCount} of ${all}`;
}

interface RowProperties {
  take: Take;
  object: number;
  id: string;
  row: number;
  of: number;
}

function ObjectRow({ take, object, id, row, of }: RowProperties) {
  const isSelected = selectedInActive.value.has(object);
  const name = shown(take.info.objects[object]);
  const coverage = take.info.coverage[object] ?? 1;
  const gaps = gapCount(take.gaps, object);
  const told = `${(coverage * 100).toFixed(coverage < 1 ? 1 : 0)} %`;
  const over = hovered.value?.take === take.key && hovered.value.object === object;
  return (
    <div
      id={id}
      class={`object-row${over ? " over" : ""}`}
      role="option"
      aria-selected={isSelected}
      aria-setsize={of}
      aria-posinset={row + 1}
      aria-label={`${name}, ${told} of the frames`}
      data-object={object}
      title={`${name}\n${told} of the frames, ${counted(gaps, "gap")}`}
      onClick={(event) => select(take, object, event.ctrlKey || event.metaKey || event.shiftKey)}
      onPointerEnter={() => (hovered.value = { take: take.key, object })}
      onPointerLeave={() => (hovered.value = null)}
    >
      <bdi class="name" style={{ paddingLeft: `${Math.min(indents.value[object], 12) * 10}px` }}>
        {name}
      </bdi>
      <span class="coverage" aria-hidden="true">
        <span style={{ width: `${coverage * 100}%`, background: colorOf(take) }} />
      </span>
    </div>
  );
}
