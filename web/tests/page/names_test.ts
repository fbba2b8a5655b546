import assert from "node:assert/strict";
import { test } from "node:test";
import { cut, fileStem, shown, shownLines } from "../../page/logic/names";

test("names are shown as they are, and what cannot be seen by its code", () => {
  const cases: [string, string][] = [
    ["walker:LFHD", "walker:LFHD"],
    ["<img src=x onerror=alert(1)>", "<img src=x onerror=alert(1)>"],
    ["مرحبا", "مرحبا"],
    ["\u202egnp.exe", "[U+202E]gnp.exe"],
    ["a\u2066b\u2069c", "a[U+2066]b[U+2069]c"],
    ["a\u0000b\nc\u0085", "a[U+0000]b[U+000A]c[U+0085]"],
    ["a\u200bb\ufeff", "a[U+200B]b[U+FEFF]"],
    ["x\ud800y", "x[U+D800]y"],
    ["tag\u{e0041}", "tag[U+E0041]"],
    ["smile \u{1f600}", "smile \u{1f600}"],
  ];
  for (const [name, expected] of cases) assert.equal(shown(name), expected);
});

test("long names are cut, no character torn", () => {
  assert.equal(cut("abcdef", 6), "abcdef");
  assert.equal(cut("abcdef", 5), "abcde…");
  assert.equal(cut("ab\u{1f600}cd", 3), "ab…");
  assert.equal(shown("x".repeat(10_000)).length, 201);
});

test("lines of a message stay lines, and what ends it is no line of its own", () => {
  assert.equal(shownLines("one\u0000\r\n\ntwo\n", 100), "one[U+0000]\n\ntwo");
  assert.equal(shownLines("x".repeat(50), 10), `${"x".repeat(10)}…`);
});

test("names of downloads hold nothing that leads elsewhere", () => {
  const cases: [string, string][] = [
    ["walk.htr", "walk"],
    ["my.take.trc", "my.take"],
    ["../../etc/passwd.htr", ".._.._etc_passwd"],
    ["\u202egnp.htr", "_gnp"],
    [".htr", "take"],
  ];
  for (const [name, expected] of cases) assert.equal(fileStem(name), expected);
});
