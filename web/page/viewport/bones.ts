import {
  BufferGeometry,
  Color,
  DynamicDrawUsage,
  Float32BufferAttribute,
  InstancedBufferAttribute,
  InstancedBufferGeometry,
  Mesh,
  ShaderMaterial,
} from "three";
import { isNowhere } from "./nowhere";

/** Bones: octahedra from places to tips. The graphics card turns and stretches one to all of them. */

const VERTEX = /* glsl */ `
  attribute vec3 place;
  attribute vec3 tip;
  attribute float mark;
  uniform float thickest;
  varying float marked;
  varying vec3 eyePlace;
  void main() {
    marked = mark;
    vec3 along = tip - place;
    float span = length(along);
    vec3 axis = along / max(span, 1e-30);
    vec3 helper = abs(axis.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0);
    vec3 side = normalize(cross(axis, helper));
    float width = min(span * 0.11, thickest);
    vec3 point = place + axis * (position.y * span);
    point += (side * position.x + cross(side, axis) * position.z) * width;
    vec4 eye = modelViewMatrix * vec4(point, 1.0);
    eyePlace = eye.xyz;
    gl_Position = projectionMatrix * eye;
    if (${isNowhere("place")} || ${isNowhere("tip")} || span < 1e-20) {
      gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
    }
  }`;

const FRAGMENT = /* glsl */ `
  uniform vec3 color;
  uniform vec3 selectedColor;
  varying float marked;
  varying vec3 eyePlace;
  void main() {
    vec3 normal = normalize(cross(dFdx(eyePlace), dFdy(eyePlace)));
    float light = 0.42 + 0.58 * max(dot(normal, normalize(vec3(0.35, 0.7, 0.62))), 0.0);
    gl_FragColor = vec4(mix(color, selectedColor, marked) * light, 1.0);
    #include <colorspace_fragment>
  }`;

const CORNERS = [0, 0, 0, 1, 0.18, 0, 0, 0.18, 1, -1, 0.18, 0, 0, 0.18, -1, 0, 1, 0];
const FACES = [0, 1, 2, 0, 2, 3, 0, 3, 4, 0, 4, 1, 5, 2, 1, 5, 3, 2, 5, 4, 3, 5, 1, 4];

export class Bones {
  readonly body: Mesh<BufferGeometry, ShaderMaterial>;
  readonly places: Float32Array;
  readonly tips: Float32Array;
  readonly marks: Float32Array;

  constructor(count: number, thickest: number) {
    this.places = new Float32Array(count * 3);
    this.tips = new Float32Array(count * 3);
    this.marks = new Float32Array(count);
    const geometry = new InstancedBufferGeometry();
    geometry.instanceCount = count;
    geometry.setAttribute("position", new Float32BufferAttribute(CORNERS, 3));
    geometry.setIndex(FACES);
    geometry.setAttribute("place", changing(this.places, 3));
    geometry.setAttribute("tip", changing(this.tips, 3));
    geometry.setAttribute("mark", changing(this.marks, 1));
    const material = new ShaderMaterial({
      uniforms: {
        color: { value: new Color() },
        selectedColor: { value: new Color() },
        thickest: { value: thickest },
      },
      vertexShader: VERTEX,
      fragmentShader: FRAGMENT,
    });
    this.body = new Mesh<BufferGeometry, ShaderMaterial>(geometry, material);
    this.body.frustumCulled = false;
  }

  paint(color: string, selectedColor: string): void {
    this.body.material.uniforms.color.value.setStyle(color);
    this.body.material.uniforms.selectedColor.value.setStyle(selectedColor);
  }

  changed(name: "place" | "tip" | "mark"): void {
    this.body.geometry.getAttribute(name).needsUpdate = true;
  }

  dispose(): void {
    this.body.geometry.dispose();
    this.body.material.dispose();
  }
}

function changing(values: Float32Array, size: number): InstancedBufferAttribute {
  const attribute = new InstancedBufferAttribute(values, size);
  attribute.setUsage(DynamicDrawUsage);
  return attribute;
}
