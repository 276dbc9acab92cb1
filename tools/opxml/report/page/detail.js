// The panel of one type: what it is, who uses it, its tree; beside a second type if wished.
import { detailOf, page } from "./data.js";
import { go, view } from "./view.js";
import { byId, count, make } from "./dom.js";
import { treeOf, treesOf } from "./tree.js";
import { focusGrid } from "./grid.js";

let shown = ""; // what the panel holds
let isOnlyDifferences = true;

function facts(pairs) {
  return make(
    "dl",
    { class: "facts" },
    ...pairs
      .filter(([, value]) => value && value.length !== 0)
      .flatMap(([name, value]) => [make("dt", { text: name }), make("dd", {}, value)]),
  );
}

function versionsOf(row) {
  if (row.versions.length === 0) return null;
  return make(
    "ul",
    {},
    ...row.versions.map(([version, outcome, file, problem]) =>
      make(
        "li",
        {},
        make("b", { text: version }),
        ` ${outcome}`,
        file ? make("span", { class: "place", text: ` ${file}` }) : "",
        problem ? make("span", { class: "problem", text: ` ${problem}` }) : "",
      ),
    ),
  );
}

const FEW_DEVICES = 12;

function devicesOf(row) {
  const items = row.devices.map((device) =>
    make(
      "li",
      {},
      make("b", { text: device.name || String(device.id) }),
      ` ${device.id}${device.address ? `, ${device.address}` : ""}${device.runs ? `, runs ${device.runs}` : ""}${device.telnet ? ", over telnet" : ""}`,
    ),
  );
  if (items.length === 0) return null;
  const list = make("ul", {}, ...items);
  return items.length <= FEW_DEVICES
    ? list
    : make("details", {}, make("summary", { text: count(items.length, "device") }), list);
}

function factsOf(row) {
  return facts([
    ["Failed", row.problem && make("span", { class: "problem", text: row.problem })],
    [
      "Replaced",
      row.replacedBy &&
        `The entry of version ${row.replacedBy} has the same key and answers for this one, too: the tree is its.`,
    ],
    ["From", row.source && row.source !== "none" && `${row.source}${row.file ? `, ${row.file}` : ""}`],
    ["Key", row.key !== row.type && row.key],
    ["Serves", row.serves.join(", ")],
    ["Versions", versionsOf(row)],
    ["Modules", row.modules.join(", ")],
    ["Devices", devicesOf(row)],
  ]);
}

function partnerField(row) {
  const field = make("input", {
    type: "search",
    list: "rows",
    value: view.with,
    placeholder: "another type",
    autocomplete: "off",
    spellcheck: "false",
  });
  field.addEventListener("change", () => {
    if (field.value === "" || page.rowOf.has(field.value)) go({ with: field.value });
    field.setAttribute("aria-invalid", field.value !== "" && !page.rowOf.has(field.value));
  });
  if (!byId("rows"))
    document.body.append(
      make("datalist", { id: "rows" }, ...page.rows.map((other) => make("option", { value: other.name }))),
    );
  const label = make("label", { class: "field" }, make("span", { text: "Side by side with" }), field);
  const tools = make("div", { class: "tools" }, label);
  if (page.rowOf.has(view.with) && view.with !== row.name) {
    const box = make("input", { type: "checkbox", checked: isOnlyDifferences });
    box.addEventListener("change", () => {
      isOnlyDifferences = box.checked;
      fill(row);
    });
    tools.append(make("label", { class: "switch" }, box, make("span", { text: "Only differences" })));
  }
  return tools;
}

function close() {
  go({ row: "", with: "", column: "" }, true);
  focusGrid();
}

function openAll(body, isOpen) {
  // Opening fills a branch, and that has further branches.
  let closed = [...body.querySelectorAll("details")].filter((details) => details.open !== isOpen);
  for (; closed.length > 0; closed = isOpen ? [...body.querySelectorAll("details:not([open])")] : []) {
    for (const details of closed) {
      details.open = isOpen;
      details.dispatchEvent(new Event("toggle"));
    }
  }
}

