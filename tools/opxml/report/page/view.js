// What is being looked at, kept in the address bar: a link shows the same to others.

const TEXTS = ["view", "types", "operations", "lacks", "sort", "row", "with", "column", "rule", "file"];
const SWITCHES = ["differences", "failed", "changed"];

export const view = { kinds: new Set() }; // kinds: the words of those that are shown, none for all
const listeners = [];

function read() {
  const words = new URLSearchParams(location.hash.slice(1));
  for (const name of TEXTS) view[name] = words.get(name) ?? "";
  for (const name of SWITCHES) view[name] = words.has(name);
  view.kinds = new Set(words.get("kinds")?.split(","));
  view.view ||= "matrix";
}

function write(changed) {
  const words = new URLSearchParams();
  const wanted = { ...view, ...changed };
  for (const name of TEXTS) if (wanted[name] && wanted[name] !== "matrix") words.set(name, wanted[name]);
  for (const name of SWITCHES) if (wanted[name]) words.set(name, "1");
  if (wanted.kinds.size > 0) words.set("kinds", [...wanted.kinds].join(","));
  return `#${words}`;
}

function tell() {
  const before = { ...view };
  read();
  for (const listener of listeners) listener(before);
}

// What a link to this view looks like.
export const linkTo = (changed) => write(changed);

// Shows another view. A keystroke in a filter is no step to go back to, another type is.
export function go(changed, isStep = false) {
  const hash = write(changed);
  if (hash === (location.hash || "#")) return;
  history[isStep ? "pushState" : "replaceState"](null, "", hash);
  tell();
}

// Calls the listener after every change, with what was there before.
export const onChange = (listener) => listeners.push(listener);

export function start() {
  addEventListener("popstate", tell);
  tell();
}
