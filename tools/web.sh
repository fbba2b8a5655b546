# Sourced by ./dev: the page that shows takes, made around the core, and tried in a browser.
# shellcheck shell=bash

# make_page: needs the core in build-web/.
make_page() {
  node_modules/.bin/tsc --project web
  node web/build/build_page.mjs build-web
}

# What the page is made by, its core, and what it does without a browser and in one.
test_page() {
  node --test web/tests/build/*_test.mjs
  node --test web/tests/core/*_test.mjs
  node_modules/.bin/tsc --project web/tests/page
  node web/tests/page/run.mjs
  node --test web/tests/browser/*_test.mjs
}
