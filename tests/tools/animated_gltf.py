"""An animated file, small enough to know where everything is, for the tests of tools."""

import json
import math
import struct

HALF = math.sqrt(0.5)

# One triangle that three nodes show: as it is, on a node that moves from x = 0 to x = 10 within a
# second and turns by 90 degrees about z; bound to that node, one unit away from it; and as it is,
# at y = 3, hidden from half a second on for a quarter of a second.
BLOCKS = {
    "corners": struct.pack("<9f", 0, 0, 0, 1, 0, 0, 0, 1, 0),
    "triangle": struct.pack("<3I", 0, 1, 2),
    "joints": struct.pack("<12H", *[0] * 12),
    "weights": struct.pack("<12f", *[1, 0, 0, 0] * 3),
    "inverse": struct.pack("<16f", 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1),
    "seconds": struct.pack("<2f", 0, 1),
    "moves": struct.pack("<6f", 0, 0, 0, 10, 0, 0),
    "turns": struct.pack("<8f", 0, 0, 0, 1, 0, 0, HALF, HALF),
    "normals": struct.pack("<9f", *[0, 1, 0] * 3),
    "changes": struct.pack("<3f", 0, 0.5, 0.75),
    "scales": struct.pack("<9f", 1, 1, 1, 0, 0, 0, 1, 1, 1),
}
KINDS = {"corners": ("VEC3", 5126, 3), "triangle": ("SCALAR", 5125, 3), "joints": ("VEC4", 5123, 3),
         "weights": ("VEC4", 5126, 3), "inverse": ("MAT4", 5126, 1), "seconds": ("SCALAR", 5126, 2),
         "moves": ("VEC3", 5126, 2), "turns": ("VEC4", 5126, 2), "normals": ("VEC3", 5126, 3),
         "changes": ("SCALAR", 5126, 3), "scales": ("VEC3", 5126, 3)}
INDEX = {name: i for i, name in enumerate(BLOCKS)}


def channel(sampler, node, path):
    return {"sampler": sampler, "target": {"node": node, "path": path}}


def sampler(times, values, interpolation="LINEAR"):
    return {"input": INDEX[times], "output": INDEX[values], "interpolation": interpolation}


def animated():
    views = []
    for name, block in BLOCKS.items():
        start = sum(view["byteLength"] for view in views)
        views.append({"buffer": 0, "byteOffset": start, "byteLength": len(block)})
    plain = {"POSITION": INDEX["corners"], "NORMAL": INDEX["normals"]}
    skinned = {"POSITION": INDEX["corners"], "JOINTS_0": INDEX["joints"],
               "WEIGHTS_0": INDEX["weights"]}
    return {
        "asset": {"version": "2.0"},
        "scene": 0,
        "scenes": [{"nodes": [0, 2, 3]}],
        "nodes": [{"children": [1], "translation": [0, 0, 5]}, {"mesh": 0, "name": "moving"},
                  {"mesh": 1, "skin": 0}, {"mesh": 0, "name": "hiding", "translation": [0, 3, 0]}],
        "meshes": [{"primitives": [{"attributes": attributes, "indices": INDEX["triangle"]}]}
                   for attributes in (plain, skinned)],
        "skins": [{"joints": [1], "inverseBindMatrices": INDEX["inverse"]}],
        "animations": [{
            "channels": [channel(0, 1, "translation"), channel(1, 1, "rotation"),
                         channel(2, 3, "scale")],
            "samplers": [sampler("seconds", "moves"), sampler("seconds", "turns"),
                         sampler("changes", "scales", "STEP")],
        }],
        "accessors": [{"bufferView": i, "type": KINDS[name][0], "componentType": KINDS[name][1],
                       "count": KINDS[name][2]} for name, i in INDEX.items()],
        "bufferViews": views,
        "buffers": [{"byteLength": sum(len(block) for block in BLOCKS.values())}],
    }


def glb(gltf, binary):
    text = json.dumps(gltf).encode()
    text += b" " * (-len(text) % 4)
    chunks = (struct.pack("<II", len(text), 0x4E4F534A) + text +
              struct.pack("<II", len(binary), 0x004E4942) + binary)
    return struct.pack("<4sII", b"glTF", 2, 12 + len(chunks)) + chunks
