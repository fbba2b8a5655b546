import type { Signal } from "@preact/signals";
import type { ComponentChildren } from "preact";
import { Empty } from "./panels/empty";
import { FindingsPanel } from "./panels/findings_panel";
import { Header } from "./panels/header";
import { KeysDialog } from "./panels/keys_dialog";
import { ObjectsPanel } from "./panels/objects_panel";
import { Busy, Notices } from "./panels/overlays";
import { Splitter } from "./widgets/splitter";
import { TakesPanel } from "./panels/takes_panel";
import { bottomHeight, leftWidth, rightWidth, workWidth } from "./state/layout";
import { takes, working } from "./state/takes";
import { dragging } from "./drop";
import { Timeline } from "./timeline/timeline";
import { Viewport } from "./viewport/viewport";
import { FilesPanel } from "./desk/files_panel";
import { ModalLayer } from "./desk/modal_layer";
import { SettingsWindow } from "./desk/settings_window";
import { WorkColumn } from "./desk/work_column";

/** The page: takes and their objects at the left, the view, findings or work at the right, time below. */
export function App() {
  const isEmpty = takes.value.length === 0 && !working.value;
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
      <SettingsWindow />
      <ModalLayer />
    </div>
  );
}

/** The work stands beside view and timeline, the findings beside the view alone. */
function Workbench() {
  const sizes = {
    "--left": `${leftWidth.value}px`,
    "--right": `${(working.value ? workWidth : rightWidth).value}px`,
    "--bottom": `${bottomHeight.value}px`,
  };
  return (
    <main class={working.value ? "workbench working" : "workbench"} style={sizes}>
      <div class="over-time">
        <Seen />
      </div>
      {working.value && <Work />}
    </main>
  );
}

function Seen() {
  return (
    <>
      <div class="middle">
        <aside class="side left" aria-label="Takes and objects">
          {working.value ? <FilesPanel /> : <TakesPanel />}
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
        {!working.value && <Report />}
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
    </>
  );
}

interface RightSideProperties {
  label: string;
  /** What the line beside it is called by. */
  widthOf: string;
  size: Signal<number>;
  least: number;
  most: number;
  kind?: string;
  children: ComponentChildren;
}

/** What lies at the right, and the line that makes it wider. */
function RightSide({ label, widthOf, size, least, most, kind, children }: RightSideProperties) {
  return (
    <>
      <Splitter
        label={`Width of the ${widthOf}`}
        size={size}
        least={least}
        most={most}
        between="columns"
        before={false}
      />
      <aside class={kind ? `side right ${kind}` : "side right"} aria-label={label}>
        {children}
      </aside>
    </>
  );
}

function Report() {
  return (
    <RightSide label="Report" widthOf="findings" size={rightWidth} least={180} most={700}>
      <FindingsPanel />
    </RightSide>
  );
}

function Work() {
  return (
    <RightSide label="Work" widthOf="work" size={workWidth} least={300} most={800} kind="work">
      <WorkColumn />
    </RightSide>
  );
}
