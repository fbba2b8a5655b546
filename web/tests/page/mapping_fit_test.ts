import assert from "node:assert/strict";
import { test } from "node:test";
import { fitFindings, mappingFile } from "../../page/logic/mapping_fit";

const ABOUT_THE_MAPPING = { file_type: "MNM", totals: { "mnm-fits-nothing": 9 }, findings: [] };

function reportOf(totals: Record<string, number>, findings: object[] = []): string {
  return JSON.stringify({ files: [ABOUT_THE_MAPPING, { file_type: "TRC", totals, findings }] });
}

test("a mapping that fits nothing is an error, in words of the page", () => {
  const nothing = {
    code: "mnm-fits-nothing",
    found: "no entry for any of the file's 41 markers",
    effect: "Every marker is dropped; --names subject takes 39 names for those of the mapping.",
  };
  const unmapped = { code: "mnm-marker-unmapped" };
  const totals = { "mnm-fits-nothing": 1, "mnm-marker-unmapped": 41 };
  assert.deepEqual(fitFindings(reportOf(totals, [unmapped, nothing])), [
    {
      code: "mnm-fits-nothing",
      severity: "error",
      text: "The mapping has no entry for any of the file's 41 markers. Every marker is dropped.",
    },
  ]);
});

test("markers that a mapping leaves out are counted", () => {
  const [found] = fitFindings(reportOf({ "mnm-marker-unmapped": 2 }, [{ code: "mnm-marker-unmapped" }]));
  assert.deepEqual([found.severity, found.code], ["warning", "mnm-marker-unmapped"]);
  assert.match(found.text, /no entry for 2 markers/);
  assert.deepEqual(fitFindings(reportOf({})), []);
  assert.deepEqual(fitFindings(""), []);
});

test("the mapping on the panel is the file of that path", () => {
  const [mine, other] = [new Blob(["1"]), new Blob(["2"])];
  const files = new Map([["my.mnm", mine], ["day1/my.mnm", other], ["y.mnm", other]]);
  assert.equal(mappingFile("/files/my.mnm", files), mine);
  assert.equal(mappingFile("y.mnm", files), other);
  assert.equal(mappingFile("", files), undefined);
});
