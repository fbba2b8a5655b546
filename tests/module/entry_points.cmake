# What the module exports, in order.
set(entry_points LibClassDesc LibDescription LibNumberClasses LibVersion)
