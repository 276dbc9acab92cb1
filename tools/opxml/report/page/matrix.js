// The matrix: filters, and a grid of which only what is in sight stands in the page,
// so that a thousand types scroll like ten. Keys move through all of it.
import { CUT, NOTHING, NOT_SUPPORTED, BY_MODULE, OFFERED, cellAt, cellWords, isCancelable, isNarrowed, levelOf, page, stateOf } from "./data.js";
import { chooseColumns, chooseRows, findColumn, sortColumn } from "./choose.js";
import { go, view } from "./view.js";
import { byId, count, make } from "./dom.js";

const ROW_HEIGHT = 40; // as in page.css
const COLUMN_WIDTH = 34;
const SHOWN_WHOLE = 6000; // cells: a small matrix is all there
const MARGIN = 8; // rows and columns beyond what is in sight

const STATE_CLASSES = { [OFFERED]: "own", [BY_MODULE]: "module", [CUT]: "cut", [NOT_SUPPORTED]: "off" };
const kindTitles = new Map(page.kinds.map(([word, plural]) => [word, plural[0].toUpperCase() + plural.slice(1)]));

let rows = [];
let columns = [];
let drawn = ""; // what stands in the page
let focused = { row: 0, column: -1 }; // column -1: the heading of the row; row -1: that of the column

// ---- Cells ----

export function sign(code) {
  const shape = make("span", { class: `sign ${STATE_CLASSES[stateOf(code)]}` });
  if (isCancelable(code)) shape.classList.add("cancelable");
  if (isNarrowed(code)) shape.classList.add("narrowed");
  if (levelOf(code) > 1) shape.dataset.level = levelOf(code) === 2 ? "B" : "+B";
  return shape;
}

const CHANGES = { gain: ["gain", "+"], loss: ["loss", "−"], change: ["change", "≠"] };

function fillCell(cell, row, column) {
  const code = cellAt(row, column.at);
  const change = row.changes?.get(column.at);
  if (code !== NOTHING) cell.append(sign(code));
  if (change) {
    cell.classList.add(CHANGES[change][0]);
    cell.append(make("span", { class: "mark", text: CHANGES[change][1] }));
  }
  cell.setAttribute("aria-label", change ? `${cellWords(code)}, ${change}` : cellWords(code));
}

function bodyCell(row, rowAt, column, columnAt) {
  const cell = make("td", { "aria-colindex": columnAt + 2, tabindex: "-1" });
  cell.dataset.at = `${rowAt} ${columnAt}`;
  fillCell(cell, row, column);
  return cell;
}

function rowHeading(row, rowAt) {
  const tags = [];
  if (row.problem) tags.push(["failed", "failed"]);
  else if (row.failedVersions.length > 0) tags.push(["failed", count(row.failedVersions.length, "version failed", "versions failed")]);
  if (row.replacedBy) tags.push(["replaced", `replaced by ${row.replacedBy}`]);
  if (row.gone) tags.push(["failed", "gone"]);
  if (row.isNew) tags.push(["replaced", "new"]);
  if (row.serves.length > 0) tags.push(["serves", row.serves.join(", ")]);
  const heading = make(
    "th",
    { scope: "row", "aria-colindex": 1, tabindex: "-1", title: row.problem || row.name },
    make("span", { class: "type", text: row.type }),
    " ",
    make("span", { class: "version" }, make("span", { text: row.version }), ...tags.flatMap(([name, text]) => [" ", make("span", { class: `tag ${name}`, text })])),
  );
  heading.dataset.at = `${rowAt} -1`;
  return heading;
}

// ---- The part of the grid that is in sight ----

function inSight(first, length, total) {
  const begin = Math.max(0, Math.floor(first) - MARGIN);
  return [begin, Math.min(total, Math.ceil(first + length) + MARGIN)];
}

// [first row, end, first column, end]
function part() {
  if (rows.length * columns.length <= SHOWN_WHOLE) return [0, rows.length, 0, columns.length];
  const scroll = byId("scroll");
  return [
    ...inSight(scroll.scrollTop / ROW_HEIGHT, scroll.clientHeight / ROW_HEIGHT, rows.length),
    ...inSight(scroll.scrollLeft / COLUMN_WIDTH, scroll.clientWidth / COLUMN_WIDTH, columns.length),
  ];
}

function gapRow(height, cells) {
  const row = make("tr", { class: "gap", "aria-hidden": "true" }, make("td", { colspan: cells }));
  row.firstChild.style.height = `${height}px`;
  return row;
}

