"""Has Blender import a scene file and save it:

   blender -b --python save.py -- SCENE.glb SAVED.glb HEURISTIC RATE
"""
import sys

import bpy
import numpy

numpy.bool = bool

source, target, heuristic, rate = sys.argv[sys.argv.index("--") + 1:]
bpy.ops.wm.read_factory_settings(use_empty=True)
bpy.context.scene.render.fps = int(rate)
bpy.ops.import_scene.gltf(filepath=source, bone_heuristic=heuristic)
bpy.ops.export_scene.gltf(filepath=target, export_format="GLB")
