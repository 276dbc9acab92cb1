// Which rows and columns are shown, and in which order.
import { NOTHING, cellAt, foldCase, isOffered, page } from "./data.js";

const wordsOf = (text) => foldCase(text).split(/\s+/).filter(Boolean);
const holdsAll = (text, words) => words.every((word) => text.includes(word));

// "device:Backup", or a name alone: the first column of it.
export const findColumn = (text) => page.columnOf.get(text) ?? page.columns.find((column) => column.name === text);

const byName = (left, right) => left.at - right.at;
const ORDERS = new Map(
  Object.entries({
    most: (left, right) => right.offers - left.offers || byName(left, right),
    fewest: (left, right) => left.offers - right.offers || byName(left, right),
    failed: (left, right) => Number(right.isFailed) - Number(left.isFailed) || byName(left, right),
  }),
);

// Those that have it first; what is offered before what is not.
function byColumn(column, isUpside) {
  const rank = (row) => {
    const code = cellAt(row, column.at);
    return code === NOTHING ? 128 : code + (isOffered(code) ? 0 : 64);
  };
  return (left, right) => (isUpside ? rank(right) - rank(left) : rank(left) - rank(right)) || byName(left, right);
}

// The column that is sorted by, from "device:Backup" or "-device:Backup".
export function sortColumn(sort) {
  const isUpside = sort.startsWith("-");
  const column = page.columnOf.get(isUpside ? sort.slice(1) : sort);
  return column && { column, isUpside };
}

export function chooseRows(view) {
  const words = wordsOf(view.types);
  const lacked = view.lacks ? findColumn(view.lacks) : null;
  const rows = page.rows.filter(
    (row) =>
      holdsAll(row.text, words) &&
      (!view.failed || row.isFailed) &&
      (!view.changed || row.changes) &&
      (!lacked || !isOffered(cellAt(row, lacked.at))),
  );
  const sorted = sortColumn(view.sort);
  const order = sorted ? byColumn(sorted.column, sorted.isUpside) : ORDERS.get(view.sort);
  return order ? rows.sort(order) : rows;
}

// The columns in which the rows are not all alike. Rows without a configuration say nothing.
function differing(rows) {
  const counts = new Uint32Array(page.columns.length);
  const firsts = new Int16Array(page.columns.length).fill(NOTHING);
  const differs = new Uint8Array(page.columns.length);
  const configured = rows.filter((row) => row.columns.length > 0);
  for (const row of configured) {
    row.columns.forEach((column, at) => {
      if (counts[column]++ === 0) firsts[column] = row.codes[at];
      else if (firsts[column] !== row.codes[at]) differs[column] = 1;
    });
  }
  return (column) => differs[column.at] === 1 || (counts[column.at] !== 0 && counts[column.at] !== configured.length);
}

function changedColumns(rows) {
  const changed = new Set();
  for (const row of rows) for (const column of row.changes?.keys() ?? []) changed.add(column);
  return (column) => changed.has(column.at);
}

export function chooseColumns(view, rows) {
  const words = wordsOf(view.operations);
  const isDifferent = view.differences ? differing(rows) : () => true;
  const isChanged = view.changed ? changedColumns(rows) : () => true;
  return page.columns.filter(
    (column) =>
      (view.kinds.size === 0 || view.kinds.has(column.kind)) &&
      holdsAll(column.text, words) &&
      isDifferent(column) &&
      isChanged(column),
  );
}
