// The grid of the matrix, of which only what is in sight stands in the page, so that a
// thousand types scroll like ten. Keys move through all of it.
import { sortColumn } from "./choose.js";
import { go, view } from "./view.js";
import { byId, make } from "./dom.js";
import { columnHeading, kindTitles, makeCell, rowHeading } from "./cells.js";

const ROW_HEIGHT = 40; // as in matrix.css
const COLUMN_WIDTH = 34;
const SHOWN_WHOLE = 6000; // cells: a small matrix is all there
const ROOM_FOR_TITLE = 5; // columns: where a kind has less, its word stands at each column
const MARGIN = 4; // rows and columns beyond what is in sight; drawn anew when so many have passed

let rows = [];
let columns = [];
let drawn = ""; // what stands in the page
let focused = { row: 0, column: -1 }; // column -1: the heading of the row; row -1: that of the column

// ---- The part of the grid that is in sight ----

function inSight(first, length, total) {
  const begin = (Math.floor(first / MARGIN) - 1) * MARGIN;
  const end = (Math.ceil((first + length) / MARGIN) + 1) * MARGIN;
  return [Math.max(0, begin), Math.min(total, end)];
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

const gapCell = () => make("td", { class: "gap", "aria-hidden": "true" });

function drawColumns(first, end) {
  const widths = [make("col", { class: "names" })];
  if (first > 0) widths.push(make("col", { class: "gap" }));
  if (first > 0) widths.at(-1).style.width = `${first * COLUMN_WIDTH}px`;
  for (let at = first; at < end; at++) widths.push(make("col", { class: "cells" }));
  if (end < columns.length) widths.push(make("col", { class: "gap" }));
  if (end < columns.length) widths.at(-1).style.width = `${(columns.length - end) * COLUMN_WIDTH}px`;
  byId("grid")
    .querySelector("colgroup")
    .replaceChildren(...widths);
}

function kindRow(first, end) {
  const cells = [make("td", { class: "corner" })];
  if (first > 0) cells.push(gapCell());
  for (let at = first; at < end;) {
    const begin = at;
    while (at < end && columns[at].kind === columns[begin].kind) at++;
    const title = kindTitles.get(columns[begin].kind);
    const isNarrow = at - begin < ROOM_FOR_TITLE;
    cells.push(
      make(
        "th",
        { scope: "colgroup", colspan: at - begin, "aria-colindex": begin + 2, class: "kind", title },
        make("span", { text: title, class: isNarrow ? "unseen" : "" }),
      ),
    );
  }
  if (end < columns.length) cells.push(gapCell());
  return make("tr", { "aria-rowindex": 1 }, ...cells);
}

const beginsKind = (at) => at > 0 && columns[at - 1].kind !== columns[at].kind;

function headingRow(first, end) {
  const numbers = new Map();
  for (let at = first; at < end; at++) numbers.set(columns[at].kind, (numbers.get(columns[at].kind) ?? 0) + 1);
  const isNarrow = (kind) => numbers.get(kind) < ROOM_FOR_TITLE;
  const cells = [
    make("th", { scope: "col", class: "corner", "aria-colindex": 1 }, make("span", { text: "Type and version" })),
  ];
  if (first > 0) cells.push(gapCell());
  for (let at = first; at < end; at++)
    cells.push(columnHeading(columns[at], at, beginsKind(at), isNarrow(columns[at].kind)));
  if (end < columns.length) cells.push(gapCell());
  return make("tr", { "aria-rowindex": 2 }, ...cells);
}

function bodyRow(row, at, first, end) {
  const cells = [rowHeading(row, at)];
  if (first > 0) cells.push(gapCell());
  for (let column = first; column < end; column++) {
    const cell = makeCell(row, columns[column]);
    cell.tabIndex = -1;
    cell.dataset.at = `${at} ${column}`;
    cell.setAttribute("aria-colindex", column + 2);
    if (beginsKind(column)) cell.classList.add("first");
    cells.push(cell);
  }
  if (end < columns.length) cells.push(gapCell());
  const line = make("tr", { "aria-rowindex": at + 3 }, ...cells);
  line.setAttribute("aria-selected", row.name === view.row);
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

// Where to scroll to, so that a cell lies behind the headings and before the end. Columns
// may be a fraction wider than they are asked to be.
function scrolled(now, room, headings, at, size) {
  const begin = at * size;
  const end = begin + size + headings + 2;
  if (at >= 0 && begin < now) return begin;
  return at >= 0 && end > now + room ? end - room : now;
}

function bringIntoSight({ row, column }) {
  const scroll = byId("scroll");
  const grid = byId("grid");
  const names = grid.rows[1].cells[0].offsetWidth;
  scroll.scrollTop = scrolled(scroll.scrollTop, scroll.clientHeight, grid.tHead.offsetHeight, row, ROW_HEIGHT);
  scroll.scrollLeft = scrolled(scroll.scrollLeft, scroll.clientWidth, names, column, COLUMN_WIDTH);
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

// ---- From outside ----

export function fillGrid(shownRows, shownColumns) {
  rows = shownRows;
  columns = shownColumns;
  byId("grid").style.width = `calc(var(--names) + ${columns.length * COLUMN_WIDTH}px)`;
  byId("grid").setAttribute("aria-rowcount", rows.length + 2);
  byId("grid").setAttribute("aria-colcount", columns.length + 1);
  draw(false);
}

// The same rows and columns; another type may be chosen, or another part be in sight.
export function refreshGrid() {
  draw(true);
  for (const line of byId("grid").tBodies[0].querySelectorAll("tr:not(.gap)")) {
    const [at] = line.cells[0].dataset.at.split(" ");
    line.setAttribute("aria-selected", rows[at].name === view.row);
  }
}

export function startGrid() {
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
}
