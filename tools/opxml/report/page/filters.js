// The filters above the matrix: the form shows the view, and changes it.
import { page } from "./data.js";
import { findColumn, sortColumn } from "./choose.js";
import { go, view } from "./view.js";
import { byId, count, make } from "./dom.js";
import { kindTitles } from "./cells.js";

function readFilters() {
  const form = byId("filters");
  const kinds = [...form.querySelectorAll("[name=kind]")].filter((box) => box.checked).map((box) => box.value);
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

export function showFilters() {
  const { elements } = byId("filters");
  for (const name of ["types", "operations", "lacks"])
    if (elements[name].value !== view[name]) elements[name].value = view[name];
  for (const name of ["differences", "failed", "changed"]) elements[name].checked = view[name];
  elements.sort.value = sortColumn(view.sort) ? "column" : view.sort;
  const option = elements.sort.querySelector("[value=column]");
  option.hidden = !sortColumn(view.sort);
  option.textContent = sortColumn(view.sort)?.column.name ?? "a column";
  for (const box of byId("kinds").querySelectorAll("input")) box.checked = view.kinds.has(box.value);
  const isUnknown = view.lacks !== "" && !findColumn(view.lacks);
  elements.lacks.setAttribute("aria-invalid", isUnknown);
}

export function tellCount(rows, columns) {
  const counted = [
    rows.length === page.rows.length
      ? count(rows.length, "row")
      : `${rows.length.toLocaleString("en")} of ${count(page.rows.length, "row")}`,
    columns.length === page.columns.length
      ? count(columns.length, "operation")
      : `${columns.length.toLocaleString("en")} of ${count(page.columns.length, "operation")}`,
  ];
  const unknown = view.lacks && !findColumn(view.lacks) ? `; no operation is called “${view.lacks}”` : "";
  byId("count").textContent = counted.join(", ") + unknown;
  byId("reset").hidden =
    rows.length === page.rows.length && columns.length === page.columns.length && !view.sort && !unknown;
  byId("nothing").hidden = rows.length > 0 && columns.length > 0;
}

const NO_FILTERS = {
  types: "",
  operations: "",
  lacks: "",
  sort: "",
  differences: false,
  failed: false,
  changed: false,
  kinds: new Set(),
};

export function startFilters() {
  const form = byId("filters");
  byId("kinds").append(
    ...[...kindTitles].map(([word, title]) =>
      make("label", {}, make("input", { type: "checkbox", name: "kind", value: word }), make("span", { text: title })),
    ),
  );
  byId("columns").append(...page.columns.map((column) => make("option", { value: column.id })));
  form.elements.changed.parentElement.hidden = !page.comparison;
  form.addEventListener("input", readFilters);
  form.addEventListener("submit", (event) => event.preventDefault());
  byId("reset").addEventListener("click", () => {
    go(NO_FILTERS);
    form.elements.types.focus();
  });
}
