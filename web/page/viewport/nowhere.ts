/** In the language of the graphics card: whether a place stands for none. */
export function isNowhere(place: string): string {
  return `abs(${place}.x) > 1e38`;
}
