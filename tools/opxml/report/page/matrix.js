// The matrix: what is chosen of it, in the grid and on paper.
import { chooseColumns, chooseRows } from "./choose.js";
import { page } from "./data.js";
import { view } from "./view.js";
import { byId, make } from "./dom.js";
import { CHANGE_MARKS, sign } from "./cells.js";
import { fillGrid, refreshGrid, startGrid } from "./grid.js";
import { showFilters, startFilters, tellCount } from "./filters.js";
import { fillPaper } from "./paper.js";

let chosen = { rows: [], columns: [] };
let chosenBy = "";

const FILTERS = ["types", "operations", "lacks", "sort", "differences", "failed", "changed"];

export function showMatrix() {
  const wanted = JSON.stringify([...FILTERS.map((name) => view[name]), ...view.kinds]);
  if (wanted === chosenBy) {
    refreshGrid();
    return;
  }
  chosenBy = wanted;
  showFilters();
  const rows = chooseRows(view);
  const columns = chooseColumns(view, rows);
  chosen = { rows, columns };
  tellCount(rows, columns);
  fillGrid(rows, columns);
}

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

function marks() {
  if (!page.comparison) return [];
  return Object.entries(CHANGE_MARKS).map(([change, mark]) =>
    make("li", {}, make("span", { class: "mark", text: mark }), make("span", { text: change })),
  );
}

export function startMatrix() {
  byId("legend").append(
    ...LEGEND.map(([code, text]) => make("li", {}, sign(code), make("span", { text }))),
    ...marks(),
  );
  startFilters();
  startGrid();
  addEventListener("beforeprint", () => fillPaper(chosen.rows, chosen.columns));
  addEventListener("afterprint", () => byId("paper").replaceChildren());
}
