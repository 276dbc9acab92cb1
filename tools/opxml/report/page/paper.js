// The matrix on paper: cut into tables as wide as a page, with what the filters leave.
import { byId, make } from "./dom.js";
import { fillCell } from "./cells.js";

const COLUMNS_ON_PAPER = 30;
const CELLS_ON_PAPER = 60000;

function paperTable(rows, columns, first) {
  const shown = columns.slice(first, first + COLUMNS_ON_PAPER);
  const lines = rows.slice(0, Math.floor(CELLS_ON_PAPER / Math.max(1, columns.length))).map((row) =>
    make(
      "tr",
      {},
      make("th", { scope: "row", text: row.name }),
      ...shown.map((column) => {
        const cell = make("td");
        fillCell(cell, row, column);
        return cell;
      }),
    ),
  );
  const head = make(
    "tr",
    {},
    make("td"),
    ...shown.map((column) => make("th", { scope: "col" }, make("span", { class: "operation", text: column.name }))),
  );
  return make("table", { class: "paper" }, make("thead", {}, head), make("tbody", {}, ...lines));
}

export function fillPaper(rows, columns) {
  const tables = [];
  for (let first = 0; first < columns.length; first += COLUMNS_ON_PAPER) tables.push(paperTable(rows, columns, first));
  byId("paper").replaceChildren(...tables);
}