function headOf(row, body) {
  const heading = make(
    "h2",
    { id: "detail-heading", tabindex: "-1" },
    make("span", { class: "type", text: row.type }),
    " ",
    make("span", {
      class: "version",
      text: [row.version, row.served && `for ${row.served}`].filter(Boolean).join(" "),
    }),
  );
  const button = (text, listener, more = {}) =>
    make("button", { type: "button", class: "plain", text, on: { click: listener }, ...more });
  return make(
    "header",
    {},
    heading,
    make(
      "div",
      { class: "buttons" },
      button("Open all", () => openAll(body, true)),
      button("Close all", () => openAll(body, false)),
      button("✕", close, { "aria-label": "Close the detail", title: "Close (Escape)", class: "plain close" }),
    ),
  );
}

function pairHeads(row, partner) {
  return make(
    "div",
    { class: "pair heads", "aria-hidden": "true" },
    make("span", { class: "mark" }),
    make("span", { class: "side", text: row.name }),
    make("span", { class: "side", text: partner.name }),
  );
}

async function treeNodes(row, partner) {
  const detail = await detailOf(row);
  if (!detail)
    return [
      make("p", {
        class: "note",
        text:
          row.problem && row.columns.length === 0
            ? "There is no configuration."
            : "This page was made without the trees of the types.",
      }),
    ];
  if (!partner) return treeOf(detail);
  const other = await detailOf(partner);
  if (!other)
    return [make("p", { class: "note", text: `There is no configuration of ${partner.name}.` }), ...treeOf(detail)];
  const trees = treesOf(detail, other, isOnlyDifferences);
  const nothing = make("p", { class: "note", text: "Both say the same." });
  return [pairHeads(row, partner), ...(trees.length > 0 ? trees : [nothing])];
}

// The operation that was clicked is brought into sight.
function showColumn(body) {
  const column = page.columnOf.get(view.column);
  if (!column) return;
  const name = column.name.slice(column.name.indexOf(": ") + 1).trim();
  const section = body.querySelector(`[data-section="${sectionOfKind(column.kind)}"]`);
  const lines = section ? [...section.querySelectorAll(".line > b")] : [];
  const line =
    lines.find((found) => found.textContent === column.name) ?? lines.find((found) => found.textContent.endsWith(name));
  if (!line) return;
  const parent = line.closest(".line");
  parent.classList.add("wanted");
  parent.scrollIntoView({ block: "center" });
}

// The kinds that have columns stand in the order of the sections.
const KINDS_OF_SECTIONS = [
  "device",
  "task",
  "patch",
  "patch-state",
  "check",
  "custom",
  "other",
  "upgrade",
  "menu",
  "tab",
  "patch-menu",
  "isolation-menu",
  "task-type",
];
const sectionOfKind = (kind) => KINDS_OF_SECTIONS.indexOf(kind);

async function fill(row) {
  const partner = view.with === row.name ? undefined : page.rowOf.get(view.with);
  const panel = byId("detail");
  const body = make("div", { class: "body" });
  panel.classList.toggle("two", Boolean(partner));
  const wanted = shown;
  const nodes = await treeNodes(row, partner);
  if (wanted !== shown) return; // another one was chosen meanwhile
  body.append(factsOf(row), partnerField(row), ...nodes);
  panel.replaceChildren(headOf(row, body), body);
  showColumn(body);
}

export async function showDetail(before) {
  const row = view.view === "matrix" ? page.rowOf.get(view.row) : undefined;
  const panel = byId("detail");
  const wanted = row ? [row.name, view.with, view.column].join("\n") : "";
  if (wanted === shown) return;
  const isNew = before.row !== view.row;
  shown = wanted;
  panel.hidden = !row;
  document.body.classList.toggle("split", Boolean(row));
  if (!row) return;
  await fill(row);
  if (isNew && shown === wanted) byId("detail-heading")?.focus({ preventScroll: true });
}

addEventListener("keydown", (event) => {
  if (event.key === "Escape" && !byId("detail").hidden) close();
});
