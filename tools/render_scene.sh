#!/usr/bin/env bash
# Draws a .glb file as a PNG, without a screen, by f3d under Xvfb:
#
#   tools/render_scene.sh SCENE.glb PICTURE.png [SECOND...]
#
# With seconds, the picture shows the animated scene at all of these times at once. The environment
# variable VIEW_ANGLE, in degrees, is how much comes into the picture; the default shows any scene
# whole.
set -euo pipefail

if (($# < 2)); then
  echo "usage: tools/render_scene.sh SCENE.glb PICTURE.png [SECOND...]" >&2
  exit 2
fi
for command in f3d xvfb-run; do
  command -v "$command" >/dev/null || {
    echo "render_scene: $command is needed (Debian: apt-get install f3d xvfb)" >&2
    exit 1
  }
done

scene=$1
picture=$2
shift 2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
if (($# > 0)); then
  node "$(dirname "${BASH_SOURCE[0]}")/still_gltf.mjs" "$scene" "$folder/still.glb" "$@"
  scene=$folder/still.glb
fi
xvfb-run --auto-servernum f3d --dry-run --quiet --output="$picture" --resolution=1200,560 \
  --bg-color=0.96,0.97,0.98 --grid --fxaa --camera-azimuth-angle=65 --camera-elevation-angle=9 \
  --camera-view-angle="${VIEW_ANGLE:-30}" "$scene"
