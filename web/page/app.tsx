import { Empty } from "./panels/empty";
import { FindingsPanel } from "./panels/findings_panel";
import { Header } from "./panels/header";
import { KeysDialog } from "./panels/keys_dialog";
import { ObjectsPanel } from "./panels/objects_panel";
import { Busy, Notices } from "./panels/overlays";
import { Splitter } from "./widgets/splitter";
import { TakesPanel } from "./panels/takes_panel";
import { bottomHeight, leftWidth, rightWidth } from "./state/layout";
import { takes } from "./state/takes";
import { dragging } from "./drop";
import { Timeline } from "./timeline/timeline";
import { Viewport } from "./viewport/viewport";

/** The page: takes and their objects at the left, the view, findings at the right, time below. */
export function App() {
  const isEmpty = takes.value.length === 0;
  return (
    <div class={dragging.value ? "app dragging" : "app"}>
      <Header />
      {isEmpty ? (
        <main class="empty-main">
          <Empty />
        </main>
      ) : (
        <Workbench />
      )}
      <Busy />
      <Notices />
      <KeysDialog />
    </div>
  );
}

function Workbench() {
  const sizes = {
    "--left": `${leftWidth.value}px`,
    "--right": `${rightWidth.value}px`,
    "--bottom": `${bottomHeight.value}px`,
  };
  return (
    <main class="workbench" style={sizes}>
      <div class="middle">
        <aside class="side left" aria-label="Takes and objects">
          <TakesPanel />
          <ObjectsPanel />
        </aside>
        <Splitter
          label="Width of the lists"
          size={leftWidth}
          least={160}
          most={600}
          between="columns"
          before={true}
        />
        <Viewport />
        <Splitter
          label="Width of the findings"
          size={rightWidth}
          least={180}
          most={700}
          between="columns"
          before={false}
        />
        <aside class="side right" aria-label="Report">
          <FindingsPanel />
        </aside>
      </div>
      <Splitter
        label="Height of the timeline"
        size={bottomHeight}
        least={110}
        most={800}
        between="rows"
        before={false}
      />
      <Timeline />
    </main>
  );
}
