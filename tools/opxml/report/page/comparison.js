// What a second root had that this one has not, and the other way round.
export function showComparison() {}
