// Making elements: texts go in as texts, so that no name can become markup.

// Attributes by name; "class" and "text" as well, "on" with listeners by event.
export function make(tag, attributes = {}, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (name === "text") element.textContent = value;
    else if (name === "on")
      for (const [event, listener] of Object.entries(value)) element.addEventListener(event, listener);
    else if (value === true) element.setAttribute(name, "");
    else if (value !== false && value !== null && value !== undefined) element.setAttribute(name, value);
  }
  element.append(...children.filter((child) => child !== null && child !== undefined));
  return element;
}

export const byId = (id) => document.getElementById(id);

// Text for screen readers alone.
export const unseen = (text) => make("span", { class: "unseen", text });

export const count = (number, one, many = `${one}s`) => `${number.toLocaleString("en")} ${number === 1 ? one : many}`;

// A table with a caption; cells are texts or nodes, headings of rows in the first column.
function wholeTable(caption, headings, rows) {
  const head = make("tr", {}, ...headings.map((heading) => make("th", { scope: "col", text: heading })));
  const body = rows.map((cells) =>
    make("tr", {}, ...cells.map((cell, at) => make(at === 0 ? "th" : "td", at === 0 ? { scope: "row" } : {}, cell))),
  );
  return make(
    "div",
    { class: "wide", tabindex: "0", role: "region", "aria-label": caption },
    make(
      "table",
      { class: "list" },
      make("caption", { class: "unseen", text: caption }),
      make("thead", {}, head),
      make("tbody", {}, ...body),
    ),
  );
}

const SHOWN_AT_ONCE = 200;

// The same; of a long list the rest comes when it is asked for.
export function table(caption, headings, rows) {
  const whole = make("div", {}, wholeTable(caption, headings, rows.slice(0, SHOWN_AT_ONCE)));
  if (rows.length <= SHOWN_AT_ONCE) return whole;
  const more = make("button", { type: "button", class: "plain", text: `Show all ${rows.length.toLocaleString("en")}` });
  more.addEventListener("click", () => whole.replaceChildren(wholeTable(caption, headings, rows)));
  whole.append(more);
  return whole;
}
