import { zipSync } from "fflate";
import {
  archiveName,
  archivePaths,
  baseName,
  newestOfEach,
  type WrittenFile,
} from "../logic/handed_out";
import { download } from "./download";

/** Hands out what the desk has written: one file as it is, several in one archive. */
export function handOutFiles(files: readonly WrittenFile[]): void {
  const newest = newestOfEach(files);
  if (newest.length === 1) {
    download(baseName(newest[0].name), new Blob([newest[0].bytes]));
    return;
  }
  const paths = archivePaths(newest);
  const entries = Object.fromEntries(newest.map(({ bytes }, index) => [paths[index], bytes]));
  const archive = zipSync(entries) as Uint8Array<ArrayBuffer>;
  download(archiveName(newest), new Blob([archive], { type: "application/zip" }));
}
