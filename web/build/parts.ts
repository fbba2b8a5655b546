// What the page brings with it beside its own script: data that lies in it as base64 of gzip.

/** The worker's script, and the core as WebAssembly. */
export type Part = "worker-gzip" | "core-gzip";

/** A file that was put into the page when that was written. */
export interface EmbeddedTake {
  name: string;
  bytes: ArrayBuffer;
}

interface PackedTake {
  name: string;
  gzip: string;
}

/** The bytes of a part. Each call unpacks them anew. */
export async function openPart(id: Part): Promise<ArrayBuffer> {
  return unpack(textOf(id));
}

/** The takes that the page was written with; none in the page as it is built. */
export async function embeddedTakes(): Promise<EmbeddedTake[]> {
  return takesIn("embedded-takes");
}

/** The examples that every page has, a motion file and a marker file. */
export async function exampleTakes(): Promise<EmbeddedTake[]> {
  return takesIn("example-takes");
}

async function takesIn(id: string): Promise<EmbeddedTake[]> {
  const packed = JSON.parse(textOf(id)) as PackedTake[];
  return Promise.all(packed.map(async ({ name, gzip }) => ({ name, bytes: await unpack(gzip) })));
}

function textOf(id: string): string {
  const text = document.getElementById(id)?.textContent;
  if (!text) throw new Error(`The page lacks its part "${id}": it was not copied whole.`);
  return text;
}

async function unpack(base64: string): Promise<ArrayBuffer> {
  const stream = new Blob([bytesOf(base64)]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream).arrayBuffer();
}

// Piece by piece: the text of a large take, decoded at once, would be held three times.
function* piecesOf(base64: string): Generator<string> {
  const length = 4 << 18;
  for (let start = 0; start < base64.length; start += length) {
    yield atob(base64.slice(start, start + length));
  }
}

function bytesOf(base64: string): Uint8Array<ArrayBuffer> {
  const padding = base64.endsWith("==") ? 2 : base64.endsWith("=") ? 1 : 0;
  const bytes = new Uint8Array((base64.length / 4) * 3 - padding);
  let end = 0;
  for (const piece of piecesOf(base64)) {
    for (let at = 0; at < piece.length; ++at) bytes[end++] = piece.charCodeAt(at);
  }
  return bytes;
}
