import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import * as unsaved from "../../page/state/unsaved";
import type { Told } from "../../worker/desk_protocol";
import { current, node, sceneOf, sitDown } from "./desk_stand_in";

beforeEach(sitDown);

test("a scene that has changed is not replaced before the person agrees", () => {
  let replaced = 0;
  const replace = () => unsaved.replaceScene(() => ++replaced);
  replace();
  assert.equal(replaced, 1);
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "A")) },
    { tell: "done", task: "import", completed: true },
  );
  replace();
  assert.equal(replaced, 1);
  unsaved.agreeToLose();
  assert.deepEqual([replaced, unsaved.waiting.value], [2, null]);
  current().tell({ tell: "done", task: "export", completed: true });
  assert.ok(unsaved.unsaved.value);
  current().tell({ tell: "done", task: "save-scene", completed: false });
  assert.ok(unsaved.unsaved.value);
  current().tell({ tell: "done", task: "save-scene", completed: true });
  replace();
  assert.equal(replaced, 3);
});

test("an import that was canceled changes the scene by what it has left there", () => {
  const canceled: Told = { tell: "done", task: "import", completed: false };
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "A")) },
    { tell: "done", task: "open-scene", completed: true },
    { tell: "scene", scene: sceneOf(node(4, "A")) },
    canceled,
  );
  assert.equal(unsaved.unsaved.value, false);
  current().tell({ tell: "scene", scene: sceneOf(node(4, "A"), node(5, "B")) }, canceled);
  assert.equal(unsaved.unsaved.value, true);
});

test("the browser asks before the page is left with a scene that would be lost", () => {
  const page = new EventTarget();
  const end = unsaved.guardLeaving(page);
  const leave = () => !page.dispatchEvent(new Event("beforeunload", { cancelable: true }));
  assert.equal(leave(), false);
  current().tell(
    { tell: "scene", scene: sceneOf(node(4, "A")) },
    { tell: "done", task: "import", completed: true },
  );
  assert.equal(leave(), true);
  current().tell({ tell: "scene-gone" });
  assert.equal(leave(), false);
  end();
});
