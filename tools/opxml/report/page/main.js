// Puts the page together: headings, views, what a change of the address bar shows.
import { page } from "./data.js";
import { go, linkTo, onChange, start, view } from "./view.js";
import { byId } from "./dom.js";
import { showMatrix, startMatrix } from "./matrix.js";
import { showDetail } from "./detail.js";
import { showHealth } from "./health.js";
import { markChanges, showComparison } from "./comparison.js";

const VIEWS = { matrix: showMatrix, comparison: showComparison, health: showHealth };

function showView() {
  const shown = Object.hasOwn(VIEWS, view.view) ? view.view : "matrix";
  for (const name of Object.keys(VIEWS)) byId(name).hidden = name !== shown;
  for (const link of document.querySelectorAll("#views a")) {
    const isHere = link.dataset.view === shown;
    link.href = linkTo({ view: link.dataset.view, rule: "", file: "" });
    if (isHere) link.setAttribute("aria-current", "page");
    else link.removeAttribute("aria-current");
  }
  document.title = shown === "matrix" ? page.title : `${shown[0].toUpperCase()}${shown.slice(1)} – ${page.title}`;
  VIEWS[shown]();
}

function follow(event) {
  const link = event.target.closest("a[data-view]");
  if (!link || event.ctrlKey || event.metaKey || event.shiftKey) return;
  event.preventDefault();
  go({ view: link.dataset.view, rule: "", file: "" }, true);
}

function begin() {
  byId("origin").textContent = `${page.root} · ${page.made.replace("T", " ").replace("Z", " UTC")} · ${page.tool}`;
  byId("views").addEventListener("click", follow);
  byId("views").querySelector("[data-view=comparison]").hidden = !page.comparison;
  byId("skip").addEventListener("click", (event) => {
    event.preventDefault();
    byId("main").focus();
  });
  markChanges();
  startMatrix();
  onChange(showView);
  onChange(showDetail);
  start();
}

begin();
