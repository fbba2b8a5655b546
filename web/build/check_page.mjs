// What keeps the page to itself, beside its content security policy, which stops neither navigation nor
// peer connections: node web/build/check_page.mjs PAGE

import { readFileSync } from "node:fs";
import { pathToFileURL } from "node:url";
import { gunzipSync } from "node:zlib";
import { policyOf } from "./assemble.mjs";
import { checkScript } from "./check_script.mjs";

// The elements of `page`: what stands in the tag, and the text up to the next tag; of scripts and style
// sheets all of it. Enough of a parser for a page that comes from our own template.
function elementsOf(page) {
  const pattern = /<(script|style)([^>]*)>([^]*?)<\/\1>|<(\w+)([^>]*)>([^<]*)/g;
  return [...page.matchAll(pattern)].map((match) => ({
    name: match[1] ?? match[4],
    attributes: attributesOf(match[2] ?? match[5]),
    text: match[3] ?? match[6],
  }));
}

function attributesOf(text) {
  const found = text.matchAll(/([\w-]+)(?:="([^"]*)")?/g);
  return Object.fromEntries([...found].map(([, name, value]) => [name, value ?? ""]));
}

const ALLOWED = {
  html: ["lang"],
  head: [],
  meta: ["charset", "http-equiv", "content", "name"],
  title: [],
  style: [],
  body: [],
  div: ["id"],
  script: ["type", "id"],
};

function checkElement({ name, attributes }) {
  if (!(name in ALLOWED)) return [`holds an element <${name}>`];
  const faults = Object.keys(attributes)
    .filter((attribute) => !ALLOWED[name].includes(attribute))
    .map((attribute) => `holds an attribute ${attribute} of <${name}>`);
  const equivalent = attributes["http-equiv"];
  if (equivalent !== undefined && equivalent !== "Content-Security-Policy") {
    faults.push(`holds a <meta> for ${equivalent}`);
  }
  return faults;
}

function checkStyles(styles) {
  return /url\(|@import|image-set\(/i.test(styles) ? ["The style sheet refers to other files"] : [];
}

function checkPolicy(elements, script, styles) {
  const policies = elements.filter(({ attributes }) => attributes["http-equiv"] !== undefined);
  const asked = policies.map(({ attributes }) => attributes.content);
  return asked.length === 1 && asked[0] === policyOf(script, styles)
    ? []
    : ["The content security policy is not just that of its script and style sheet"];
}

const textsOf = (elements, wanted) => elements.filter(wanted).map(({ text }) => text);

/** What is wrong with the text `page`: a sentence each. */
export function checkPage(page) {
  const elements = elementsOf(page);
  const scripts = textsOf(elements, ({ name, attributes }) => name === "script" && !attributes.type);
  const styles = textsOf(elements, ({ name }) => name === "style");
  if (scripts.length !== 1 || styles.length !== 1) return ["has not just one script and one style sheet"];
  const workers = textsOf(elements, ({ attributes }) => attributes.id === "worker-gzip");
  return [
    ...elements.flatMap(checkElement),
    ...checkStyles(styles[0]),
    ...checkPolicy(elements, scripts[0], styles[0]),
    ...checkScript("page", scripts[0]),
    ...workers.flatMap((text) =>
      checkScript("worker", gunzipSync(Buffer.from(text, "base64")).toString("utf8")),
    ),
  ];
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) {
  const faults = checkPage(readFileSync(process.argv[2], "utf8"));
  for (const fault of faults) console.error(`${process.argv[2]}: ${fault}`);
  process.exitCode = faults.length > 0 ? 1 : 0;
}
