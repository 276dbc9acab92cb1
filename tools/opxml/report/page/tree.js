// The tree of a type, and two of them side by side. A branch is filled when it is
// opened: a type may have thousands of lines.
import { page } from "./data.js";
import { make, unseen } from "./dom.js";

const FATES = { shadowed: "never asked for: an earlier entry has its id", dropped: "left out", cut: "cut by capacity" };

const fileName = (path) => path.slice(path.lastIndexOf("/") + 1);
const placeWords = (files, [file, line, column]) => `${files[file]}:${line}:${column}`;

// The first file of a detail is that of the type itself, and goes without saying.
function placeOf(files, place) {
  if (place[1] === 0) return null;
  const text = place[0] === 0 ? `line ${place[1]}` : `${fileName(files[place[0]])}:${place[1]}`;
  return make("span", { class: "place", title: placeWords(files, place), text });
}

// One line: name, what it says, whose it is, where it stands.
function lineOf(node, files) {
  const line = make(
    "span",
    { class: node.fate ? `line ${node.fate}` : "line" },
    placeOf(files, node.place),
    make("b", { text: node.name }),
    make("span", { text: node.rest }),
  );
  if (node.module) line.append(" ", make("span", { class: "tag module", text: `module ${node.module}` }));
  if (node.fate) {
    const because = node.because ? ` (${placeWords(files, node.because)})` : "";
    line.append(
      " ",
      make("span", { class: "tag fate", text: FATES[node.fate] + (node.reason ? `: ${node.reason}` : "") + because }),
    );
  }
  return line;
}

const sizeOf = (nodes) => nodes.reduce((sum, node) => sum + 1 + sizeOf(node.children), 0);

// A branch whose lines are made when it is opened for the first time.
function branch(summary, children, isOpen, fill) {
  const list = make("ul");
  const details = make("details", {}, make("summary", {}, summary), list);
  const fillOnce = () => {
    if (details.open && list.childElementCount === 0) list.append(...children.map(fill));
  };
  details.addEventListener("toggle", fillOnce);
  details.open = isOpen;
  fillOnce();
  return details;
}

function item(node, files, isOpen) {
  if (node.children.length === 0) return make("li", {}, lineOf(node, files));
  return make(
    "li",
    {},
    branch(lineOf(node, files), node.children, isOpen, (child) => item(child, files, isOpen)),
  );
}

const SHOWN_OPEN = 400; // lines; a section with more shows its first level alone

function sectionOf(section, title, size, body) {
  return make(
    "section",
    { class: "section", "data-section": section },
    make("h3", {}, title, " ", make("span", { class: "size", text: String(size) })),
    body,
  );
}

export function treeOf(detail) {
  return detail.sections.map(({ section, nodes }) => {
    const isOpen = sizeOf(nodes) <= SHOWN_OPEN;
    const counting = nodes.filter((node) => node.fate !== "cut" && node.fate !== "dropped").length;
    return sectionOf(
      section,
      page.sections[section],
      counting,
      make("ul", { class: "tree" }, ...nodes.map((node) => item(node, detail.files, isOpen))),
    );
  });
}

// ---- Side by side ----

const keyOf = (node) => node.name.replace(/^\d+\. /, "");
const saysOf = (node) => `${node.name.replace(/^\d+\. /, "")}${node.rest}${node.fate ?? ""}`;

// Entries of the same name meet, the first of a name with the first of it.
function pair(left, right) {
  const waiting = new Map();
  for (const node of right) {
    if (!waiting.has(keyOf(node))) waiting.set(keyOf(node), []);
    waiting.get(keyOf(node)).push(node);
  }
  const pairs = left.map((node) => pairOf(node, waiting.get(keyOf(node))?.shift()));
  const alone = right.filter((node) => waiting.get(keyOf(node)).includes(node)).map((node) => pairOf(undefined, node));
  return [...pairs, ...alone];
}

function pairOf(left, right) {
  const children = pair(left?.children ?? [], right?.children ?? []);
  const isSame = left && right && saysOf(left) === saysOf(right);
  return { left, right, children, isSame, isAlike: Boolean(isSame) && children.every((child) => child.isAlike) };
}

const SIDES = {
  same: ["", ""],
  differs: ["≠", "differs"],
  left: ["−", "only on the left"],
  right: ["+", "only on the right"],
};

function stateOfPair({ left, right, isSame }) {
  if (!right) return "left";
  if (!left) return "right";
  return isSame ? "same" : "differs";
}

function pairLine(paired, files) {
  const state = stateOfPair(paired);
  const [mark, words] = SIDES[state];
  const side = (node, which) =>
    make("span", { class: "side" }, node ? lineOf(node, files[which]) : make("span", { class: "absent", text: "–" }));
  return make(
    "span",
    { class: `pair ${state}` },
    make("span", { class: "mark", "aria-hidden": "true", text: mark }),
    words ? unseen(`${words}: `) : "",
    side(paired.left, 0),
    side(paired.right, 1),
  );
}

function pairItem(paired, files) {
  if (paired.children.length === 0) return make("li", {}, pairLine(paired, files));
  return make(
    "li",
    {},
    branch(pairLine(paired, files), paired.children, !paired.isAlike, (child) => pairItem(child, files)),
  );
}

export function treesOf(left, right, isOnlyDifferences) {
  const files = [left.files, right.files];
  const nodesOf = (detail, section) => detail.sections.find((found) => found.section === section)?.nodes ?? [];
  const onlyDifferent = (pairs) =>
    isOnlyDifferences
      ? pairs
          .filter((paired) => !paired.isAlike)
          .map((paired) => ({ ...paired, children: onlyDifferent(paired.children) }))
      : pairs;
  return page.sections.flatMap((title, section) => {
    const pairs = onlyDifferent(pair(nodesOf(left, section), nodesOf(right, section)));
    if (pairs.length === 0) return [];
    return sectionOf(
      section,
      title,
      pairs.length,
      make("ul", { class: "tree pairs" }, ...pairs.map((paired) => pairItem(paired, files))),
    );
  });
}
