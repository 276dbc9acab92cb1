// What is broken and what is remarkable about the files, and when the page was made.
import { page } from "./data.js";
import { go, linkTo, view } from "./view.js";
import { byId, count, make, table } from "./dom.js";

let isFilled = false;

const failedRows = () => page.rows.filter((row) => row.isFailed);

export function rowLink(row) {
  return make("a", {
    href: linkTo({ view: "matrix", row: row.name, rule: "", file: "" }),
    text: row.name,
    on: {
      click: (event) => {
        event.preventDefault();
        go({ view: "matrix", row: row.name, rule: "", file: "" }, true);
      },
    },
  });
}

function card(number, words, tone) {
  return make(
    "li",
    { class: tone ? `card ${tone}` : "card" },
    make("b", { text: number.toLocaleString("en") }),
    make("span", { text: words }),
  );
}

function cards() {
  const severities = { error: 0, warning: 0, note: 0 };
  for (const [, , severity, number] of page.lint?.rules ?? []) severities[severity] += number;
  const types = page.rows.filter((row) => !row.further && !row.gone);
  const failed = failedRows().length;
  return make(
    "ul",
    { class: "cards" },
    card(types.length, types.length === 1 ? "device type and version" : "device types and versions"),
    card(failed, "failed", failed > 0 ? "bad" : "good"),
    ...(page.lint
      ? Object.entries(severities).map(([severity, number]) =>
          card(number, number === 1 ? severity : `${severity}s`, number > 0 ? severity : "good"),
        )
      : []),
    card(page.modules.length, page.modules.length === 1 ? "module file" : "module files"),
    card(page.devices.length, page.devices.length === 1 ? "device" : "devices"),
  );
}

function chapter(title, ...content) {
  return make("section", {}, make("h3", { text: title }), ...content);
}

function failures() {
  const rows = failedRows();
  if (rows.length === 0) return chapter("Failed", make("p", { text: "Every registered type has a configuration." }));
  const lines = rows.flatMap((row) =>
    [...(row.problem ? [row.problem] : []), ...row.failedVersions.map(([, , , problem]) => problem)].map((problem) => [
      rowLink(row),
      problem,
    ]),
  );
  return chapter("Failed", table("Types that failed, with the reason", ["type and version", "reason"], lines));
}

// ---- Lint ----

// A filter of the list, that is one of the view.
function filterLink(words, text) {
  const link = make("a", { href: linkTo(words), text });
  link.addEventListener("click", (event) => {
    event.preventDefault();
    go(words);
    byId("findings")?.focus();
  });
  return link;
}

function findingsList() {
  const { rules, files, findings } = page.lint;
  const wanted = findings.filter(
    ([rule, file]) => (!view.rule || rules[rule][0] === view.rule) && (!view.file || files[file][0] === view.file),
  );
  const lines = wanted.map(([rule, file, line, column, message]) => [
    make("span", { class: "place", text: line === 0 ? files[file][0] : `${files[file][0]}:${line}:${column}` }),
    make("span", { class: `severity ${rules[rule][2]}`, text: rules[rule][2] }),
    make("span", {}, message, " ", make("span", { class: "rule", text: rules[rule][0] })),
  ]);
  const all = rules.reduce((sum, rule) => sum + rule[3], 0);
  const filter = [view.rule, view.file].filter(Boolean).join(", ");
  const heading = make(
    "p",
    { id: "findings", tabindex: "-1", role: "status" },
    filter ? `${count(wanted.length, "finding")} of ${filter}. ` : `${count(wanted.length, "finding")}. `,
  );
  if (filter) heading.append(filterLink({ rule: "", file: "" }, "Show all"));
  if (all > findings.length)
    heading.append(
      ` The page lists ${findings.length.toLocaleString("en")} of ${all.toLocaleString("en")}; opxml lint lists all.`,
    );
  const list = wanted.length > 0 ? table("Findings", ["place", "severity", "finding"], lines) : "";
  return make("div", { id: "finding-list" }, heading, list);
}

function lint() {
  if (!page.lint) return chapter("Lint", make("p", { text: "This page was made without lint." }));
  const { rules, files } = page.lint;
  if (rules.length === 0) return chapter("Lint", make("p", { text: "opxml lint finds nothing." }));
  const byNumber = [...rules].sort((left, right) => right[3] - left[3]);
  const ruleLines = byNumber.map(([id, title, severity, number]) => [
    filterLink({ rule: id, file: "" }, id),
    make("span", { class: `severity ${severity}`, text: severity }),
    String(number),
    title,
  ]);
  const fileLines = files.map(([file, ...counts]) => [
    filterLink({ rule: "", file }, file),
    ...counts.map((number) => (number === 0 ? "–" : String(number))),
  ]);
  return chapter(
    "Lint",
    make("h4", { text: "By rule" }),
    table("Findings by rule", ["rule", "severity", "findings", "what it says"], ruleLines),
    make("h4", { text: "By file" }),
    table("Findings by file", ["file", "errors", "warnings", "notes"], fileLines),
    make("h4", { text: "All" }),
    findingsList(),
  );
}

// ---- The rest ----

function modules() {
  if (page.modules.length === 0 && page.moduleProblems.length === 0)
    return chapter("Modules", make("p", { text: "There are none." }));
  const lines = page.modules.map((module) => [
    module.name || "–",
    module.problem ? make("span", { class: "problem", text: module.problem }) : (module.holds ?? "nothing"),
    (module.supports ?? []).join(", "),
    make("span", { class: "place", text: module.file }),
  ]);
  return chapter(
    "Modules",
    table("Module files", ["module", "holds", "names", "file"], lines),
    ...page.moduleProblems.map((problem) => make("p", { class: "problem", text: problem })),
  );
}

function capacity() {
  const lines = page.rows
    .filter((row) => !row.further)
    .flatMap((row) =>
      row.versions.map(([version, outcome, file, problem]) => [
        rowLink(row),
        version,
        outcome,
        problem ? make("span", { class: "problem", text: problem }) : make("span", { class: "place", text: file }),
      ]),
    );
  if (lines.length === 0) return chapter("Capacity", make("p", { text: "No type has capacity documents." }));
  return chapter(
    "Capacity",
    table(
      "Versions in service of capacity-capable types",
      ["type and version", "in service", "outcome", "document"],
      lines,
    ),
  );
}

function alarmTables() {
  const lines = page.alarmTables.map(([language, file, holds, problem]) => [
    language,
    problem ? make("span", { class: "problem", text: problem }) : holds,
    make("span", { class: "place", text: file }),
  ]);
  if (lines.length === 0) return chapter("Alarm tables", make("p", { text: "There are none." }));
  return chapter("Alarm tables", table("Alarm tables by language", ["language", "holds", "file"], lines));
}

function devices() {
  const lines = page.devices
    .filter((device) => device.problem)
    .map((device) => [device.name || String(device.id), String(device.id), device.problem]);
  if (lines.length === 0) return null;
  return chapter(
    "Devices without a configuration",
    table("Devices without a configuration", ["device", "id", "reason"], lines),
  );
}

function origin() {
  const made = new Date(page.made).toUTCString();
  return chapter("This page", make("p", { text: `Made ${made} by ${page.tool} from ${page.root}.` }));
}

export function showHealth() {
  if (isFilled) {
    byId("finding-list")?.replaceWith(findingsList());
    return;
  }
  byId("health").append(
    cards(),
    ...[failures(), lint(), modules(), capacity(), alarmTables(), devices(), origin()].filter(Boolean),
  );
  isFilled = true;
}
