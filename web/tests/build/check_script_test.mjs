import assert from "node:assert/strict";
import { test } from "node:test";
import { checkScript } from "../../build/check_script.mjs";

const FAULTY = [
  ['const page = "https://example.com/collect";', /the link https:\/\/example\.com\/collect/],
  ["const page = `//example.com/${name}`;", /the link/],
  ['const socket = "wss://example.com";', /the link/],
  ['window.open("a")', /calls window\.open/],
  ['window["open"]("a")', /calls window\.open/],
  ['open("a")', /calls window\.open/],
  ['(globalThis).open("a")', /calls window\.open/],
  ['location = "a"', /assigns to location/],
  ['window.location = "a"', /assigns to location/],
  ['document["location"] = "a"', /assigns to location/],
  ['location.href = "a"', /assigns to location/],
  ['location.search += "a"', /assigns to location/],
  ['window.location.assign("a")', /assigns to location/],
  ['location.replace("a")', /assigns to location/],
  ["new RTCPeerConnection()", /a peer connection/],
  ['new window["webkitRTCPeerConnection"]()', /a peer connection/],
  ['eval("a")', /makes code of text/],
  ['(0, window.eval)("a"); self.eval("a")', /makes code of text/],
  ['new Function("a")', /makes code of text/],
  ['Function("return this")()', /makes code of text/],
  ["const = 1", /cannot be parsed/],
];

for (const [script, fault] of FAULTY) {
  test(`refuses ${script}`, () => {
    const faults = checkScript("page", script);
    assert.equal(faults.length, 1, faults.join("; "));
    assert.match(faults[0], fault);
  });
}

const SOUND = [
  'document.createElementNS("http://www.w3.org/2000/svg", "path")',
  'location.hash = "walk"',
  "const here = location.href;",
  'request.open("GET", name)',
  "attribute.location = 3",
  "const quotient = 6 // 2\n/ 3;",
  'const text = "read // then write";',
  "const Function = 1; const evaluate = (text) => text;",
];

for (const script of SOUND) {
  test(`takes ${script}`, () => assert.deepEqual(checkScript("page", script), []));
}
