import { BufferAttribute, BufferGeometry, Color, LineSegments, ShaderMaterial } from "three";
import { fillTrails, trailBuffers, trailFrames, type TrailBuffers } from "../logic/trail";
import type { Take } from "../state/takes";
import { trailSeconds } from "../state/view_options";

const VERTEX = /* glsl */ `
  attribute float strength;
  varying float clear;
  void main() {
    clear = strength;
    gl_Position = projectionMatrix * modelViewMatrix * vec4(position, 1.0);
  }`;

const FRAGMENT = /* glsl */ `
  uniform vec3 color;
  varying float clear;
  void main() {
    gl_FragColor = vec4(color, clear);
    #include <colorspace_fragment>
  }`;

/** The trails of objects of one take. Their buffers are made when trails are first wanted. */
export class TrailLines {
  readonly lines: LineSegments<BufferGeometry, ShaderMaterial>;
  private buffers: TrailBuffers | null = null;

  constructor(private readonly take: Take) {
    const material = new ShaderMaterial({
      uniforms: { color: { value: new Color() } },
      vertexShader: VERTEX,
      fragmentShader: FRAGMENT,
      transparent: true,
      depthWrite: false,
    });
    this.lines = new LineSegments(new BufferGeometry(), material);
    this.lines.frustumCulled = false;
    this.lines.visible = false;
  }

  paint(color: string): void {
    this.lines.material.uniforms.color.value.setStyle(color);
  }

  show(objects: readonly number[], frame: number): void {
    this.lines.visible = objects.length > 0 && frame >= 0;
    if (!this.lines.visible) return;
    const { info, tracks } = this.take;
    const buffers = this.buffers ?? this.makeBuffers();
    const reach = Math.max(1, Math.round(trailSeconds * info.rate));
    const frames = trailFrames(frame, reach, info.frames);
    const count = fillTrails(
      tracks.positions,
      info.objects.length,
      objects,
      frames,
      frame,
      reach,
      buffers,
    );
    this.lines.geometry.setDrawRange(0, count);
    this.lines.geometry.getAttribute("position").needsUpdate = true;
    this.lines.geometry.getAttribute("strength").needsUpdate = true;
  }

  private makeBuffers(): TrailBuffers {
    const buffers = trailBuffers(this.take.info.objects.length);
    const { geometry } = this.lines;
    geometry.setAttribute("position", new BufferAttribute(buffers.points, 3));
    geometry.setAttribute("strength", new BufferAttribute(buffers.strengths, 1));
    this.buffers = buffers;
    return buffers;
  }

  dispose(): void {
    this.lines.geometry.dispose();
    this.lines.material.dispose();
  }
}
