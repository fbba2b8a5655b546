// Pictures as browsers take them, as pixels: PNG of 8 bits a channel, without interlacing.

import { inflateSync } from "node:zlib";

function chunksOf(bytes) {
  const chunks = [];
  for (let at = 8; at < bytes.length; at += 12 + bytes.readUInt32BE(at)) {
    const length = bytes.readUInt32BE(at);
    chunks.push({
      type: bytes.toString("latin1", at + 4, at + 8),
      data: bytes.subarray(at + 8, at + 8 + length),
    });
  }
  return chunks;
}

function paeth(left, above, corner) {
  const guess = left + above - corner;
  const [a, b, c] = [left, above, corner].map((value) => Math.abs(guess - value));
  if (a <= b && a <= c) return left;
  return b <= c ? above : corner;
}

const FILTERS = [
  () => 0,
  (left) => left,
  (left, above) => above,
  (left, above) => (left + above) >> 1,
  paeth,
];

// Takes back what each row was stored as a difference from.
function unfiltered(data, width, height, channels) {
  const stride = width * channels;
  const pixels = Buffer.alloc(stride * height);
  for (let row = 0; row < height; ++row) {
    const filter = FILTERS[data[row * (stride + 1)]];
    for (let at = 0; at < stride; ++at) {
      const place = row * stride + at;
      const left = at >= channels ? pixels[place - channels] : 0;
      const above = row > 0 ? pixels[place - stride] : 0;
      const corner = at >= channels && row > 0 ? pixels[place - stride - channels] : 0;
      pixels[place] = data[row * (stride + 1) + 1 + at] + filter(left, above, corner);
    }
  }
  return pixels;
}

/** {width, height, channels, pixels} of the PNG file `bytes`. */
export function decodePng(bytes) {
  const chunks = chunksOf(bytes);
  const header = chunks.find(({ type }) => type === "IHDR").data;
  const [width, height] = [header.readUInt32BE(0), header.readUInt32BE(4)];
  const channels = { 2: 3, 6: 4 }[header[9]];
  const packed = Buffer.concat(chunks.filter(({ type }) => type === "IDAT").map(({ data }) => data));
  return { width, height, channels, pixels: unfiltered(inflateSync(packed), width, height, channels) };
}

/** Whether each pixel, by rows, has a hue within 12 degrees of that of `color` ("#58a6e8"), and is no gray. */
function matching(picture, color) {
  const wanted = hueOf(...[1, 3, 5].map((at) => parseInt(color.slice(at, at + 2), 16)));
  return Array.from({ length: picture.width * picture.height }, (_, pixel) => {
    const at = pixel * picture.channels;
    const [red, green, blue] = picture.pixels.subarray(at, at + 3);
    if (Math.max(red, green, blue) - Math.min(red, green, blue) < 60) return false;
    const apart = Math.abs(hueOf(red, green, blue) - wanted);
    return Math.min(apart, 360 - apart) < 12;
  });
}

/** How many pixels of the picture are of the hue of `color`. */
export function countColor(picture, color) {
  return matching(picture, color).filter(Boolean).length;
}

// The beginning and end of each stretch of what is true.
function stretches(flags) {
  const found = [];
  flags.forEach((flag, at) => {
    if (flag && !flags[at - 1]) found.push([at, at]);
    if (flag) found[found.length - 1][1] = at;
  });
  return found;
}

/** The stretches of columns, and those of rows, that have a pixel of the hue: [first, last] of each. */
export function colorStretches(picture, color, { left = 0, top = 0, bottom = picture.height - 1 } = {}) {
  const columns = new Array(picture.width).fill(false);
  const rows = new Array(picture.height).fill(false);
  matching(picture, color).forEach((matches, pixel) => {
    const row = Math.floor(pixel / picture.width);
    if (!matches || row < top || row > bottom || pixel % picture.width < left) return;
    columns[pixel % picture.width] = true;
    rows[row] = true;
  });
  return { columns: stretches(columns), rows: stretches(rows) };
}

function hueOf(red, green, blue) {
  const most = Math.max(red, green, blue);
  const span = most - Math.min(red, green, blue) || 1;
  if (most === red) return (60 * ((green - blue) / span) + 360) % 360;
  return most === green ? 60 * ((blue - red) / span) + 120 : 60 * ((red - green) / span) + 240;
}
