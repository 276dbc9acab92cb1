// What the page knows: reads the JSON and the packed details that stand in it.
// tools/opxml/report/PageJson.cpp and Detail.h say how they are written.
import { wordsOfEntry } from "./words.js";

const CELL_CHARACTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz!#$%()*+,-./";
const CODE_OF = new Map([...CELL_CHARACTERS].map((character, code) => [character, code]));

export const OFFERED = 0;
export const BY_MODULE = 1;
export const CUT = 2;
export const NOT_SUPPORTED = 3;
export const NOTHING = -1;

export const stateOf = (code) => (code === NOTHING ? NOTHING : code & 3);
export const levelOf = (code) => (code >> 2) & 3; // 1 device, 2 board, 3 both
export const isCancelable = (code) => (code & 16) !== 0;
export const isNarrowed = (code) => (code & 32) !== 0;
export const isOffered = (code) => stateOf(code) === OFFERED || stateOf(code) === BY_MODULE;

const STATE_WORDS = ["offered", "offered by a module", "cut by capacity", "listed as not supported"];
const LEVEL_WORDS = ["", "device level", "board level", "device and board level"];

export function cellWords(code) {
  if (code === NOTHING) return "not offered";
  const words = [STATE_WORDS[stateOf(code)], LEVEL_WORDS[levelOf(code)]];
  if (isCancelable(code)) words.push("cancelable");
  if (isNarrowed(code)) words.push("partly cut by capacity");
  return words.filter(Boolean).join(", ");
}

// Cells of a row as two arrays of the same length: columns that are not empty, ascending, and their codes.
function readCells(text) {
  const columns = [];
  const codes = [];
  let column = 0;
  for (const [piece] of text.matchAll(/\d+|\D/g)) {
    if (piece >= "0" && piece <= ":") {
      column += Number(piece);
      continue;
    }
    columns.push(column);
    codes.push(CODE_OF.get(piece));
    column += 1;
  }
  return { columns: Uint32Array.from(columns), codes: Uint8Array.from(codes) };
}

// The code of a cell, or NOTHING.
export function cellAt(row, column) {
  let low = 0;
  let high = row.columns.length;
  while (low < high) {
    const middle = (low + high) >> 1;
    if (row.columns[middle] < column) low = middle + 1;
    else high = middle;
  }
  return row.columns[low] === column ? row.codes[low] : NOTHING;
}

export const foldCase = (text) => text.toLocaleLowerCase("en");

function readRow(written, at, devicesOfKey) {
  const row = { ...written, at, ...readCells(written.cells ?? "") };
  row.problem = row.problem?.replace(/^failed: /, ""); // it stands where that is said
  row.serves ??= [];
  row.modules ??= [];
  row.versions ??= [];
  // Of the configurations of a type each device has one: that of its version, else the first.
  row.devices = (devicesOfKey.get(row.key) ?? []).filter(
    (device) => row.serves.length === 0 || row.serves.includes(device.runs) || (!row.further && !device.runs),
  );
  row.served = row.further ? row.serves.join(", ") : "";
  row.name = [row.type, row.version, row.served && `for ${row.served}`].filter(Boolean).join(" ");
  row.failedVersions = row.versions.filter(([, , , problem]) => problem);
  row.isFailed = Boolean(row.problem) || row.failedVersions.length > 0;
  row.offers = row.codes.reduce((sum, code) => sum + (isOffered(code) ? 1 : 0), 0);
  row.text = foldCase(
    [
      row.name,
      row.key,
      ...row.serves,
      ...row.devices.flatMap((device) => [device.name, String(device.id), device.address]),
    ].join("\n"),
  );
  return row;
}

function readPage() {
  const page = JSON.parse(document.getElementById("data").textContent);
  const devicesOfKey = new Map();
  for (const device of page.devices) {
    if (!devicesOfKey.has(device.key)) devicesOfKey.set(device.key, []);
    devicesOfKey.get(device.key).push(device);
  }
  page.rows = page.rows.map((row, at) => readRow(row, at, devicesOfKey));
  page.columns = page.columns.map(([kind, name], at) => ({
    kind,
    name,
    at,
    id: `${kind}:${name}`,
    text: foldCase(name),
  }));
  page.columnOf = new Map(page.columns.map((column) => [column.id, column]));
  page.rowOf = new Map(page.rows.toReversed().map((row) => [row.name, row]));
  return page;
}

export const page = readPage();

async function unpack(base64) {
  const bytes = Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate"));
  return new Response(stream).json();
}

// The files of a detail, and its sections with places as [file, line, column].
function readDetail(written) {
  const met = written.values.map(() => 0); // entries of each record
  let next = 0;
  let file = 0;
  let line = 0;
  const readEntry = (record) => {
    const at = met[record]++;
    const [, ...fields] = page.records[record];
    return Object.fromEntries(fields.map((field, which) => [field, written.values[record][which][at]]));
  };
  const readNode = (isInside) => {
    const at = next++;
    const record = written.record[at];
    const more = written.more[at] ?? {};
    if (more.f !== undefined) {
      file = more.f;
      line = 0;
    }
    line += written.down[at];
    return {
      ...wordsOfEntry(page.records[record][0], readEntry(record), isInside),
      place: [file, line, written.column[at]],
      module: more.m,
      fate: more.t,
      because: more.b,
      reason: more.r,
      children: Array.from({ length: written.children[at] }, () => readNode(true)),
    };
  };
  return {
    files: written.files,
    sections: written.sections.map(([section, length]) => ({
      section,
      nodes: Array.from({ length }, () => readNode(false)),
    })),
  };
}

// The detail of a row; null when the page has none of it.
export async function detailOf(row) {
  const packed = row.detail === undefined ? null : document.getElementById(`d${row.detail}`);
  return packed === null ? null : readDetail(await unpack(packed.textContent));
}
