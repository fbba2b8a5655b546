import assert from "node:assert/strict";
import { test } from "node:test";
import { example, startClient, startDesk } from "./built_core.mjs";

/** Promises the first that is told of that name, and of that task if one is named. */
function told(desk, tell, task) {
  return new Promise((resolve) => desk.onTold((each) => each.tell === tell && each.task === task && resolve(each)));
}

test("a desk works in a worker, and takes are answered while a dialog of it is open", async () => {
  const [desk, core] = [await startDesk(), await startClient()];
  const walk = new Blob([example("walk.htr")]);
  const dialog = told(desk, "dialog");
  desk.put("walk.htr", walk);
  desk.do({ did: "import", path: "walk.htr" });
  const { shown } = await dialog;
  assert.equal(shown.title, "ImportHTR");
  const { info } = await core.open("walk.htr", walk);
  assert.equal(info.objects.length, 21);
  const [done, scene] = [told(desk, "done", "import"), told(desk, "scene")];
  desk.do({ did: "command", dialog: shown.dialog, control: 1097 });
  assert.equal((await scene).scene.positions.length, 3 * (await scene).scene.frames * (await scene).scene.nodes.length);
  assert.equal((await done).completed, true);
  desk.end();
  core.end();
});

test("files that the desk has made are told with their bytes, and the next task finds them", async () => {
  const desk = await startDesk();
  const file = told(desk, "file");
  desk.do({ did: "save-scene", path: "empty.glb" });
  const { name, bytes } = await file;
  assert.equal(name, "empty.glb");
  assert.equal(Buffer.from(bytes.subarray(0, 4)).toString(), "glTF");
  const done = told(desk, "done", "open-scene");
  desk.do({ did: "open-scene", path: "empty.glb" });
  assert.equal((await done).completed, true);
  desk.end();
});

test("a file that cannot be read any more is told, and leaves the desk and its scene as they are", async () => {
  const desk = await startDesk();
  const unread = told(desk, "unread");
  const done = told(desk, "done", "import");
  desk.put("gone.trc", { arrayBuffer: "it has changed" });
  desk.do({ did: "import", path: "gone.trc" });
  assert.equal((await unread).path, "gone.trc");
  assert.equal((await done).completed, false);
  const saved = told(desk, "done", "save-scene");
  desk.do({ did: "save-scene", path: "empty.glb" });
  assert.equal((await saved).completed, true);
  desk.end();
});

test("a desk that cannot go on is told as a failure", async () => {
  const desk = await startDesk();
  const failed = told(desk, "failed");
  desk.do({ did: "select", nodes: 7n });
  assert.match((await failed).words, /BigInt/);
  desk.end();
});
