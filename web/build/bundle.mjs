// What esbuild makes of the TypeScript sources: one script, one style sheet.

import { readFileSync } from "node:fs";
import { builtinModules } from "node:module";
import path from "node:path";
import { build } from "esbuild";

const EMPTY = "empty";

// The script that Emscripten generates, under the name that the worker imports it by. It also runs in
// Node, whose modules a browser has none of.
function generatedScript(file) {
  return {
    name: "generated-script",
    setup(build) {
      build.onResolve({ filter: /^orvane-core$/ }, () => ({ path: path.resolve(file) }));
      build.onResolve({ filter: /.*/ }, ({ path: name }) =>
        builtinModules.includes(name.replace(/^node:/, "")) ? { path: name, namespace: EMPTY } : null,
      );
      build.onLoad({ filter: /.*/, namespace: EMPTY }, () => ({ contents: "module.exports = {};" }));
    },
  };
}

/**
 * Bundles what `entry` imports; "orvane-core" stands for the file `core`.
 * Returns {script, styles, packages}: texts, and the folders of the npm packages that are in them.
 */
export async function bundle(entry, core) {
  const result = await build({
    entryPoints: [entry],
    bundle: true,
    write: false,
    metafile: true,
    outdir: "bundled",
    format: "iife",
    target: "es2022",
    platform: "browser",
    minify: true,
    legalComments: "none",
    jsx: "automatic",
    jsxImportSource: "preact",
    define: { "process.env.NODE_ENV": '"production"' },
    plugins: [generatedScript(core)],
    logLevel: "error",
  });
  const textOf = (extension) =>
    result.outputFiles.find((file) => file.path.endsWith(extension))?.text.trim() ?? "";
  return { script: textOf(".js"), styles: textOf(".css"), packages: packagesIn(result.metafile) };
}

function packagesIn(metafile) {
  const folders = Object.keys(metafile.inputs).map(
    (input) => /^.*node_modules\/(?:@[^/]+\/)?[^/]+/.exec(input)?.[0],
  );
  return [...new Set(folders.filter(Boolean))].sort();
}

// What Debian's packages are whose code is linked into the core.
const LINKED = ["emscripten", "libcli11-dev", "libfast-float-dev", "libfmt-dev", "nlohmann-json3-dev"];

/** The licences of what is linked into the core, as Debian's packages bring them. */
export function noticesOfCore() {
  return LINKED.map(
    (name) => `${name}\n\n${readFileSync(`/usr/share/doc/${name}/copyright`, "utf8").trim()}\n`,
  );
}

/** The licences of the npm packages in these folders. */
export function noticesOf(packages) {
  return packages.map((folder) => {
    const { name, version } = JSON.parse(readFileSync(path.join(folder, "package.json"), "utf8"));
    return `${name} ${version}\n\n${readFileSync(path.join(folder, "LICENSE"), "utf8").trim()}\n`;
  });
}
