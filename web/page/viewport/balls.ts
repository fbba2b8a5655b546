import {
  BufferAttribute,
  BufferGeometry,
  Color,
  DynamicDrawUsage,
  Points,
  ShaderMaterial,
  SRGBColorSpace,
} from "three";
import { isNowhere } from "./nowhere";

/**
 * Balls, drawn at once however many there are: each is one point, as large as the ball is seen, that is
 * shaded like one. What changes from frame to frame are the places alone, as the tracks have them.
 */

const VERTEX = /* glsl */ `
  attribute float mark;
  attribute vec3 color;
  uniform float radius;
  uniform float screenHeight;
  varying float marked;
  varying float pixels;
  varying vec3 ownColor;
  void main() {
    marked = mark;
    ownColor = color;
    vec4 eye = modelViewMatrix * vec4(position, 1.0);
    float eyeRadius = radius * length(modelViewMatrix[0].xyz) * (1.0 + 0.5 * mark);
    eye.z += eyeRadius;
    gl_Position = projectionMatrix * eye;
    pixels = max(eyeRadius * projectionMatrix[1][1] * screenHeight / gl_Position.w, 4.0) + 1.0;
    gl_PointSize = pixels;
    if (${isNowhere("position")}) {
      gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
      gl_PointSize = 1.0;
    }
  }`;

const FRAGMENT = /* glsl */ `
  uniform vec3 selectedColor;
  varying vec3 ownColor;
  varying float marked;
  varying float pixels;
  void main() {
    vec2 across = (gl_PointCoord * 2.0 - 1.0) * vec2(1.0, -1.0);
    float away = length(across);
    float edge = 2.0 / pixels;
    if (away > 1.0) discard;
    vec3 normal = vec3(across, sqrt(max(1.0 - away * away, 0.0)));
    float light = 0.42 + 0.58 * max(dot(normal, normalize(vec3(0.35, 0.7, 0.62))), 0.0);
    gl_FragColor = vec4(mix(ownColor, selectedColor, marked) * light, (1.0 - away) / edge);
    #include <colorspace_fragment>
  }`;

export class Balls {
  readonly body: Points<BufferGeometry, ShaderMaterial>;
  readonly places: Float32Array;
  readonly marks: Float32Array;
  private readonly colors: Float32Array;

  constructor(count: number, radius: number) {
    this.places = new Float32Array(count * 3);
    this.marks = new Float32Array(count);
    this.colors = new Float32Array(count * 3);
    const geometry = new BufferGeometry();
    geometry.setAttribute("position", changing(this.places, 3));
    geometry.setAttribute("mark", changing(this.marks, 1));
    geometry.setAttribute("color", changing(this.colors, 3));
    const material = new ShaderMaterial({
      uniforms: {
        selectedColor: { value: new Color() },
        radius: { value: radius },
        screenHeight: { value: 1 },
      },
      vertexShader: VERTEX,
      fragmentShader: FRAGMENT,
      alphaToCoverage: true,
    });
    this.body = new Points(geometry, material);
    this.body.frustumCulled = false;
  }

  paint(color: string, selectedColor: string): void {
    const one = new Color(color);
    for (let at = 0; at < this.colors.length; at += 3) one.toArray(this.colors, at);
    this.changed("color");
    this.body.material.uniforms.selectedColor.value.setStyle(selectedColor);
  }

  /** @param colors red, green and blue of each ball as screens take them, 0 to 1 */
  paintEach(colors: Float32Array): void {
    const one = new Color();
    for (let at = 0; at < colors.length; at += 3) {
      one.setRGB(colors[at], colors[at + 1], colors[at + 2], SRGBColorSpace);
      one.toArray(this.colors, at);
    }
    this.changed("color");
  }

  /** @param height of the picture, in its own pixels */
  setScreenHeight(height: number): void {
    this.body.material.uniforms.screenHeight.value = height;
  }

  changed(name: "position" | "mark" | "color"): void {
    this.body.geometry.getAttribute(name).needsUpdate = true;
  }

  dispose(): void {
    this.body.geometry.dispose();
    this.body.material.dispose();
  }
}

function changing(values: Float32Array, size: number): BufferAttribute {
  const attribute = new BufferAttribute(values, size);
  attribute.setUsage(DynamicDrawUsage);
  return attribute;
}
