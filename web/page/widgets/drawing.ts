import { effect, signal } from "@preact/signals";
import type { RefObject } from "preact";
import { useEffect, useRef } from "preact/hooks";

export type Draw = (context: CanvasRenderingContext2D, width: number, height: number) => void;

/** A canvas as large as its box on the page, drawn anew when a signal that `draw` reads has changed. */
export function useDrawing(draw: Draw): RefObject<HTMLCanvasElement> {
  const canvas = useRef<HTMLCanvasElement>(null);
  useEffect(() => {
    const element = canvas.current!;
    const context = element.getContext("2d")!;
    const size = signal({ width: 0, height: 0 });
    const observer = new ResizeObserver(([entry]) => {
      const { width, height } = entry.contentRect;
      size.value = { width, height };
    });
    observer.observe(element);
    const stop = effect(() => {
      const { width, height } = size.value;
      if (width < 1 || height < 1) return;
      fitPixels(element, context, width, height);
      draw(context, width, height);
    });
    return () => {
      stop();
      observer.disconnect();
    };
  }, []);
  return canvas;
}

function fitPixels(
  canvas: HTMLCanvasElement,
  context: CanvasRenderingContext2D,
  width: number,
  height: number,
): void {
  const ratio = Math.min(devicePixelRatio, 2);
  const pixelWidth = Math.round(width * ratio);
  const pixelHeight = Math.round(height * ratio);
  if (canvas.width !== pixelWidth) canvas.width = pixelWidth;
  if (canvas.height !== pixelHeight) canvas.height = pixelHeight;
  context.setTransform(ratio, 0, 0, ratio, 0, 0);
  context.clearRect(0, 0, width, height);
}
