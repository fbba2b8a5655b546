import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { dialogWords, linesOfRun, pageWords } from "../../page/logic/page_words";
import { askFindings, connect, openFiles } from "../../page/state/core";
import { notices } from "../../page/state/notices";
import type { Take } from "../../page/state/takes";
import type { CoreApi, Finding } from "../../worker/protocol";

declare const PAGE_FOLDER: string;

const SOURCES = path.resolve(PAGE_FOLDER, "../..");
const TELLING = ["inspect/check", "inspect/report", "cli/common", "cli/import", "cli/export", "cli/convert", "cli/rewrite"];

// What a file of C++ says: literals, joined where several make one text.
function textsOf(file: string): string[] {
  const code = readFileSync(path.join(SOURCES, file), "utf8").replace(/\/\/.*$/gm, "");
  const texts = code.match(/"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*/g) ?? [];
  return texts.map((text) => text.slice(1, -1).replace(/"\s*"/g, (gap, at: number) =>
    text[at] === "\\" ? gap : "").replaceAll('\\"', '"'));
}

test("what the page can do is told by its own controls", () => {
  const cases: [string, string][] = [
    ["It is refused; --range FROM:TO takes a part of them.",
      'It is refused; "Range" in the import\'s dialog takes a part of them.'],
    ["Nothing is multiplied by it; the import warns of it. --scale multiplies.",
      'Nothing is multiplied by it; the import warns of it. "Scale" in the import\'s dialog multiplies.'],
    ["240 is set, unless --frame-rate keep is given.",
      '240 is set, unless "Set Frame Rate" in the import\'s dialog is off.'],
    ['The file is an orvane scene, not an HTR file. "orvane scene" shows it.',
      'The file is an orvane scene, not an HTR file. "Open scene…" under "Work" shows it.'],
    ['"orvane map lint" checks it, and "orvane convert --mapping" takes it.',
      '"MNM Mapping File" on the utility panel takes it.'],
    ['--select NAME selects a bone; "orvane scene SCENE" lists the names.',
      'The list "Nodes" under "Work" selects a bone; the list "Nodes" under "Work" lists the names.'],
  ];
  for (const [theirs, ours] of cases) assert.equal(pageWords(theirs), ours);
});

test("beside a dialog its own controls are told", () => {
  assert.equal(
    dialogWords("In the others it stands still; --range FROM:TO leaves them out."),
    'In the others it stands still; "Range" leaves them out.',
  );
});

test("what it cannot do is left out", () => {
  const cases: [string, string][] = [
    ["It is taken as Y up; --up z turns it.", "It is taken as Y up."],
    ["Times begin at 0 in the new file; --start-time gives another one.", "Times begin at 0 in the new file."],
    ["Do its lines hold all columns? --no-report imports it anyway.", "Do its lines hold all columns?"],
    ["--up z takes them along Z and turns them: what stands lies on its side.", ""],
    ['"orvane import" and "orvane info" take it, by a name that ends in .htr or with "--as htr".', ""],
  ];
  for (const [theirs, ours] of cases) assert.equal(pageWords(theirs), ours);
});

test("what is of a file stays as it is", () => {
  for (const text of [
    'A marker is called "--up z; and more. So".',
    'There is "--range FROM:TO" in the first line.',
    "Lengths are in feet. a small letter begins here.",
    "",
  ]) {
    assert.equal(pageWords(text), text);
  }
});

test("nothing that a file is told with has a flag or a verb in it then", () => {
  let told = 0;
  for (const folder of TELLING) {
    for (const name of readdirSync(path.join(SOURCES, folder)).filter((each) => each.endsWith(".cpp"))) {
      for (const text of textsOf(`${folder}/${name}`).filter((each) => /--[a-z]|"orvane /.test(each))) {
        told += 1;
        assert.doesNotMatch(pageWords(text), /^[^"]*--[a-z]|"orvane /, `${folder}/${name}`);
      }
    }
  }
  assert.ok(told > 50, `${told} texts`);
});

test("a run tells of the file by the name that it has on the page", () => {
  const told = [
    "orvane: 2/walk.trc: warning: NumFrames announces 9, and the file holds 8. [trc-frame-count]",
    "orvane: 2/walk.trc: The import was refused",
    "  --no-report imports it anyway.",
    "",
  ];
  assert.equal(linesOfRun(told.join("\n"), "2/walk.trc", "walk.trc (2)"),
    "walk.trc (2): warning: NumFrames announces 9, and the file holds 8. [trc-frame-count]\n" +
    "walk.trc (2): The import was refused");
  assert.equal(linesOfRun("orvane: --x.trc: It is no take", "--x.trc", "--x.trc"), "--x.trc: It is no take");
});

test("what the core says of a file is told so", async () => {
  const theirs = "It is refused; --range FROM:TO takes a part of them.";
  const finding = { code: "a", cause: "It is long", consequence: theirs, text: theirs } as Finding;
  const refusal = Object.assign(new Error(`It is long. ${theirs}`), { name: "CoreError" });
  await connect(Promise.resolve({
    onProgress() {},
    open: () => Promise.reject(refusal),
    findings: async () => ({ findings: [finding], json: theirs }),
  } as Partial<CoreApi> as CoreApi));
  await openFiles([{ name: "long.htr", content: async () => new Blob() }]);
  assert.equal(notices.value.at(-1)?.text, `It is long. ${pageWords(theirs)}`);
  const told = await askFindings({ info: { id: 1 } } as Take, "import");
  assert.deepEqual(told.findings, [{ ...finding, text: pageWords(theirs), consequence: pageWords(theirs) }]);
  assert.equal(told.json, theirs, "the report is the program's");
});