const gapCell = (tag) => make(tag === "th" ? "td" : tag, { class: "gap", "aria-hidden": "true" });

function drawColumns(first, end) {
  const widths = [make("col", { class: "names" })];
  if (first > 0) widths.push(make("col", { class: "gap" }));
  if (first > 0) widths.at(-1).style.width = `${first * COLUMN_WIDTH}px`;
  for (let at = first; at < end; at++) widths.push(make("col", { class: "cells" }));
  if (end < columns.length) widths.push(make("col", { class: "gap" }));
  if (end < columns.length) widths.at(-1).style.width = `${(columns.length - end) * COLUMN_WIDTH}px`;
  byId("grid").querySelector("colgroup").replaceChildren(...widths);
}

function kindRow(first, end) {
  const cells = [make("td", { class: "corner" })];
  if (first > 0) cells.push(gapCell("td"));
  for (let at = first; at < end; ) {
    const begin = at;
    while (at < end && columns[at].kind === columns[begin].kind) at++;
    const title = kindTitles.get(columns[begin].kind);
    cells.push(make("th", { scope: "colgroup", colspan: at - begin, "aria-colindex": begin + 2, class: "kind", title }, make("span", { text: title })));
  }
  if (end < columns.length) cells.push(gapCell("td"));
  return make("tr", { "aria-rowindex": 1 }, ...cells);
}

function columnHeading(column, at) {
  const sorted = sortColumn(view.sort);
  const isSorted = sorted?.column === column;
  const heading = make(
    "th",
    {
      scope: "col",
      "aria-colindex": at + 2,
      tabindex: "-1",
      title: `${column.name} – ${kindTitles.get(column.kind)}`,
      "aria-sort": isSorted ? (sorted.isUpside ? "descending" : "ascending") : "none",
      class: at > 0 && columns[at - 1].kind !== column.kind ? "first" : "",
    },
    make("span", { class: "operation", text: column.name }),
  );
  heading.dataset.at = `-1 ${at}`;
  return heading;
}

function headingRow(first, end) {
  const cells = [make("th", { scope: "col", class: "corner", "aria-colindex": 1 }, make("span", { text: "Type and version" }))];
  if (first > 0) cells.push(gapCell("td"));
  for (let at = first; at < end; at++) cells.push(columnHeading(columns[at], at));
  if (end < columns.length) cells.push(gapCell("td"));
  return make("tr", { "aria-rowindex": 2 }, ...cells);
}

function bodyRow(row, at, first, end) {
  const cells = [rowHeading(row, at)];
  if (first > 0) cells.push(gapCell("td"));
  for (let column = first; column < end; column++) {
    const cell = bodyCell(row, at, columns[column], column);
    if (column > 0 && columns[column - 1].kind !== columns[column].kind) cell.classList.add("first");
    cells.push(cell);
  }
  if (end < columns.length) cells.push(gapCell("td"));
  const line = make("tr", { "aria-rowindex": at + 3 }, ...cells);
  if (row.name === view.row) line.setAttribute("aria-selected", "true");
  if (row.problem && row.columns.length === 0) line.classList.add("empty");
  return line;
}

function draw(isSame) {
  const [firstRow, endRow, first, end] = part();
  const wanted = [firstRow, endRow, first, end].join(" ");
  if (isSame && wanted === drawn) return;
  drawn = wanted;
  const hadFocus = byId("grid").contains(document.activeElement);
  const body = [];
  const width = end - first + 3;
  if (firstRow > 0) body.push(gapRow(firstRow * ROW_HEIGHT, width));
  for (let at = firstRow; at < endRow; at++) body.push(bodyRow(rows[at], at, first, end));
  if (endRow < rows.length) body.push(gapRow((rows.length - endRow) * ROW_HEIGHT, width));
  drawColumns(first, end);
  const grid = byId("grid");
  grid.tHead.replaceChildren(kindRow(first, end), headingRow(first, end));
  grid.tBodies[0].replaceChildren(...body);
  markFocus(hadFocus);
}

// ---- Keys ----

const cellOf = ({ row, column }) => byId("grid").querySelector(`[data-at="${row} ${column}"]`);

