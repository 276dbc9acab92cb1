// The style of the page.
export default {
  extends: "stylelint-config-standard",
  rules: {
    "color-function-notation": null,
    "no-descending-specificity": null,
  },
};
