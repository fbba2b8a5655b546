import { useEffect, useRef } from "preact/hooks";
import { keyText, SECTIONS } from "../logic/key_map";
import { modalThings } from "../state/desk";
import { keysShown } from "../state/layout";

/** All keys, on `?`. What the plug-in asks takes their place, for nothing can lie over them. */
export function KeysDialog() {
  const dialog = useRef<HTMLDialogElement>(null);
  const shown = keysShown.value && modalThings.value.length === 0;
  useEffect(() => {
    if (shown) dialog.current?.showModal();
    else dialog.current?.close();
  }, [shown]);
  return (
    <dialog ref={dialog} class="keys" aria-label="Keys" onClose={() => (keysShown.value = false)}>
      <div class="keys-columns">
        {SECTIONS.map((section) => (
          <section key={section.title}>
            <h2>{section.title}</h2>
            <dl>
              {section.bindings.map((binding) => (
                <div key={binding.command}>
                  <dt>
                    {binding.keys.map((key) => (
                      <kbd key={key}>{keyText(key)}</kbd>
                    ))}
                  </dt>
                  <dd>{binding.what}</dd>
                </div>
              ))}
            </dl>
          </section>
        ))}
        <section>
          <h2>Pointer</h2>
          <dl>
            <div>
              <dt>drag</dt>
              <dd>Around; right button or two fingers: shift; wheel or pinch: closer</dd>
            </div>
            <div>
              <dt>click</dt>
              <dd>Select; with Ctrl or Shift: select further ones</dd>
            </div>
            <div>
              <dt>wheel</dt>
              <dd>On the timeline: closer; with Shift: along; on names: up and down</dd>
            </div>
          </dl>
        </section>
      </div>
      <form method="dialog">
        <button class="primary">Close</button>
      </form>
    </dialog>
  );
}