// One cell of the grid is a stop of the tabulator key.
function markFocus(isToFocus) {
  focused.row = Math.min(Math.max(focused.row, -1), rows.length - 1);
  focused.column = Math.min(Math.max(focused.column, focused.row < 0 ? 0 : -1), columns.length - 1);
  const grid = byId("grid");
  for (const cell of grid.querySelectorAll("[tabindex='0']")) cell.tabIndex = -1;
  const cell = cellOf(focused) ?? grid.querySelector("[data-at]");
  if (!cell) return;
  cell.tabIndex = 0;
  if (isToFocus && cell !== document.activeElement) cell.focus({ preventScroll: true });
}

function bringIntoSight({ row, column }) {
  const scroll = byId("scroll");
  const grid = byId("grid");
  const top = grid.tHead.offsetHeight;
  const left = grid.rows[1].cells[0].offsetWidth;
  const y = row * ROW_HEIGHT;
  const x = column * COLUMN_WIDTH;
  if (row >= 0 && y < scroll.scrollTop) scroll.scrollTop = y;
  if (row >= 0 && y + ROW_HEIGHT + top > scroll.scrollTop + scroll.clientHeight) scroll.scrollTop = y + ROW_HEIGHT + top - scroll.clientHeight;
  if (column >= 0 && x < scroll.scrollLeft) scroll.scrollLeft = x;
  if (column >= 0 && x + COLUMN_WIDTH + left > scroll.scrollLeft + scroll.clientWidth) scroll.scrollLeft = x + COLUMN_WIDTH + left - scroll.clientWidth;
}

function moveTo(row, column) {
  focused = { row, column };
  focused.row = Math.min(Math.max(row, -1), rows.length - 1);
  focused.column = Math.min(Math.max(column, focused.row < 0 ? 0 : -1), columns.length - 1);
  bringIntoSight(focused);
  draw(true);
  markFocus(true);
}

const page10 = () => Math.max(1, Math.floor(byId("scroll").clientHeight / ROW_HEIGHT) - 3);
const MOVES = {
  ArrowUp: ({ row, column }) => [row - 1, column],
  ArrowDown: ({ row, column }) => [row + 1, column],
  ArrowLeft: ({ row, column }) => [row, column - 1],
  ArrowRight: ({ row, column }) => [row, column + 1],
  PageUp: ({ row, column }) => [Math.max(0, row - page10()), column],
  PageDown: ({ row, column }) => [row + page10(), column],
  Home: ({ row, column }, isAll) => (isAll ? [0, -1] : [row, column === -1 ? -1 : -1]),
  End: ({ row }, isAll) => [isAll ? rows.length - 1 : row, columns.length - 1],
};

function press(event) {
  const move = MOVES[event.key];
  if (move) moveTo(...move(focused, event.ctrlKey));
  else if (event.key === "Enter" || event.key === " ") choose(focused);
  else return;
  event.preventDefault();
}

function choose({ row, column }) {
  if (row < 0) sortBy(columns[column]);
  else go({ row: rows[row].name, column: column < 0 ? "" : columns[column].id }, true);
}

function sortBy(column) {
  const sorted = sortColumn(view.sort);
  if (sorted?.column !== column) go({ sort: column.id });
  else go({ sort: sorted.isUpside ? "" : `-${column.id}` });
}

function click(event) {
  const cell = event.target.closest("[data-at]");
  if (!cell) return;
  const [row, column] = cell.dataset.at.split(" ").map(Number);
  focused = { row, column };
  markFocus(true);
  choose(focused);
}

// The column under the pointer is marked; the row is by style alone.
function hover(event) {
  const cell = event.target.closest("td[data-at], thead th[data-at]");
  const grid = byId("grid");
  for (const col of grid.querySelectorAll("col.under")) col.classList.remove("under");
  if (cell) grid.querySelector("colgroup").children[cell.cellIndex]?.classList.add("under");
}

// Back to the grid, where it was left.
export function focusGrid() {
  bringIntoSight(focused);
  draw(true);
  markFocus(true);
}

// ---- Filters ----

function readFilters() {
  const form = byId("filters");
  const kinds = [...form.elements.kind].filter((box) => box.checked).map((box) => box.value);
  go({
    types: form.elements.types.value,
    operations: form.elements.operations.value,
    lacks: form.elements.lacks.value,
    sort: form.elements.sort.value === "column" ? view.sort : form.elements.sort.value,
    differences: form.elements.differences.checked,
    failed: form.elements.failed.checked,
    changed: form.elements.changed.checked,
    kinds: new Set(kinds.length === page.kinds.length ? [] : kinds),
  });
}

