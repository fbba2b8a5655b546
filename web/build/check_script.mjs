// What a script of the page must not hold: ways out of the page, and text that becomes code. It is read as
// a syntax tree, so that nothing hides behind line ends or quotation marks.

import ts from "typescript";

// Namespaces of XML, which nobody fetches.
const NAMESPACES = [
  "http://www.w3.org/1999/xhtml",
  "http://www.w3.org/2000/svg",
  "http://www.w3.org/1998/Math/MathML",
  "http://www.w3.org/1999/xlink",
  "http://www.w3.org/XML/1998/namespace",
  "http://www.w3.org/2000/xmlns/",
];

const WINDOWS = ["window", "globalThis", "self", "top", "parent", "opener", "defaultView", "frames"];

// The name that a node goes by at its end: location of window.location and of window["location"].
function lastName(node) {
  if (ts.isIdentifier(node)) return node.text;
  if (ts.isPropertyAccessExpression(node)) return node.name.text;
  if (ts.isElementAccessExpression(node) && ts.isStringLiteralLike(node.argumentExpression)) {
    return node.argumentExpression.text;
  }
  if (ts.isParenthesizedExpression(node) || ts.isNonNullExpression(node)) return lastName(node.expression);
  return "";
}

const ownerOf = (node) =>
  ts.isPropertyAccessExpression(node) || ts.isElementAccessExpression(node) ? node.expression : null;

// Of window, or of nothing.
function isOfWindow(node) {
  const owner = ownerOf(node);
  return owner === null || WINDOWS.includes(lastName(owner));
}

function isLink(text) {
  return /(?:^|[^\w:])(?:[a-z][a-z+.-]*:)?\/\/[\w-]+(?:\.[\w-]+)+/i.test(` ${text}`);
}

function linkIn(node) {
  const isText = ts.isStringLiteralLike(node) || ts.isTemplateHead(node) || ts.isTemplateMiddleOrTemplateTail(node);
  return isText && isLink(node.text) && !NAMESPACES.includes(node.text) ? node.text : null;
}

function isAssignment(node) {
  return (
    ts.isBinaryExpression(node) &&
    node.operatorToken.kind >= ts.SyntaxKind.FirstAssignment &&
    node.operatorToken.kind <= ts.SyntaxKind.LastAssignment
  );
}

// location = ..., location.href = ..., location.assign(...), but not location.hash = ...
function leavesPage(node) {
  if (isAssignment(node)) {
    if (lastName(node.left) === "location") return isOfPage(node.left);
    const owner = ownerOf(node.left);
    return owner !== null && lastName(owner) === "location" && lastName(node.left) !== "hash";
  }
  if (!ts.isCallExpression(node)) return false;
  const owner = ownerOf(node.expression);
  return (
    owner !== null &&
    lastName(owner) === "location" &&
    ["assign", "replace"].includes(lastName(node.expression))
  );
}

// Drawing libraries know other locations: those of the inputs of shaders.
function isOfPage(node) {
  const owner = ownerOf(node);
  return owner === null || [...WINDOWS, "document"].includes(lastName(owner));
}

function opensWindow(node) {
  return ts.isCallExpression(node) && lastName(node.expression) === "open" && isOfWindow(node.expression);
}

function makesCode(node) {
  if (!ts.isCallExpression(node) && !ts.isNewExpression(node)) return false;
  const name = lastName(node.expression);
  return (name === "eval" || name === "Function") && isOfWindow(node.expression);
}

function isPeerConnection(node) {
  const isName = ts.isIdentifier(node) || ts.isStringLiteralLike(node);
  return isName && /RTC(PeerConnection|DataChannel|IceTransport)/.test(node.text);
}

// What is wrong with one node; empty when nothing is.
function faultOf(node) {
  const link = linkIn(node);
  if (link !== null) return `holds the link ${link}`;
  if (leavesPage(node)) return "assigns to location";
  if (opensWindow(node)) return "calls window.open";
  if (makesCode(node)) return "makes code of text";
  if (isPeerConnection(node)) return "names a peer connection";
  return "";
}

/** What is wrong with the text of a script, which is called `name`: a sentence each. */
export function checkScript(name, text) {
  const source = ts.createSourceFile("script.js", text, ts.ScriptTarget.ES2022, false, ts.ScriptKind.JS);
  if (source.parseDiagnostics.length > 0) return [`The script of the ${name} cannot be parsed`];
  const faults = new Set();
  const visit = (node) => {
    const fault = faultOf(node);
    if (fault) faults.add(`The script of the ${name} ${fault}`);
    ts.forEachChild(node, visit);
  };
  visit(source);
  return [...faults];
}
