// One desk: an instance of the core in which a person works.

import createCore from "orvane-core";
import type { Did, ShownScene, StoredValue, Told } from "./desk_protocol";
import { withoutFolder, WorkFolder } from "./work_folder";

type Words = Did | { did: "store-settings"; values: StoredValue[] };

/** Halves of characters, which can be typed, have no bytes. */
function wellFormed(text: string): string {
  return new TextDecoder().decode(new TextEncoder().encode(text));
}

/** Tells what is to be seen, with the arrays that may be given away. */
export type Teller = (told: Told, transfer: ArrayBuffer[]) => void;

export class DeskInstance {
  private folder!: WorkFolder;
  private readonly words: string[] = [];
  private wake: (() => void) | undefined;
  private numbers: Float32Array<ArrayBuffer>[] = [];

  private constructor(private readonly tell: Teller) {}

  static async begin(compiled: WebAssembly.Module, settings: StoredValue[], tell: Teller): Promise<DeskInstance> {
    const desk = new DeskInstance(tell);
    const module = await createCore({
      instantiateWasm(imports, take) {
        void WebAssembly.instantiate(compiled, imports).then((instance) => take(instance, compiled));
        return {};
      },
      addNumbers: (numbers) => desk.numbers.push(numbers),
      tell: (json) => desk.take(JSON.parse(json) as Told),
      nextEvent: (awaited) => desk.nextEvent(awaited),
    });
    desk.folder = new WorkFolder(module);
    if (settings.length > 0) desk.say({ did: "store-settings", values: settings });
    module._orvane_desk_run();
    return desk;
  }

  put(path: string, bytes: Uint8Array<ArrayBuffer>): void {
    this.folder.put({ path, bytes });
  }

  remove(path: string): void {
    this.folder.remove(path);
  }

  do(did: Did): void {
    this.say(did);
  }

  private say(words: Words): void {
    this.words.push(JSON.stringify(words, (_, value: unknown) => (typeof value === "string" ? wellFormed(value) : value)));
    this.wake?.();
  }

  // When nothing is awaited, what the page has sent meanwhile is let in first.
  private async nextEvent(awaited: boolean): Promise<string | null> {
    if (!awaited) await new Promise((resolve) => setTimeout(resolve, 0));
    else if (this.words.length === 0) await new Promise<void>((resolve) => (this.wake = resolve));
    this.wake = undefined;
    return this.words.shift() ?? null;
  }

  private take(told: Told): void {
    const lists = this.numbers;
    this.numbers = [];
    if (told.tell === "scene") {
      const scene: ShownScene = { ...told.scene, positions: lists[0]!, ends: lists[1]! };
      this.tell({ tell: "scene", scene }, lists.map(({ buffer }) => buffer));
      return;
    }
    if (told.tell === "idle" || told.tell === "done") {
      for (const file of this.folder.takeMade()) this.tell({ tell: "file", ...file }, [file.bytes.buffer]);
    }
    this.tell(readable(told), []);
  }
}

/** Sentences as somebody reads them who knows of no folder. */
function readable(told: Told): Told {
  if (told.tell === "message") return { ...told, text: withoutFolder(told.text) };
  if (told.tell === "refused") return { ...told, words: withoutFolder(told.words) };
  return told;
}