function showFilters() {
  const { elements } = byId("filters");
  for (const name of ["types", "operations", "lacks"]) if (elements[name].value !== view[name]) elements[name].value = view[name];
  for (const name of ["differences", "failed", "changed"]) elements[name].checked = view[name];
  elements.sort.value = sortColumn(view.sort) ? "column" : view.sort;
  const option = elements.sort.querySelector("[value=column]");
  option.hidden = !sortColumn(view.sort);
  option.textContent = sortColumn(view.sort)?.column.name ?? "a column";
  for (const box of elements.kind) box.checked = view.kinds.has(box.value);
  const isUnknown = view.lacks !== "" && !findColumn(view.lacks);
  elements.lacks.setAttribute("aria-invalid", isUnknown);
}

function tellCount() {
  const counted = [
    rows.length === page.rows.length ? count(rows.length, "row") : `${rows.length.toLocaleString("en")} of ${count(page.rows.length, "row")}`,
    columns.length === page.columns.length ? count(columns.length, "operation") : `${columns.length.toLocaleString("en")} of ${count(page.columns.length, "operation")}`,
  ];
  const unknown = view.lacks && !findColumn(view.lacks) ? `; no operation is called “${view.lacks}”` : "";
  byId("count").textContent = counted.join(", ") + unknown;
  byId("reset").hidden = rows.length === page.rows.length && columns.length === page.columns.length && !view.sort && !unknown;
  byId("nothing").hidden = rows.length > 0 && columns.length > 0;
}

export function showMatrix() {
  showFilters();
  rows = chooseRows(view);
  columns = chooseColumns(view, rows);
  const grid = byId("grid");
  grid.setAttribute("aria-rowcount", rows.length + 2);
  grid.setAttribute("aria-colcount", columns.length + 1);
  tellCount();
  draw(false);
}

// ---- Paper: a matrix is cut into tables as wide as a page ----

const COLUMNS_ON_PAPER = 30;
const CELLS_ON_PAPER = 60000;

function paperTable(first) {
  const shown = columns.slice(first, first + COLUMNS_ON_PAPER);
  const lines = rows.slice(0, Math.floor(CELLS_ON_PAPER / Math.max(1, columns.length))).map((row) =>
    make("tr", {}, make("th", { scope: "row", text: row.name }), ...shown.map((column) => {
      const cell = make("td");
      fillCell(cell, row, column);
      return cell;
    })),
  );
  const head = make("tr", {}, make("td"), ...shown.map((column) => make("th", { scope: "col" }, make("span", { class: "operation", text: column.name }))));
  return make("table", { class: "paper" }, make("thead", {}, head), make("tbody", {}, ...lines));
}

function fillPaper() {
  const tables = [];
  for (let first = 0; first < columns.length; first += COLUMNS_ON_PAPER) tables.push(paperTable(first));
  byId("paper").replaceChildren(...tables);
}

// ---- Start ----

const LEGEND = [
  [0, "offered"],
  [1, "by a module"],
  [2, "cut by capacity"],
  [3, "not supported"],
  [32, "partly cut"],
  [16, "cancelable"],
  [8, "board level"],
  [12, "device and board"],
];

export function startMatrix() {
  const form = byId("filters");
  byId("kinds").append(
    ...[...kindTitles].map(([word, title]) => make("label", {}, make("input", { type: "checkbox", name: "kind", value: word }), make("span", { text: title }))),
  );
  byId("columns").append(...page.columns.map((column) => make("option", { value: column.id })));
  byId("legend").append(...LEGEND.map(([code, text]) => make("li", {}, sign(code), make("span", { text }))));
  form.elements.changed.parentElement.hidden = !page.comparison;
  form.addEventListener("input", readFilters);
  form.addEventListener("submit", (event) => event.preventDefault());
  byId("reset").addEventListener("click", () => {
    go({ types: "", operations: "", lacks: "", sort: "", differences: false, failed: false, changed: false, kinds: new Set() });
    form.elements.types.focus();
  });
  const grid = byId("grid");
  grid.addEventListener("keydown", press);
  grid.addEventListener("click", click);
  grid.addEventListener("mouseover", hover);
  let isAsked = false;
  const redraw = () => {
    if (isAsked) return;
    isAsked = true;
    requestAnimationFrame(() => {
      isAsked = false;
      if (!byId("matrix").hidden) draw(true);
    });
  };
  byId("scroll").addEventListener("scroll", redraw, { passive: true });
  new ResizeObserver(redraw).observe(byId("scroll"));
  addEventListener("beforeprint", fillPaper);
  addEventListener("afterprint", () => byId("paper").replaceChildren());
}
