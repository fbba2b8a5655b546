import {
  BufferGeometry,
  Color,
  DynamicDrawUsage,
  Float32BufferAttribute,
  IcosahedronGeometry,
  InstancedBufferAttribute,
  InstancedBufferGeometry,
  Mesh,
  ShaderMaterial,
  type IUniform,
} from "three";

/**
 * Balls and bones, drawn at once however many there are. What changes from frame to frame are places
 * alone, as the tracks have them: the graphics card makes bodies of these.
 */

const FRAGMENT = /* glsl */ `
  uniform vec3 color;
  uniform vec3 selectedColor;
  varying float marked;
  varying vec3 eyePlace;
  void main() {
    vec3 normal = normalize(cross(dFdx(eyePlace), dFdy(eyePlace)));
    float light = 0.42 + 0.58 * max(dot(normal, normalize(vec3(0.35, 0.7, 0.62))), 0.0);
    vec3 lit = mix(color, selectedColor, marked) * light;
    gl_FragColor = vec4(lit, 1.0);
    #include <colorspace_fragment>
  }`;

const SMOOTH_FRAGMENT = FRAGMENT.replace(
  "normalize(cross(dFdx(eyePlace), dFdy(eyePlace)))",
  "normalize(eyeNormal)",
).replace("varying vec3 eyePlace;", "varying vec3 eyeNormal;");

const BALL_VERTEX = /* glsl */ `
  attribute vec3 place;
  attribute float mark;
  uniform float radius;
  varying float marked;
  varying vec3 eyeNormal;
  void main() {
    marked = min(mark, 1.0);
    eyeNormal = normalMatrix * position;
    float size = radius * (1.0 + 0.5 * marked);
    gl_Position = projectionMatrix * modelViewMatrix * vec4(place + position * size, 1.0);
    if (abs(place.x) > 1e38) gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
  }`;

const BONE_VERTEX = /* glsl */ `
  attribute vec3 place;
  attribute vec3 tip;
  attribute float mark;
  uniform float radius;
  varying float marked;
  varying vec3 eyePlace;
  void main() {
    marked = min(mark, 1.0);
    vec3 along = tip - place;
    float span = length(along);
    vec3 axis = along / max(span, 1e-30);
    vec3 helper = abs(axis.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0);
    vec3 side = normalize(cross(axis, helper));
    float width = min(span * 0.11, radius * 3.5);
    vec3 point = place + axis * (position.y * span);
    point += (side * position.x + cross(side, axis) * position.z) * width;
    vec4 eye = modelViewMatrix * vec4(point, 1.0);
    eyePlace = eye.xyz;
    gl_Position = projectionMatrix * eye;
    if (abs(place.x) > 1e38 || abs(tip.x) > 1e38 || span < 1e-20) {
      gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
    }
  }`;

function octahedron(): BufferGeometry {
  const geometry = new BufferGeometry();
  const corners = [0, 0, 0, 1, 0.18, 0, 0, 0.18, 1, -1, 0.18, 0, 0, 0.18, -1, 0, 1, 0];
  geometry.setAttribute("position", new Float32BufferAttribute(corners, 3));
  geometry.setIndex([0, 1, 2, 0, 2, 3, 0, 3, 4, 0, 4, 1, 5, 2, 1, 5, 3, 2, 5, 4, 3, 5, 1, 4]);
  return geometry;
}

function ball(count: number): BufferGeometry {
  return new IcosahedronGeometry(1, count > 4000 ? 0 : count > 800 ? 1 : 2);
}

/** Bodies of one kind and color; each has its places and a mark that tells it apart. */
export class Bodies {
  readonly mesh: Mesh<InstancedBufferGeometry, ShaderMaterial>;
  private readonly attributes = new Map<string, InstancedBufferAttribute>();

  private constructor(shape: BufferGeometry, count: number, places: string[], smooth: boolean) {
    const geometry = new InstancedBufferGeometry();
    geometry.setAttribute("position", shape.getAttribute("position"));
    geometry.setIndex(shape.getIndex());
    geometry.instanceCount = count;
    for (const name of places) this.add(geometry, name, count, 3);
    this.add(geometry, "mark", count, 1);
    const uniforms: Record<string, IUniform> = {
      color: { value: new Color() },
      selectedColor: { value: new Color() },
      radius: { value: 1 },
    };
    const material = new ShaderMaterial({
      uniforms,
      vertexShader: smooth ? BALL_VERTEX : BONE_VERTEX,
      fragmentShader: smooth ? SMOOTH_FRAGMENT : FRAGMENT,
    });
    this.mesh = new Mesh(geometry, material);
    this.mesh.frustumCulled = false;
  }

  static balls(count: number): Bodies {
    return new Bodies(ball(count), count, ["place"], true);
  }

  /** Octahedra from each `place` to each `tip`. */
  static bones(count: number): Bodies {
    return new Bodies(octahedron(), count, ["place", "tip"], false);
  }

  private add(geometry: InstancedBufferGeometry, name: string, count: number, size: number): void {
    const attribute = new InstancedBufferAttribute(new Float32Array(count * size), size);
    attribute.setUsage(DynamicDrawUsage);
    geometry.setAttribute(name, attribute);
    this.attributes.set(name, attribute);
  }

  values(name: "place" | "tip" | "mark"): Float32Array {
    return this.attributes.get(name)!.array as Float32Array;
  }

  changed(name: "place" | "tip" | "mark"): void {
    this.attributes.get(name)!.needsUpdate = true;
  }

  paint(color: string, selectedColor: string): void {
    this.mesh.material.uniforms.color.value.setStyle(color);
    this.mesh.material.uniforms.selectedColor.value.setStyle(selectedColor);
  }

  setRadius(radius: number): void {
    this.mesh.material.uniforms.radius.value = radius;
  }

  dispose(): void {
    this.mesh.geometry.dispose();
    this.mesh.material.dispose();
  }
}
