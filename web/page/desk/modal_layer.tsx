import { useLayoutEffect, useRef } from "preact/hooks";
import type { Thing } from "../logic/desk_things";
import { modalThings } from "../state/desk";
import { FolderWindow, OpenWindow, SaveWindow } from "./choice_window";
import { DialogWindow } from "./dialog_window";
import { MessageWindow } from "./message_window";
import { keepFocus } from "./stops";

/** What the plug-in waits for: one window over the other, of which the last can be used; and notices, as always. */
export function ModalLayer() {
  const things = modalThings.value;
  const layer = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => {
    const page = [...(layer.current?.parentElement?.children ?? [])];
    for (const part of page) {
      const stays = part === layer.current || part.matches(".notices");
      if (!stays) part.toggleAttribute("inert", things.length > 0);
    }
  }, [things.length > 0]);
  return (
    <div
      class={things.length > 0 ? "modal-layer shown" : "modal-layer"}
      ref={layer}
      onMouseDown={keepFocus}
    >
      {things.map((thing, index) => (
        <div
          key={`${thing.kind}-${thing.number}`}
          class="modal-place"
          inert={index < things.length - 1}
        >
          <ThingWindow thing={thing} />
        </div>
      ))}
    </div>
  );
}

function ThingWindow({ thing }: { thing: Thing }) {
  switch (thing.kind) {
    case "dialog":
      return <DialogWindow dialog={thing.dialog} />;
    case "message":
      return <MessageWindow message={thing.message} />;
    case "files":
      return thing.choice.save ? (
        <SaveWindow choice={thing.choice} />
      ) : (
        <OpenWindow choice={thing.choice} />
      );
    case "folder":
      return <FolderWindow choice={thing.choice} />;
  }
}
