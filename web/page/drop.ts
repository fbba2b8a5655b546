import { signal } from "@preact/signals";
import { droppedFiles } from "./data/files";
import { openFiles } from "./state/core";

/** Whether files are held over the page. */
export const dragging = signal(false);

/** Opens files that are dropped anywhere on the page. */
export function listenToDrops(): void {
  addEventListener("dragover", (event) => {
    event.preventDefault();
    dragging.value = event.dataTransfer?.types.includes("Files") ?? false;
  });
  addEventListener("dragleave", (event) => {
    if (event.relatedTarget === null) dragging.value = false;
  });
  addEventListener("drop", (event) => {
    event.preventDefault();
    dragging.value = false;
    const files = droppedFiles(event.dataTransfer);
    if (files.length > 0) void openFiles(files);
  });
}
