import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";
import { assemble } from "../../build/assemble.mjs";
import { checkPage } from "../../build/check_page.mjs";

const TEMPLATE = readFileSync(new URL("../../build/template.html", import.meta.url), "utf8");

const PARTS = {
  template: TEMPLATE,
  script: 'document.getElementById("app").textContent = "ready";',
  styles: "body{margin:0}",
  worker: 'self.onmessage = () => self.postMessage("done");',
  core: new Uint8Array([0, 97, 115, 109]),
  examples: [{ name: "walk.htr", bytes: "[Header]" }],
  notices: "library 1.0\r\n\r\nhttps://library.example",
};

const pageWith = (parts) => assemble({ ...PARTS, ...parts });

test("a page of sound parts passes", () => assert.deepEqual(checkPage(pageWith({})), []));

test("the policy lets in the script and the style sheet by their hashes, and nothing else", () => {
  const [, policy] = /Content-Security-Policy" content="([^"]*)"/.exec(pageWith({}));
  assert.match(
    policy,
    /^default-src 'none'; script-src 'sha256-[\w+/]{43}=' 'wasm-unsafe-eval'; worker-src blob:; style-src 'sha256-[\w+/]{43}='; base-uri 'none'; form-action 'none'$/,
  );
});

const FAULTY = [
  ["the script", pageWith({ script: 'window.open("a")' }), /script of the page calls window\.open/],
  ["the worker", pageWith({ worker: 'eval("a")' }), /script of the worker makes code of text/],
  ["the styles", pageWith({ styles: "body{background:url(a.png)}" }), /refers to other files/],
  ["an image", pageWith({}).replace('<div id="app">', '<img src="a.png">'), /an element <img>/],
  ["a form", pageWith({}).replace('<div id="app">', '<form action="a">'), /an element <form>/],
  ["a script from elsewhere", pageWith({}).replace("<script>", '<script src="a.js">'), /attribute src of <script>/],
  ["a handler", pageWith({}).replace("<body>", '<body onload="a()">'), /attribute onload of <body>/],
  [
    "a way on",
    pageWith({}).replace('<meta name="viewport"', '<meta http-equiv="refresh"'),
    /<meta> for refresh/,
  ],
  ["another script", pageWith({}).replace("ready", "other"), /policy is not just that/],
  ["a wider policy", pageWith({}).replace("worker-src blob:", "worker-src *"), /policy is not just that/],
];

for (const [what, page, fault] of FAULTY) {
  test(`refuses a page for ${what}`, () => assert.match(checkPage(page).join("\n"), fault));
}

for (const text of ["</script>", "<!-- <script>", "\r"]) {
  test(`a script with ${JSON.stringify(text)} makes no page`, () => {
    assert.throws(() => pageWith({ script: `x = "${text}"` }), /The script cannot stand in a page/);
  });
}
