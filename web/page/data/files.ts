import type { SourceFile } from "../state/core";

/** Files as they come to the page: their bytes stay where they are until the core reads them. */

export function sourceOf(file: File): SourceFile {
  return { name: file.name, content: async () => file };
}

export function droppedFiles(transfer: DataTransfer | null): SourceFile[] {
  return Array.from(transfer?.files ?? [], sourceOf);
}

/** Lets the person choose files. */
export function chooseFiles(chosen: (files: SourceFile[]) => void, many = true): void {
  const input = document.createElement("input");
  input.type = "file";
  input.multiple = many;
  input.addEventListener("change", () => chosen(Array.from(input.files ?? [], sourceOf)));
  input.click();
}
