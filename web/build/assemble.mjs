// The page put together of its parts.

import { createHash } from "node:crypto";
import { gzipSync } from "node:zlib";

/** The source expression by which a content security policy lets in just this text. */
export function hashOf(text) {
  return `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
}

/** All that the page may do: nothing is fetched, from nowhere. */
export function policyOf(script, styles) {
  return [
    "default-src 'none'",
    `script-src ${hashOf(script)} 'wasm-unsafe-eval'`,
    "worker-src blob:",
    `style-src ${hashOf(styles)}`,
    "base-uri 'none'",
    "form-action 'none'",
  ].join("; ");
}

export function packed(bytes) {
  return gzipSync(bytes, { level: 9 }).toString("base64");
}

// What a parser of HTML would take for the end of the element, or for the start of another.
function requireInline(name, text) {
  if (/<\/(script|style)|<!--|[\r\0]/i.test(text)) {
    throw new Error(`The ${name} cannot stand in a page: it holds the end of an element.`);
  }
  return text;
}

/** `template` with {{name}} replaced by the text of that name in `texts`. */
export function filled(template, texts) {
  return template.replace(/\{\{(\w+)\}\}/g, (place, name) => {
    if (!(name in texts)) throw new Error(`The template has a place ${place} that nothing fills.`);
    return texts[name];
  });
}

function packedTakes(takes) {
  return JSON.stringify(takes.map(({ name, bytes }) => ({ name, gzip: packed(bytes) })));
}

/**
 * The page of `parts`: template, script, styles, worker, notices (texts), core (bytes), and examples
 * ({name, bytes} each).
 */
export function assemble(parts) {
  const script = requireInline("script", parts.script);
  const styles = requireInline("style sheet", parts.styles);
  return filled(parts.template, {
    policy: policyOf(script, styles),
    styles,
    script,
    examples: requireInline("examples", packedTakes(parts.examples)),
    worker: packed(parts.worker),
    core: packed(parts.core),
    notices: requireInline("notices", parts.notices.replaceAll("\r", "")),
  });
}
