// The matrix on paper: cut into tables as wide as a page, with what the filters leave.
import { byId, count, make } from "./dom.js";
import { makeCell } from "./cells.js";

const COLUMNS_ON_PAPER = 30;
const CELLS_ON_PAPER = 60000; // some hundred sheets

function paperTable(rows, columns) {
  const lines = rows.map((row) =>
    make("tr", {}, make("th", { scope: "row", text: row.name }), ...columns.map((column) => makeCell(row, column))),
  );
  const headings = columns.map(({ name }) =>
    make("th", { scope: "col" }, make("span", { class: "operation", text: name })),
  );
  return make(
    "table",
    { class: "paper" },
    make("thead", {}, make("tr", {}, make("td"), ...headings)),
    make("tbody", {}, ...lines),
  );
}

export function fillPaper(rows, columns) {
  const printed = rows.slice(0, Math.floor(CELLS_ON_PAPER / Math.max(1, columns.length)));
  const sheets = [];
  for (let first = 0; first < columns.length; first += COLUMNS_ON_PAPER)
    sheets.push(paperTable(printed, columns.slice(first, first + COLUMNS_ON_PAPER)));
  if (printed.length < rows.length)
    sheets.unshift(
      make("p", { text: `The first ${count(printed.length, "row")} of ${rows.length}; filters choose others.` }),
    );
  byId("paper").replaceChildren(...sheets);
}
