// What changed since another root: gains and losses in the matrix, and the list of
// changes with the devices that they concern.
import { cellAt, isOffered, page } from "./data.js";
import { rowLink } from "./health.js";
import { byId, count, make, table } from "./dom.js";

let isListed = false;

// ---- In the matrix ----

const rowsOfType = new Map();
const typeKey = (type, version) => `${type}\n${version}`;

// The rows of a site: those of the versions in service that it is about.
function siteRows([type, software]) {
  const versions = page.comparison.software[software].split(", ").filter(Boolean);
  const rows = rowsOfType.get(typeKey(...page.comparison.types[type])) ?? [];
  return rows.filter(
    ({ serves }) => versions.length === 0 || serves.length === 0 || serves.some((served) => versions.includes(served)),
  );
}

// A gain must be offered now and a loss not: entries that others hide come and go unseen.
function markOf(change, row, column) {
  const offered = isOffered(cellAt(row, column.at));
  if (change.what === "gained" && offered && !change.rule.startsWith("twin")) return "gain";
  return change.what === "lost" && !offered ? "loss" : "change";
}

// The isolation view reads the menu of the device view as well, so a change of the one
// is told once for both.
function columnsOf({ column }) {
  const twin = column?.startsWith("menu:") ? page.columnOf.get(`isolation-${column}`) : undefined;
  return [page.columnOf.get(column), twin].filter(Boolean);
}

export function markChanges() {
  if (!page.comparison) return;
  for (const row of page.rows) {
    const key = typeKey(row.type, row.version);
    rowsOfType.set(key, [...(rowsOfType.get(key) ?? []), row]);
  }
  for (const change of page.comparison.changes) {
    for (const row of change.sites.flatMap(siteRows)) {
      row.changes ??= new Map();
      for (const column of columnsOf(change)) row.changes.set(column.at, markOf(change, row, column));
      if (change.rule === "type-gained") row.isNew = true;
    }
  }
}

// ---- As a list ----

const FEW = 6;

// The first ones, and the rest when it is asked for.
function some(nodes) {
  const separated = (list) => list.flatMap((node, at) => (at === 0 ? [node] : [", ", node]));
  if (nodes.length <= FEW + 1) return make("span", {}, ...separated(nodes));
  const summary = make("summary", { text: `and ${nodes.length - FEW} more` });
  const rest = make("details", { class: "some" }, summary, ...separated(nodes.slice(FEW)));
  return make("span", {}, ...separated(nodes.slice(0, FEW)), " ", rest);
}

function placesOf(change) {
  const { files } = page.comparison;
  const [, , was, is] = change.sites[0];
  const name = ([file, line]) => `${files[file].slice(files[file].lastIndexOf("/") + 1)}:${line}`;
  const known = [
    ["was", was],
    ["is", is],
  ].filter(([, place]) => place.length > 0);
  if (known.length === 0) return "";
  const title = known.map(([, [file, line]]) => `${files[file]}:${line}`).join("\n");
  return make("span", {
    class: "place",
    title,
    text: known.map(([word, place]) => `${word} ${name(place)}`).join(", "),
  });
}

function saysWhat(change, title) {
  const subject = [change.kind, change.path].filter(Boolean).join(" ");
  const values = change.field || (change.old && change.new) ? `: ${change.old ?? "–"} → ${change.new ?? "–"}` : "";
  const rename = change.rename ? `, perhaps renamed: ${change.rename}` : "";
  return make(
    "span",
    { class: "change" },
    make("b", { text: subject || title }),
    `${change.field ? ` ${change.field}` : ""}${values}${rename}`,
    subject ? make("span", { class: "why", text: title }) : "",
    placesOf(change),
  );
}

function typesOf(change) {
  const rows = new Set(change.sites.flatMap(siteRows));
  return some([...rows].map((row) => (row.gone ? make("span", { text: row.name }) : rowLink(row))));
}

// Rules are [id, impact, title, why, number of changes].
const rulesOf = (impact) => page.comparison.rules.filter((rule) => rule[1] === impact);
const numberOf = (impact) => rulesOf(impact).reduce((sum, rule) => sum + rule[4], 0);

function chapterOf(impact, devices) {
  const titles = new Map(rulesOf(impact).map(([id, , title]) => [id, title]));
  const changes = page.comparison.changes.filter((change) => titles.has(change.rule));
  const title = impact[0].toUpperCase() + impact.slice(1);
  const section = make("section", {}, make("h3", { text: title }));
  const lines = changes.map((change) => [
    saysWhat(change, titles.get(change.rule)),
    typesOf(change),
    some((devices.get(change) ?? []).map(([id, name]) => make("span", { text: name || String(id) }))),
  ]);
  if (lines.length === 0) section.append(make("p", { text: "None." }));
  else section.append(table(`${title} changes`, ["what", "types and versions", "devices concerned"], lines));
  const left = numberOf(impact) - changes.length;
  if (left > 0) section.append(make("p", { text: `${count(left, "more change")}; opxml diff lists all.` }));
  return section;
}

function devicesConcerned() {
  const { changes, devices } = page.comparison;
  const section = make("section", {}, make("h3", { text: "Devices that lose something" }));
  const lines = devices.map(([id, name, type, version, concerned]) => [
    name || String(id),
    String(id),
    `${type} ${version}`,
    some(concerned.filter((at) => changes[at]).map((at) => make("span", { text: changes[at].path ?? "its type" }))),
  ]);
  if (lines.length === 0) section.append(make("p", { text: "None." }));
  else section.append(table("Devices that lose something", ["device", "id", "type and version", "what breaks"], lines));
  return section;
}

function numbers() {
  const { devices, compared } = page.comparison;
  const card = (number, words, tone = "") =>
    make(
      "li",
      { class: `card ${tone}` },
      make("b", { text: number.toLocaleString("en") }),
      make("span", { text: words }),
    );
  const toneOf = (number) => (number > 0 ? "bad" : "good");
  return make(
    "ul",
    { class: "cards" },
    card(numberOf("breaking"), "breaking", toneOf(numberOf("breaking"))),
    card(devices.length, devices.length === 1 ? "device concerned" : "devices concerned", toneOf(devices.length)),
    card(numberOf("compatible"), "compatible"),
    card(numberOf("cosmetic"), "cosmetic"),
    card(compared, "types and versions compared"),
  );
}

export function showComparison() {
  if (isListed || !page.comparison) return;
  isListed = true;
  const { changes, devices, root } = page.comparison;
  const devicesOfChange = new Map();
  for (const device of devices)
    for (const at of device[4]) devicesOfChange.set(changes[at], [...(devicesOfChange.get(changes[at]) ?? []), device]);
  byId("comparison").append(
    make("p", { text: `Since ${root}. The matrix marks gains with +, losses with −, other changes with ≠.` }),
    numbers(),
    chapterOf("breaking", devicesOfChange),
    devicesConcerned(),
    chapterOf("compatible", devicesOfChange),
    chapterOf("cosmetic", devicesOfChange),
  );
}
