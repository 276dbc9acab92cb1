// The scripts of the page: modules that are joined into one, for browsers alone.
import js from "@eslint/js";

const BROWSER = [
  "Blob", "DecompressionStream", "Event", "ResizeObserver", "Response", "URLSearchParams", "addEventListener", "atob",
  "document", "history", "location", "requestAnimationFrame",
];

export default [
  js.configs.recommended,
  {
    files: ["**/*.js"],
    languageOptions: {
      ecmaVersion: 2023,
      sourceType: "module",
      globals: Object.fromEntries(BROWSER.map((name) => [name, "readonly"])),
    },
    linterOptions: { reportUnusedDisableDirectives: "error" },
    rules: {
      eqeqeq: "error",
      "no-eval": "error",
      "no-implied-eval": "error",
      "no-new-func": "error",
      "no-restricted-properties": [
        "error",
        // Names come from files: they go into the page as texts.
        ...["innerHTML", "outerHTML", "insertAdjacentHTML", "write"].map((property) => ({ property, message: "Use dom.js: texts go in as texts." })),
      ],
      "no-shadow": "error",
      "no-var": "error",
      "object-shorthand": "error",
      "prefer-const": "error",
      "max-lines-per-function": ["error", { max: 60, skipComments: true }],
      complexity: ["error", 14],
    },
  },
];
