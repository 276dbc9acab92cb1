// The parts of the matrix: the sign of a cell, a cell, headings of rows and columns.
import {
  BY_MODULE,
  CUT,
  NOTHING,
  NOT_SUPPORTED,
  OFFERED,
  cellAt,
  cellWords,
  isCancelable,
  isNarrowed,
  levelOf,
  page,
  stateOf,
} from "./data.js";
import { sortColumn } from "./choose.js";
import { view } from "./view.js";
import { count, make } from "./dom.js";

const STATE_CLASSES = { [OFFERED]: "own", [BY_MODULE]: "module", [CUT]: "cut", [NOT_SUPPORTED]: "off" };

export const kindTitles = new Map(
  page.kinds.map(([word, plural]) => [word, plural[0].toUpperCase() + plural.slice(1)]),
);

export function sign(code) {
  const shape = make("span", { class: `sign ${STATE_CLASSES[stateOf(code)]}` });
  if (isCancelable(code)) shape.classList.add("cancelable");
  if (isNarrowed(code)) shape.classList.add("narrowed");
  if (levelOf(code) > 1) shape.dataset.level = levelOf(code) === 2 ? "B" : "+B";
  return shape;
}

export const CHANGE_MARKS = { gain: "+", loss: "−", change: "≠" };

function newCell(code, change) {
  const cell = make("td");
  if (code !== NOTHING) cell.append(sign(code));
  if (change) {
    cell.classList.add(change);
    cell.append(make("span", { class: "mark", text: CHANGE_MARKS[change] }));
  }
  cell.setAttribute("aria-label", change ? `${cellWords(code)}, ${change}` : cellWords(code));
  return cell;
}

const newCells = new Map(); // there are few that differ, and very many of them

export function makeCell(row, column) {
  const code = cellAt(row, column.at);
  const change = row.changes?.get(column.at);
  const key = change ? `${code} ${change}` : code;
  if (!newCells.has(key)) newCells.set(key, newCell(code, change));
  return newCells.get(key).cloneNode(true);
}

export function rowHeading(row, rowAt) {
  const tags = [];
  if (row.problem) tags.push(["failed", "failed"]);
  else if (row.failedVersions.length > 0)
    tags.push(["failed", count(row.failedVersions.length, "version failed", "versions failed")]);
  if (row.replacedBy) tags.push(["replaced", `replaced by ${row.replacedBy}`]);
  if (row.gone) tags.push(["failed", "gone"]);
  if (row.isNew) tags.push(["replaced", "new"]);
  if (row.serves.length > 0) tags.push(["serves", row.serves.join(", ")]);
  const heading = make(
    "th",
    { scope: "row", "aria-colindex": 1, tabindex: "-1", title: row.problem || row.name },
    make("span", { class: "type", text: row.type }),
    " ",
    make(
      "span",
      { class: "version" },
      make("span", { text: row.version }),
      ...tags.flatMap(([name, text]) => [" ", make("span", { class: `tag ${name}`, text })]),
    ),
  );
  heading.dataset.at = `${rowAt} -1`;
  return heading;
}

export function columnHeading(column, at, isFirst, isWithKind) {
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
      class: isFirst ? "first" : "",
    },
    make("span", { class: "operation", text: column.name }),
  );
  if (isWithKind) heading.firstChild.dataset.kind = column.kind.replace("-", " ");
  heading.dataset.at = `-1 ${at}`;
  return heading;
}
