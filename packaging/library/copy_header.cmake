# Copies the header SOURCE to COPY, for those who include it as <orvane/...>.
file(READ "${SOURCE}" text)
string(REGEX REPLACE "#include \"(decimal|formats|inspect)/" "#include \"orvane/\\1/" text "${text}")
file(WRITE "${COPY}" "${text}")
