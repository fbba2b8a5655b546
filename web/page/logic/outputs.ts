import type { TakeInfo } from "../../worker/protocol";
import { fileStem } from "./names";

/** The files that are made of a take, by the program's own verbs. */
export interface Output {
  readonly label: string;
  readonly what: string;
  readonly ending: string;
  readonly of: readonly TakeInfo["kind"][];
  readonly verb: "import" | "rewrite" | "convert";
}

export const OUTPUTS: readonly Output[] = [
  {
    label: "GLB",
    what: "scene that any glTF viewer plays",
    ending: "glb",
    of: ["motion", "markers"],
    verb: "import",
  },
  {
    label: "HTR",
    what: "motion file without oddities",
    ending: "htr",
    of: ["motion"],
    verb: "rewrite",
  },
  {
    label: "BVK",
    what: "named markers for the host",
    ending: "bvk",
    of: ["markers"],
    verb: "convert",
  },
];

/** A name that is not that of the take itself. */
export function outputName(output: Output, info: TakeInfo): string {
  const stem = fileStem(info.name);
  const same = info.name.toLowerCase().endsWith(`.${output.ending}`);
  return `${stem}${same ? "-rewritten" : ""}.${output.ending}`;
}

export function outputVerb(output: Output, info: TakeInfo): string[] {
  return [output.verb, info.path, "-o", outputName(output, info)];
}
