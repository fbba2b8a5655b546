// Runs the Khronos glTF validator on files, and on all .glb and .gltf files in folders:
//
//   node tools/validate_gltf.mjs FILE-OR-FOLDER...
//
// Prints errors and warnings. Exit status 0: there are none; 1: there are some, or a file is no
// glTF at all; 2: there was no file to look at.
import { readdir, readFile, stat } from "node:fs/promises";
import { join } from "node:path";
import process from "node:process";
import validator from "gltf-validator";

const SEVERITIES = ["error", "warning"];

// The files that `path` stands for.
async function filesOf(path) {
  if (!(await stat(path)).isDirectory()) return [path];
  const names = await readdir(path);
  return names.filter((name) => /\.(glb|gltf)$/.test(name)).map((name) => join(path, name));
}

// What the validator holds against the file `path`, one line each.
async function findings(path) {
  const bytes = new Uint8Array(await readFile(path));
  const report = await validator.validateBytes(bytes, { uri: path, maxIssues: 0 });
  return report.issues.messages
    .filter((issue) => issue.severity < SEVERITIES.length)
    .map(({ severity, code, message, pointer, offset }) => {
      return `${SEVERITIES[severity]}: ${code} at ${pointer ?? offset}: ${message}`;
    });
}

const files = (await Promise.all(process.argv.slice(2).map(filesOf))).flat();
if (files.length === 0) {
  console.error("usage: node tools/validate_gltf.mjs FILE-OR-FOLDER...");
  process.exit(2);
}
let count = 0;
for (const file of files) {
  const lines = await findings(file).catch((reason) => [`error: ${reason}`]);
  for (const line of lines) console.log(`${file}: ${line}`);
  count += lines.length;
}
console.log(`${files.length} files, ${count} errors and warnings`);
process.exit(count === 0 ? 0 : 1);
