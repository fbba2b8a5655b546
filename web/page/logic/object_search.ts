/** The indices of the names that hold the words of a search, in the order of the file. */
export function searchNames(names: readonly string[], search: string): number[] {
  const words = search.toLowerCase().split(/\s+/).filter(Boolean);
  const found: number[] = [];
  names.forEach((name, index) => {
    const lower = name.toLowerCase();
    if (words.every((word) => lower.includes(word))) found.push(index);
  });
  return found;
}

/** How deep each object hangs below the root that it belongs to; a circle counts as a root. */
export function depths(parents: readonly number[]): number[] {
  const known: number[] = parents.map(() => -1);
  const depthOf = (object: number): number => {
    const path: number[] = [];
    let at = object;
    while (at >= 0 && known[at] < 0 && path.length <= parents.length) {
      path.push(at);
      at = parents[at];
    }
    let depth = at >= 0 && known[at] >= 0 ? known[at] + 1 : 0;
    for (const above of path.reverse()) known[above] = depth++;
    return known[object];
  };
  return parents.map((_, object) => depthOf(object));
}
